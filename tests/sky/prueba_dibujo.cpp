// The sky picture on real images: layer gating, what each layer touches,
// daylight, the Moon over the Sun, and sizes with the zoom.
#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cmath>

#include "../Ayudas.h"
#include "../astro/Referencias.h"
#include "CapasApagadas.h"
#include "app/estado/Astros.h"
#include "app/estado/Rotaciones.h"
#include "astro/Calendario.h"
#include "astro/Planetas.h"
#include "astro/Coordenadas.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "catalogue/CargaCatalogos.h"
#include "config/LeeConfiguracion.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;

namespace {

const Catalogos& Datos() { return pruebas::CatalogosDatos(); }

class EntornoQt : public ::testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char nombre[] = "pruebas";
        static char* argv[] = {nombre, nullptr};
        app_ = new QGuiApplication(argc, argv);
    }
    QGuiApplication* app_ = nullptr;
};
const auto* entorno = ::testing::AddGlobalTestEnvironment(new EntornoQt);

// A state with every layer off and both levels 0.
Estado Apagado() {
    Estado e;
    ApagaCapas(e);
    return e;
}

int PixelesEncendidos(const QImage& img) {
    int n = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if ((img.pixel(x, y) & 0xFFFFFF) != 0) ++n;
    return n;
}

PanelInformacion Dibuja(Estado& e, Lienzo& l) { return ActualizaCielo(e, Datos(), l); }

}  // namespace

TEST(Dibujo, LayersOffGiveABlackPictureAndEachLayerDrawsAlone) {
    Lienzo l(400, 300);
    Estado e = Apagado();
    EXPECT_FALSE(Dibuja(e, l).DiaJuliano.empty());
    EXPECT_EQ(PixelesEncendidos(l.Imagen()), 0);

    auto conCapa = [&](auto enciende) {
        Estado s = Apagado();
        FijaVista(s, s.Direccion, 0.9);
        enciende(s);
        Dibuja(s, l);
        return PixelesEncendidos(l.Imagen());
    };
    EXPECT_GT(conCapa([](Estado& s) { s.NivelEstrellas = 3; }), 50);
    EXPECT_GT(conCapa([](Estado& s) { s.NivelConstelaciones = 4; }), 50);
    EXPECT_GT(conCapa([](Estado& s) { s.Capas.Horiz = 1; }), 50);
    EXPECT_GT(conCapa([](Estado& s) { s.Capas.ARDEC15 = 1; }), 50);
    EXPECT_GT(conCapa([](Estado& s) { s.Capas.LimCo = 1; }), 50);
    EXPECT_GT(conCapa([](Estado& s) { s.Capas.Eclip = 1; FijaVista(s, s.Direccion, 0.6); }), 10);
    EXPECT_GT(conCapa([](Estado& s) { s.Capas.Galax = 1; s.NivelGalaxias = 4; }), 20);
}

TEST(Dibujo, AStarIsDrawnWhereItProjectsAndNowhereElse) {
    // Sirius alone: level 0 draws the brightest stars; look at its pixel.
    Lienzo l(800, 600);
    Estado e = Apagado();
    e.NivelEstrellas = 0;
    FijaFechaJuliana(e, Datos().TablaPlanetas, FechaAJuliana(ArmaCadenaFecha(2024, 1, 15, 23, 0)));  // Sirius high in the south
    FijaLugar(e, Datos().TablaPlanetas, {0.06, 0.7, e.ZonaHoraria, e.HorarioVerano});
    FijaVista(e, e.Direccion, 0.5);
    FijaZoom(e, 1);
    // Render with the star layer on; compute where Sirius must fall independently
    // of the drawing: its catalogue direction through the projection.
    e.NivelEstrellas = 1;
    Dibuja(e, l);
    const Catalogos& c = Datos();
    const EstrellaNombre* sirio = nullptr;
    for (const auto& s : c.TablaEstrellasNombre)
        if (s.Designacion.texto().rfind("Alf CMa", 0) == 0) sirio = &s;
    ASSERT_NE(sirio, nullptr);
    PuntoProyectado p = ProyectaPunto(e, sirio->Direccion);
    ASSERT_GT(p.Z, e.Umbral);
    QPointF px = l.APixel(p.X, p.Y);
    QRgb centro = l.Imagen().pixel(static_cast<int>(px.x()), static_cast<int>(px.y()));
    EXPECT_GT(qGray(centro), 100);
    // Ten pixels away from any star the sky is black: count lit pixels in a
    // ring around Sirius that holds no other bright star.
    int lejos = 0;
    for (int dx = -12; dx <= 12; ++dx)
        for (int dy = -12; dy <= 12; ++dy)
            if (std::hypot(dx, dy) > 8 && std::hypot(dx, dy) < 12 &&
                (l.Imagen().pixel(static_cast<int>(px.x()) + dx, static_cast<int>(px.y()) + dy) & 0xFFFFFF))
                ++lejos;
    EXPECT_EQ(lejos, 0);
}

