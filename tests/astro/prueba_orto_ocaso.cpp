// Rising, transit and setting in the program's own positions, against a
// textbook example and against ERFA: at the times found, the true Sun and
// Moon (ERFA 2.0, IAU 2006/2000A frame, Moon98) must stand where the event
// says, within what the program's degree-scale models reach.
#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "../Ayudas.h"
#include "app/base/Constantes.h"
#include "app/estado/Tiempo.h"
#include "catalogue/TablaPlanetas.h"
#include "sky/apunta/DiaObjeto.h"

using namespace vedrano;

namespace {

const TablaPlanetas& Tabla() { return pruebas::CatalogosDatos().TablaPlanetas; }

// A state at noon UT of a Julian day, at a place (degrees, east positive)
// and a zone (hours east of Greenwich).
Estado Lugar(double jd0h, double lonEste, double lat, float zona = 0, bool verano = false) {
    const TablaPlanetas& t = Tabla();
    Estado e;
    FijaFechaJuliana(e, t, jd0h + 0.5);
    FijaLugar(e, t, {-lonEste * GRADO, lat * GRADO, zona, verano});
    return e;
}

// Altitude and azimuth (north 0, east pi/2), radians, of the true Sun or
// the topocentric Moon at a UT instant, from ERFA.
void Verdadero(bool luna, double jdUT, double lonEste, double lat, double& alt, double& az) {
    const double deltaT = 69.0 / 86400;  // TT - UT near 2024; a minute off moves nothing here
    double rc2t[3][3];
    eraC2t06a(jdUT, deltaT, jdUT, 0, 0, 0, rc2t);
    double r[3];
    if (luna) {
        double pv[2][3];
        eraMoon98(jdUT, deltaT, pv);
        eraCp(pv[0], r);
    } else {
        double h[2][3], b[2][3];
        eraEpv00(jdUT, deltaT, h, b);
        eraSxp(-1, h[0], r);
    }
    double t[3];
    eraRxp(rc2t, r, t);
    const double l = lonEste * ERFA_DD2R, f = lat * ERFA_DD2R;
    if (luna) {
        // From the Earth's centre to the observer (on a sphere of the
        // equatorial radius: the Moon's parallax is what matters).
        const double radio = 6378137.0 / ERFA_DAU;  // ERFA_DAU is in metres
        double o[3] = {radio * std::cos(f) * std::cos(l), radio * std::cos(f) * std::sin(l), radio * std::sin(f)};
        eraPmp(t, o, t);
    }
    double u[3];
    eraPn(t, &alt, u);
    const double arriba = std::cos(f) * std::cos(l) * u[0] + std::cos(f) * std::sin(l) * u[1] + std::sin(f) * u[2];
    const double este = -std::sin(l) * u[0] + std::cos(l) * u[1];
    const double norte = -std::sin(f) * std::cos(l) * u[0] - std::sin(f) * std::sin(l) * u[1] + std::cos(f) * u[2];
    alt = std::asin(arriba);
    az = std::atan2(este, norte);
    if (az < 0) az += 2 * M_PI;
}

double Minutos(double jd) { return (jd - std::floor(jd - 0.5) - 0.5) * 1440; }

constexpr double MADRID_LON = -3.7038, MADRID_LAT = 40.4168;

}  // namespace

// J. Meeus, Astronomical Algorithms, 2nd ed., example 15.a: Venus from
// Boston (71 deg 05' W, 42 deg 20' N) on 1988 March 20, universal times
// rising 12h 25m, transit 19h 41m, setting 2h 55m. The program's Venus
// comes from mean elements and the first term of the centre: minutes.
TEST(OrtoOcaso, VenusAtBostonAsMeeusExample15a) {
    const TablaPlanetas p = Tabla();
    const Estado e = Lugar(2447240.5, -71.0833, 42.3333);
    const DiaObjeto d = HallaDia(e, p, ObjetoDelDia{2, 0, 0});
    ASSERT_EQ(d.horizonte.visibilidad, Visibilidad::Normal);
    ASSERT_TRUE(d.horizonte.orto.hay && d.horizonte.transito.hay && d.horizonte.ocaso.hay);
    EXPECT_NEAR(Minutos(d.horizonte.orto.jd), 12 * 60 + 25, 6);
    EXPECT_NEAR(Minutos(d.horizonte.transito.jd), 19 * 60 + 41, 6);
    EXPECT_NEAR(Minutos(d.horizonte.ocaso.jd), 2 * 60 + 55, 6);
}

