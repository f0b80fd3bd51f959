// The precise model against places built independently from ERFA: the
// Earth from eraEpv00 rather than Plan94's barycentre, the full IAU
// 2006/2000A precession-nutation rather than the long-term precession and
// 2000B nutation, the Greenwich apparent sidereal time of IAU 2006, and the
// observer on the WGS84 ellipsoid by eraGd2gc.
#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "Referencias.h"
#include "astro/PrecisionAlta.h"

using namespace vedrano;

namespace {

constexpr double C_UA_DIA = ERFA_CMPS * 86400.0 / ERFA_DAU;

using namespace pruebas;

// Apparent place, true equator and equinox of date: geocentric, or seen
// from a station (east longitude, latitude) when `estacion` is given.
void Referencia(int cuerpo, double jd, double& ar, double& dec, const double* estacion = nullptr) {
    double tt = TTDe(jd), pvh[2][3], pvb[2][3], p[3], pv[2][3];
    eraEpv00(tt, 0, pvh, pvb);
    if (cuerpo == 11) {
        eraMoon98(tt, 0, pv);
        eraCp(pv[0], p);
    } else if (cuerpo == 10) {
        eraSxp(-1, pvh[0], p);
    } else {
        double tau = 0;
        for (int i = 0; i < 3; ++i) {
            eraPlan94(tt - tau, 0, cuerpo, pv);
            eraPmp(pv[0], pvh[0], p);
            tau = eraPm(p) / C_UA_DIA;
        }
    }
    double rnpb[3][3];
    eraPnm06a(tt, 0, rnpb);
    if (estacion) {
        double itrs[3], o[3], r[3][3];
        eraGd2gc(1, estacion[0], estacion[1], 0, itrs);
        eraIr(r);
        eraRz(-eraGst06a(jd, 0, tt, 0), r);
        eraRxp(r, itrs, o);
        // The station back in the catalogue frame, in au.
        eraTrxp(rnpb, o, o);
        for (int i = 0; i < 3; ++i) p[i] -= o[i] / ERFA_DAU;
    }
    double u[3], v[3], ap[3], d;
    eraPn(p, &d, u);
    for (int i = 0; i < 3; ++i) v[i] = pvb[1][i] / C_UA_DIA;
    eraAb(u, v, eraPm(pvh[0]), std::sqrt(1 - eraPdp(v, v)), ap);
    eraRxp(rnpb, ap, ap);
    eraC2s(ap, &ar, &dec);
}

}  // namespace

// Every body of Plan94, the Sun and the Moon within an arcminute of the
// reference from 1900 to 2100.
TEST(PrecisionAlta, LugarAparenteSigueAErfaDe1900A2100) {
    for (int cuerpo : {1, 2, 4, 5, 6, 7, 8, 10, 11}) {
        std::vector<double> d;
        for (double jd : Fechas(DC_1900, DC_2100, 400)) {
            double ar, dec;
            Referencia(cuerpo, jd, ar, dec);
            LugarPreciso l = LugarAparente(cuerpo, jd);
            d.push_back(eraSeps(l.ar, l.dec, ar, dec) * ERFA_DR2AS);
        }
        Errores e = Resumen(d);
        EXPECT_LT(e.maximo, 60.0) << "body " << cuerpo;
        EXPECT_LT(e.mediana, 20.0) << "body " << cuerpo;
    }
    // The Earth has no place seen from the Earth.
    LugarPreciso tierra = LugarAparente(3, 2451545.0);
    EXPECT_EQ(tierra.distancia, 0.0);
}

// The Moon seen from stations north and south, east and west, against
// eraMoon98 moved to the station; the parallax itself reaches a degree.
TEST(PrecisionAlta, LunaTopocentricaSigueAMoon98) {
    const double estaciones[][2] = {{-3.7, 40.4}, {139.7, 35.7}, {-70.7, -33.4}, {18.4, -33.9}, {25.0, 69.0}};
    double paralajeMaxima = 0;
    int k = 0;
    for (double jd : Fechas(DC_1900, DC_2100, 300)) {
        const double* s = estaciones[k++ % 5];
        double est[2] = {s[0] * ERFA_DD2R, s[1] * ERFA_DD2R}, ar, dec;
        Referencia(11, jd, ar, dec, est);
        LugarPreciso geo = LugarAparente(11, jd);
        LugarPreciso topo = Topocentrico(geo, est[1], TiempoSidereoAparente(jd, -est[0]));
        ASSERT_LT(eraSeps(topo.ar, topo.dec, ar, dec) * ERFA_DR2AS, 60.0) << "JD " << jd;
        paralajeMaxima = std::max(paralajeMaxima, eraSeps(topo.ar, topo.dec, geo.ar, geo.dec));
    }
    EXPECT_GT(paralajeMaxima * ERFA_DR2D, 0.9);
}