TEST(Dibujo, DaylightFollowsTheSunsAltitude) {
    Lienzo l(100, 80);
    for (int hora = 0; hora < 24; ++hora) {
        Estado e = Apagado();
        e.Capas.LuzDi = 1;
        FijaFechaJuliana(e, Datos().TablaPlanetas, FechaAJuliana(ArmaCadenaFecha(2024, 3, 20, hora, 0)));
        Dibuja(e, l);
        // The Sun's altitude from its right ascension and declination.
        HallaSolAparente(e);
        const PosicionCuerpo& s = e.Planetas[10];
        double H = e.TiempoSidereo - s.AscRecta;
        double seno = std::sin(e.Latitud) * std::sin(s.Declinacion) +
                      std::cos(e.Latitud) * std::cos(s.Declinacion) * std::cos(H);
        int azul = qBlue(l.Imagen().pixel(50, 40));
        if (seno > 0.01) {
            EXPECT_EQ(azul, 192) << hora;
        }
        if (seno < -0.31) {
            EXPECT_EQ(azul, 0) << hora;
        }
        if (std::fabs(seno + 0.15) < 0.14) {
            EXPECT_NEAR(azul, std::lround(seno * 640 + 192), 2) << hora;
        }
    }
}

TEST(Dibujo, TheMoonCoversTheSunAtTheEclipse) {
    // The annular eclipse of 3 October 2005 at its maximum seen from Madrid.
    pruebas::Anota calla;
    Estado e;
    e.DirArchivo = std::string(VEDRANO_RAIZ) + "/Archivo/";
    ASSERT_EQ(LeeConfiguracion(e, "Eclipse 2005.ls1", calla).error, 0);
    Lienzo l(800, 600);
    Dibuja(e, l);
    const PosicionCuerpo& sol = e.Planetas[10];
    const PosicionCuerpo& luna = e.Planetas[11];
    QPointF ps = l.APixel(sol.X, sol.Y), pl = l.APixel(luna.X, luna.Y);
    ASSERT_GT(ps.x(), 0);
    ASSERT_LT(ps.x(), l.Ancho());
    EXPECT_LT(std::hypot(ps.x() - pl.x(), ps.y() - pl.y()), 10);
    // The Sun is yellow; the new Moon, drawn after it, is dark grey.
    QRgb centro = l.Imagen().pixel(static_cast<int>(ps.x()), static_cast<int>(ps.y()));
    EXPECT_LT(qRed(centro), 0x80) << std::hex << centro;
    EXPECT_LT(qGreen(centro), 0x80) << std::hex << centro;
}

namespace {

// Points the view at a catalogue direction at the state's instant.
void CentraEn(Estado& e, const Vector3f& v) {
    ActualizaTiempo(e, Datos().TablaPlanetas);
    MiraA(e, v);
}

// Lit pixels in the row run through the picture's centre.
int RunCentral(const QImage& img, int umbral) {
    int y = img.height() / 2, mejor = 0;
    for (int dy = -1; dy <= 1; ++dy) {
        int x0 = img.width() / 2, x1 = x0;
        if (qGray(img.pixel(x0, y + dy)) <= umbral) continue;
        while (x0 > 0 && qGray(img.pixel(x0 - 1, y + dy)) > umbral) --x0;
        while (x1 < img.width() - 1 && qGray(img.pixel(x1 + 1, y + dy)) > umbral) ++x1;
        mejor = std::max(mejor, x1 - x0 + 1);
    }
    return mejor;
}

}  // namespace