// The Sun at Madrid through the year: at the rising and setting found, the
// true Sun's centre is 50' below the horizon (34' of refraction and 16' of
// semidiameter); at the transit it is due south; at each twilight it is
// 6, 12 and 18 degrees down.
TEST(OrtoOcaso, SunAtMadridAgreesWithErfa) {
    const TablaPlanetas p = Tabla();
    const double fechas[] = {2460311.5 /* 2024-01-01 */, 2460390.5 /* 03-20 */, 2460482.5 /* 06-20 */,
                             2460574.5 /* 09-20 */, 2460665.5 /* 12-20 */};
    for (double jd : fechas) {
        SCOPED_TRACE(jd);
        const Estado e = Lugar(jd, MADRID_LON, MADRID_LAT, 1);
        const DiaObjeto d = HallaDia(e, p, ObjetoDelDia{10, 0, 0});
        EXPECT_TRUE(d.esSol);
        ASSERT_TRUE(d.horizonte.orto.hay && d.horizonte.transito.hay && d.horizonte.ocaso.hay);
        double alt = 0, az = 0;
        // 0.05 degrees is about 20 seconds of time at Madrid.
        for (const Instante* t : {&d.horizonte.orto, &d.horizonte.ocaso}) {
            Verdadero(false, t->jd, MADRID_LON, MADRID_LAT, alt, az);
            EXPECT_NEAR(alt / GRADO, -0.8333, 0.05);
        }
        EXPECT_LT(d.horizonte.orto.jd, d.horizonte.transito.jd);
        EXPECT_LT(d.horizonte.transito.jd, d.horizonte.ocaso.jd);
        Verdadero(false, d.horizonte.transito.jd, MADRID_LON, MADRID_LAT, alt, az);
        EXPECT_NEAR(az / GRADO, 180, 0.3);
        EXPECT_NEAR(d.horizonte.alturaTransito / GRADO, alt / GRADO, 0.05);
        const double bajo[3] = {-6, -12, -18};
        for (int k = 0; k < 3; ++k) {
            const OrtoTransitoOcaso& c = d.crepusculos[static_cast<std::size_t>(k)];
            ASSERT_TRUE(c.orto.hay && c.ocaso.hay);
            EXPECT_LT(c.orto.jd, d.horizonte.orto.jd);
            EXPECT_GT(c.ocaso.jd, d.horizonte.ocaso.jd);
            for (const Instante* t : {&c.orto, &c.ocaso}) {
                Verdadero(false, t->jd, MADRID_LON, MADRID_LAT, alt, az);
                EXPECT_NEAR(alt / GRADO, bajo[k], 0.05);
            }
        }
    }
    // The texts, in Madrid's summer time (UT+2) on 20 June 2024, carry the
    // local minutes of ERFA's own crossings (found here by bisection).
    auto cruce = [](double a, double b, bool sube) {
        for (int k = 0; k < 40; ++k) {
            double m = (a + b) / 2, alt = 0, az = 0;
            Verdadero(false, m, MADRID_LON, MADRID_LAT, alt, az);
            ((alt / GRADO > -0.8333) == sube ? b : a) = m;
        }
        return (a + b) / 2;
    };
    auto local = [](double jd) {
        int m = static_cast<int>(std::lround(Minutos(jd + 2.0 / 24)));
        char t[8];
        std::snprintf(t, sizeof t, "%02d:%02d", m / 60, m % 60);
        return std::string(t);
    };
    const double salida = cruce(2460482.5, 2460482.5 + 0.25, true);
    const double puesta = cruce(2460482.5 + 0.6, 2460482.5 + 1.0, false);
    const Estado e = Lugar(2460482.5, MADRID_LON, MADRID_LAT, 1, true);
    const std::vector<std::string> l = TextosDia(HallaDia(e, p, ObjetoDelDia{10, 0, 0}));
    ASSERT_EQ(l.size(), 5u);
    EXPECT_EQ(l[0], "Salida: " + local(salida) + "    Puesta: " + local(puesta));
    EXPECT_EQ(l[1].substr(0, 10), "Tr\xE1nsito: ");
    EXPECT_EQ(l[2].substr(0, 30), "Crep\xFAsculo civil: empieza 06:1");
}

