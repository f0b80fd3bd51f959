// Angle and vector conversions, the horizon rotation and the projection,
// checked against spherical trigonometry written out here.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "../Ayudas.h"
#include "app/base/ErrorEjecucion.h"
#include "app/estado/Astros.h"
#include "app/estado/Rotaciones.h"
#include "app/estado/Tiempo.h"
#include "astro/Coordenadas.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;

namespace {

// A latitude of the cases' own; the sidereal time each case gives is set
// after it, over the one the place's refresh leaves.
void FijaLatitud(Estado& e, double latitud) {
    Observador o = ObservadorDe(e);
    o.Latitud = latitud;
    FijaLugar(e, TablaPlanetas{}, o);
}

}  // namespace

TEST(Coordenadas, ArcTangentQuadrantsAndErrors) {
    EXPECT_EQ(ArcoTangente(0, 1), 0);
    EXPECT_DOUBLE_EQ(ArcoTangente(1, -1), std::atan(-1.0) + 3.1415926536);
    EXPECT_NEAR(ArcoTangente(-1, 1), 7 * M_PI / 4, 1e-9);
    EXPECT_EQ(pruebas::ErrorDe([] { ArcoTangente(1, 0); }), 11);
}

TEST(Coordenadas, VectorsAndAnglesRoundTrip) {
    std::mt19937 gen(5);
    std::uniform_real_distribution<double> ua(0.001, 2 * M_PI - 0.001), ud(-1.5, 1.5);
    for (int i = 0; i < 5000; ++i) {
        double a = ua(gen), d = ud(gen), a2 = -1, d2 = -1;
        Vector3f v = AngulosAVector(a, d);
        EXPECT_NEAR(std::hypot(v.x, v.y, v.z), 1.0, 2e-7);
        ASSERT_TRUE(VectorAAngulos(v, a2, d2));
        // The right ascension comes from an arc cosine of a 32-bit component,
        // so its error grows as 1/|sin a| near a = 0 and a = pi.
        double tolerancia = 2e-6 + 4e-7 / (std::fabs(std::sin(a)) * std::cos(d));
        EXPECT_NEAR(a2, a, tolerancia);
        EXPECT_NEAR(d2, d, 3e-6);
    }
    // At a pole the conversion fails and leaves the outputs alone.
    double a = 7, d = 8;
    EXPECT_FALSE(VectorAAngulos({0, 1, 0}, a, d));
    EXPECT_EQ(a, 7);
    EXPECT_EQ(d, 8);
    // x = 0 and z = -cos d: the clamp keeps the arc cosine just below pi.
    ASSERT_TRUE(VectorAAngulos(AngulosAVector(M_PI, 0.3), a, d));
    EXPECT_LT(a, M_PI);
    EXPECT_GT(a, M_PI - 1e-6);
}

TEST(Coordenadas, EclipticAndHorizon) {
    double ar, dec;
    EclipticaAEcuatorial(M_PI / 2, ar, dec);  // summer solstice
    EXPECT_NEAR(ar, M_PI / 2, 1e-9);
    EXPECT_NEAR(dec, std::asin(0.3976818), 1e-12);

    Estado e;
    std::mt19937 gen(9);
    std::uniform_real_distribution<double> u(0, 2 * M_PI), ud(-1.4, 1.4);
    for (int i = 0; i < 2000; ++i) {
        const double sidereo = u(gen);
        FijaLatitud(e, ud(gen));
        FijaTiempoSidereo(e, sidereo);
        double a = u(gen), d = ud(gen);
        Vector3f h = EcuatorialAHorizontal(e, AngulosAVector(a, d));
        double H = e.TiempoSidereo - a;  // hour angle
        double sinAlt = std::sin(e.Latitud) * std::sin(d) + std::cos(e.Latitud) * std::cos(d) * std::cos(H);
        EXPECT_NEAR(h.z, sinAlt, 1e-6);
        EXPECT_NEAR(h.x, std::cos(d) * std::sin(H), 1e-6);  // toward the west
    }
    FijaLatitud(e, 0.7);
    FijaTiempoSidereo(e, 2.0);
    Vector3f polo = EcuatorialAHorizontal(e, {0, 1, 0});
    EXPECT_NEAR(polo.z, std::sin(0.7), 1e-7);
    EXPECT_NEAR(polo.y, std::cos(0.7), 1e-7);
    EXPECT_NEAR(polo.x, 0, 1e-7);
}

TEST(Proyeccion, CentreThresholdAndInverse) {
    Estado e;
    FijaLatitud(e, 0.64);
    FijaTiempoSidereo(e, 1.1);
    FijaVista(e, 2.0, 0.5);
    // The direction at the centre of view from its azimuth (north through
    // east) and altitude; x of the horizon frame points west.
    Vector3f centroH{static_cast<float>(-std::cos(0.5) * std::sin(2.0)),
                     static_cast<float>(std::cos(0.5) * std::cos(2.0)), static_cast<float>(std::sin(0.5))};
    PuntoProyectado p = ProyectaHorizontal(e, centroH);
    EXPECT_NEAR(p.X, 0, 1e-6);
    EXPECT_NEAR(p.Y, 0, 1e-6);
    EXPECT_NEAR(p.Z, 1, 1e-6);

    FijaZoom(e, 1);  // the scale without a picture
    EXPECT_EQ(e.Umbral, 0.0f);
    FijaZoom(e, 3);
    double esquina = std::hypot(3.4666667 / 6, 2.6 / 6);
    EXPECT_NEAR(e.Umbral, std::sqrt(1 - esquina * esquina), 1e-6);
    EXPECT_TRUE(EsVisible(e, {0, 0, e.Umbral}));  // exactly at the threshold is drawn
    EXPECT_FALSE(EsVisible(e, {0, 0, std::nextafter(e.Umbral, 0.0f)}));

    // Forward then inverse gives back the star (to the 3e-6 rad shift of the inverse).
    std::mt19937 gen(3);
    std::uniform_real_distribution<double> u(0, 2 * M_PI), ud(-1.2, 1.2);
    int probados = 0;
    while (probados < 500) {
        double a = u(gen), d = ud(gen);
        PuntoProyectado q = ProyectaPunto(e, AngulosAVector(a, d));
        if (q.Z < 0.2) continue;
        double ar = 0, de = 0;
        float alt = 0, az = 0;
        PuntoACielo(e, q.X, q.Y, ar, de, alt, az);
        EXPECT_NEAR(de, d, 2e-5);
        EXPECT_NEAR(std::remainder(ar - a, 2 * M_PI), 0, 2e-5 / std::cos(d));
        ++probados;
    }
    double ar = 0, de = 0;
    float alt = 5, az = 6;
    PuntoACielo(e, 0.9f, 0.9f, ar, de, alt, az);  // off the sphere
    EXPECT_EQ(ar, 99);
    EXPECT_EQ(de, 99);
    EXPECT_EQ(alt, 5);
    EXPECT_EQ(az, 6);
}