// Delta T against the values tabulated with the polynomials (Espenak and
// Meeus 2006, table 1.1) and the sidereal time against IAU 2006's GAST.
TEST(PrecisionAlta, DeltaTYTiempoSidereo) {
    struct Valor {
        double ano, segundos, tolerancia;
    };
    const Valor tabla[] = {{-500, 17190, 20}, {0, 10580, 10}, {500, 5710, 10}, {1000, 1570, 5}, {1500, 200, 5},
                           {1700, 9, 1},      {1800, 14, 1},  {1900, -3, 1},   {1950, 29, 1},    {2000, 64, 1}};
    for (const Valor& v : tabla) {
        double jd = ERFA_DJ00 + (v.ano - 2000.0) * 365.25;
        EXPECT_NEAR(DeltaT(jd), v.segundos, v.tolerancia) << v.ano;
    }
    for (double jd : Fechas(DC_1900, DC_2100, 200)) {
        double tt = jd + DeltaT(jd) / 86400.0;
        double gast = eraGst06a(jd, 0, tt, 0), oeste = 1.234;
        EXPECT_NEAR(eraAnpm(TiempoSidereoAparente(jd, oeste) - (gast - oeste)), 0.0, 1e-7) << jd;
    }
}

// A star's proper motion over 5000 years against the motion worked by hand
// on the tangent plane at its J2000 place: xi and eta grow linearly, and the
// plane is projected back to the sphere (the gnomonic inverse).
TEST(PrecisionAlta, MovimientoPropioEnCincoMilAnos) {
    const double mas = ERFA_DAS2R / 1000.0;
    struct Estrella {
        double ar, dec, pmAR, pmDec;  // degrees; mas/yr, the first times cos dec
    };
    const Estrella estrellas[] = {
        {269.452, 4.693, -798.58, 10328.12},    // Barnard's star
        {219.900, -60.834, -3679.25, 473.67},   // alpha Centauri
        {101.287, -16.716, -546.01, -1223.08},  // Sirius
        {37.954, 89.264, 44.48, -11.85},        // Polaris, beside the pole
    };
    for (double anos : {-5000.0, 5000.0}) {
        double jd = ERFA_DJ00 + anos * 365.25;
        for (const Estrella& s : estrellas) {
            double a0 = s.ar * ERFA_DD2R, d0 = s.dec * ERFA_DD2R, a = a0, d = d0, ah, dh;
            MovimientoPropio(a, d, s.pmAR * mas, s.pmDec * mas, jd);
            eraTpsts(s.pmAR * mas * anos, s.pmDec * mas * anos, a0, d0, &ah, &dh);
            EXPECT_LT(eraSeps(a, d, ah, dh) * ERFA_DR2AS, 0.01) << s.ar << " " << anos;
        }
    }
    // Barnard's star moves 10.36 arcsec a year: on the tangent plane 14.4
    // degrees in 5000 years, on the sky the arc tangent of that.
    double a = 269.452 * ERFA_DD2R, d = 4.693 * ERFA_DD2R;
    MovimientoPropio(a, d, -798.58 * mas, 10328.12 * mas, ERFA_DJ00 + 5000 * 365.25);
    double tramo = std::hypot(798.58, 10328.12) * mas * 5000;
    EXPECT_NEAR(eraSeps(a, d, 269.452 * ERFA_DD2R, 4.693 * ERFA_DD2R), std::atan(tramo), 1e-9);
}

// Refraction at the horizon and high up; at 10 degrees Bennett's formula,
// taken at the apparent altitude, gives 5.35 arcmin.
TEST(PrecisionAlta, Refraccion) {
    EXPECT_NEAR(Refraccion(0) * ERFA_DR2D * 60, 28.9, 0.3);
    EXPECT_NEAR(Refraccion(10 * ERFA_DD2R) * ERFA_DR2D * 60, 5.35, 0.1);
    EXPECT_NEAR(Refraccion(45 * ERFA_DD2R) * ERFA_DR2D * 60, 1.0, 0.05);
    EXPECT_LT(std::fabs(Refraccion(ERFA_DPI / 2)) * ERFA_DR2AS, 1.0);
    EXPECT_EQ(Refraccion(-5 * ERFA_DD2R), 0.0);  // faded out well below the horizon
}