TEST(Dibujo, SymbolsGrowWithTheZoomAndStarDotsFollowTheirWidthRule) {
    Lienzo l(800, 600);
    const Catalogos& c = Datos();
    const Estrella& brillante = c.TablaEstrellas[0];  // Sirius, V -1.46
    for (float zoom : {1.0f, 4.0f, 10.0f}) {
        Estado e = Apagado();
        e.NivelEstrellas = 1;
        FijaZoom(e, zoom);
        FijaFechaJuliana(e, Datos().TablaPlanetas, 2460000.5);
        CentraEn(e, brillante.Direccion);
        Dibuja(e, l);
        int esperado = static_cast<int>(std::nearbyint((7 - brillante.Magnitud) * 0.07 * zoom + 1));
        EXPECT_NEAR(RunCentral(l.Imagen(), 40), esperado, 1) << zoom;
    }

    // A globular cluster's symbol has a horizontal stroke 2r across.
    auto trazo = [&](float zoom) {
        const ObjetoProfundo& g = c.TablaCumGlobulares[0];
        Estado e = Apagado();
        e.Capas.CumGl = 1;
        e.NivelCumGlobulares = 1;
        FijaZoom(e, zoom);
        FijaFechaJuliana(e, Datos().TablaPlanetas, 2460000.5);
        CentraEn(e, g.Direccion);
        Dibuja(e, l);
        return RunCentral(l.Imagen(), 60);
    };
    int t2 = trazo(2), t8 = trazo(8);
    double esperado2 = 2 * 0.003 * (3 - c.TablaCumGlobulares[0].Clase) * 800 / (3.4666667 / 2);
    EXPECT_NEAR(t2, esperado2, 2);
    EXPECT_NEAR(static_cast<double>(t8) / t2, 4.0, 0.4);
}

TEST(Dibujo, TheMirroredSkyKeepsTrueAzimuths) {
    // A star west of the centre of view lies right of centre in the normal
    // picture and left of it in the mirrored one; reading the point back
    // under the cursor gives its true place in both.
    Lienzo l(800, 600);
    for (int16_t orientacion : {int16_t{1}, int16_t{0}}) {
        Estado e = Apagado();
        FijaOrientacion(e, orientacion);
        FijaZoom(e, 2);
        ActualizaTiempo(e, Datos().TablaPlanetas);
        AjustaEscalaLienzo(e, l);
        GiraDireccion(e);
        // A direction 10 degrees west of the centre of view, at its altitude.
        double az = e.Direccion + 10 * M_PI / 180, alt = e.Elevacion;
        Vector3f h{static_cast<float>(-std::cos(alt) * std::sin(az)), static_cast<float>(std::cos(alt) * std::cos(az)),
                   static_cast<float>(std::sin(alt))};
        PuntoProyectado p = ProyectaHorizontal(e, h);
        QPointF px = l.APixel(p.X, p.Y);
        if (orientacion == 1)
            EXPECT_GT(px.x(), l.Ancho() / 2.0);
        else
            EXPECT_LT(px.x(), l.Ancho() / 2.0);
        double ar, dec;
        float altitud = 0, azimut = 0;
        PuntoACielo(e, p.X, p.Y, ar, dec, altitud, azimut);
        EXPECT_NEAR(azimut, std::fmod(az, 2 * M_PI), 1e-4);
        EXPECT_NEAR(altitud, alt, 1e-4);
    }
}

TEST(Dibujo, DrawingThePlanetsLeavesTheSunWhereItIs) {
    // The Earth's record is the base of the Sun's place: a pass with every
    // planet switched on must not disturb it.
    Lienzo l(200, 150);
    Estado solo = Apagado();
    solo.Capas.Sol = 1;
    Dibuja(solo, l);
    Estado todos = Apagado();
    todos.Capas.Sol = 1;
    todos.Capas.Plane.fill(1);
    Dibuja(todos, l);
    EXPECT_DOUBLE_EQ(todos.Planetas[10].AscRecta, solo.Planetas[10].AscRecta);
    EXPECT_DOUBLE_EQ(todos.Planetas[10].Declinacion, solo.Planetas[10].Declinacion);
}