// The Moon, whose place the program lowers for the parallax: at the
// rising and setting found the true topocentric Moon is at the horizon of
// its upper limb (34' of refraction, about 16' of semidiameter).
TEST(OrtoOcaso, MoonAtMadridAgreesWithErfa) {
    const TablaPlanetas p = Tabla();
    // The classic Moon is good to 1.5 degrees (see the ERFA comparison of
    // its place); the precise one is ERFA's own Moon seen from the place.
    // Near the horizon the Moon climbs about a degree in five minutes.
    for (bool alta : {false, true}) {
        int vistos = 0;
        for (double jd = 2460311.5; jd < 2460341.5; jd += 3) {
            SCOPED_TRACE(jd);
            Estado e = Lugar(jd, MADRID_LON, MADRID_LAT, 1);
            e.Pref.PrecisionAlta = alta;
            const DiaObjeto d = HallaDia(e, p, ObjetoDelDia{11, 0, 0});
            for (const Instante* t : {&d.horizonte.orto, &d.horizonte.ocaso}) {
                if (!t->hay) continue;
                ++vistos;
                double alt = 0, az = 0;
                Verdadero(true, t->jd, MADRID_LON, MADRID_LAT, alt, az);
                EXPECT_NEAR(alt / GRADO, -0.8333, alta ? 0.05 : 1.5) << (alta ? "precise" : "classic");
            }
        }
        EXPECT_GE(vistos, 18);
    }
}

TEST(OrtoOcaso, CircumpolarAndNeverRisingAndTheWhiteNights) {
    const TablaPlanetas p = Tabla();
    const Estado madrid = Lugar(2460482.5, MADRID_LON, MADRID_LAT, 1);
    // Kochab (beta UMi, dec +74.16) never sets at Madrid; Canopus
    // (dec -52.70) never rises there.
    const DiaObjeto kochab = HallaDia(madrid, p, ObjetoDelDia{0, 222.676 * GRADO, 74.155 * GRADO});
    EXPECT_EQ(kochab.horizonte.visibilidad, Visibilidad::Circumpolar);
    EXPECT_FALSE(kochab.horizonte.orto.hay || kochab.horizonte.ocaso.hay);
    EXPECT_NEAR(kochab.horizonte.alturaTransito / GRADO, 90 - 74.155 + 40.4168, 0.3);
    EXPECT_EQ(TextosDia(kochab)[0], "Salida y puesta: circumpolar");
    const DiaObjeto canopo = HallaDia(madrid, p, ObjetoDelDia{0, 95.988 * GRADO, -52.696 * GRADO});
    EXPECT_EQ(canopo.horizonte.visibilidad, Visibilidad::NoSale);
    EXPECT_EQ(TextosDia(canopo)[0], "Salida y puesta: no sale");

    // Tromso (69.65 N): midnight sun in June, polar night in December.
    EXPECT_EQ(HallaDia(Lugar(2460482.5, 18.96, 69.65, 1), p, ObjetoDelDia{10, 0, 0}).horizonte.visibilidad,
              Visibilidad::Circumpolar);
    const DiaObjeto diciembre = HallaDia(Lugar(2460665.5, 18.96, 69.65, 1), p, ObjetoDelDia{10, 0, 0});
    EXPECT_EQ(diciembre.horizonte.visibilidad, Visibilidad::NoSale);
    EXPECT_EQ(diciembre.crepusculos[0].visibilidad, Visibilidad::Normal);  // a civil twilight at noon

    // London in June: the Sun goes no lower than 15 degrees, so the night
    // never gets astronomically dark, while the nautical twilight ends.
    const DiaObjeto londres = HallaDia(Lugar(2460482.5, -0.1276, 51.5072, 0, true), p, ObjetoDelDia{10, 0, 0});
    EXPECT_EQ(londres.crepusculos[1].visibilidad, Visibilidad::Normal);
    EXPECT_EQ(londres.crepusculos[2].visibilidad, Visibilidad::Circumpolar);
    EXPECT_EQ(TextosDia(londres)[4], "Crep\xFAsculo astron\xF3mico: no llega a oscurecer");
}