TEST(Dibujo, TheSunIsDrawnAtItsPlaceOfDateInAntiquity) {
    // 2 January 1000, 12:00 UT, from Toledo, with precession on as in every
    // sample. The reference is the Sun of ERFA referred to the true equator
    // and equinox of the date (TT = UT + Delta T, Morrison-Stephenson).
    Lienzo l(800, 600);
    Estado e = Apagado();
    e.Capas.Sol = 1;
    e.Precesion = true;
    FijaLugar(e, Datos().TablaPlanetas, {4.02 * ERFA_DD2R, 39.86 * ERFA_DD2R, e.ZonaHoraria, e.HorarioVerano});  // west positive
    FijaFechaJuliana(e, Datos().TablaPlanetas, FechaAJuliana(ArmaCadenaFecha(1000, 1, 2, 12, 0)));
    ASSERT_NEAR(e.FechaJuliana, 2086309.0, 1e-6);  // Julian calendar
    const double tt = pruebas::TTDe(e.FechaJuliana);
    double pvh[2][3], pvb[2][3], p[3], rnp[3][3], ar, dec;
    eraEpv00(tt, 0, pvh, pvb);
    for (int i = 0; i < 3; ++i) p[i] = -pvh[0][i];
    eraPnm06a(tt, 0, rnp);
    eraRxp(rnp, p, p);
    eraC2s(p, &ar, &dec);
    Dibuja(e, l);  // settles the sidereal time for the view below
    MiraA(e, AngulosAVector(ar, dec));
    FijaZoom(e, 4);
    Dibuja(e, l);
    const PosicionCuerpo& sol = e.Planetas[10];
    ASSERT_GE(sol.Z, e.Umbral);
    // Where the disc was drawn, read back through the inverse projection.
    double arDibujo = 0, decDibujo = 0;
    float altitud = 0, azimut = 0;
    PuntoACielo(e, sol.X, sol.Y, arDibujo, decDibujo, altitud, azimut);
    EXPECT_LT(eraSeps(arDibujo, decDibujo, ar, dec) * ERFA_DR2D, 0.7);
    QPointF px = l.APixel(sol.X, sol.Y);
    QRgb centro = l.Imagen().pixel(static_cast<int>(px.x()), static_cast<int>(px.y()));
    EXPECT_EQ(centro & 0xFFFFFF, 0xFFFF00u);  // the Sun's yellow
}

TEST(Dibujo, TheMoonsShapeShowsTheMiddleOfItsPhaseStep) {
    // Days after a new Moon until the elongation falls in the third step
    // (45 to 68 degrees): the shape stands for 56.25 degrees, a disc lit
    // (1 - cos 56.25) / 2 = 22.2 %, the area between the limb and the
    // terminator's half ellipse.
    Lienzo l(800, 600);
    Estado e = Apagado();
    e.Capas.Luna = 1;
    FijaLugar(e, Datos().TablaPlanetas, {e.Longitud, 0.7, e.ZonaHoraria, e.HorarioVerano});
    double elongacion = 0;
    for (double jd = 2460310.5; jd < 2460345.5; jd += 0.25) {
        FijaFechaJuliana(e, Datos().TablaPlanetas, jd);
        Dibuja(e, l);
        const PosicionCuerpo& s = e.Planetas[10];
        const PosicionCuerpo& m = e.Planetas[11];
        elongacion = eraSeps(m.AscRecta, m.Declinacion, s.AscRecta, s.Declinacion) * ERFA_DR2D;
        if (std::remainder(m.AscRecta - s.AscRecta, 2 * M_PI) > 0 && elongacion > 50 && elongacion < 63) break;
    }
    ASSERT_GT(elongacion, 50);
    MiraA(e, AngulosAVector(e.Planetas[11].AscRecta, e.Planetas[11].Declinacion));
    FijaZoom(e, 20);
    Dibuja(e, l);
    const PosicionCuerpo& m = e.Planetas[11];
    QPointF c = l.APixel(m.X, m.Y);
    double radio = 0.009 * l.PixelesPorUnidad();
    ASSERT_GT(radio, 30);
    int luz = 0, sombra = 0;
    for (int dy = -int(radio); dy <= int(radio); ++dy)
        for (int dx = -int(radio); dx <= int(radio); ++dx) {
            if (std::hypot(dx, dy) > radio - 2) continue;
            QRgb px = l.Imagen().pixel(int(c.x()) + dx, int(c.y()) + dy);
            (qGray(px) > 0x90 ? luz : sombra)++;
        }
    EXPECT_NEAR(double(luz) / (luz + sombra), (1 - std::cos(56.25 * ERFA_DD2R)) / 2, 0.025);
}
