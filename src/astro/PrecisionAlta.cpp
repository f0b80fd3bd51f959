#include "astro/PrecisionAlta.h"

#include <erfa.h>
#include <erfam.h>

#include <cmath>

namespace vedrano {

namespace {

constexpr double J2000 = 2451545.0;
constexpr double C_UA_DIA = 173.1446326846693;     // speed of light, au per day
constexpr double PARTE_LUNA = 1.0 / 82.30056947;   // the Moon's share of the Earth-Moon mass
constexpr double RADIO_TIERRA_UA = 6378.137 / 149597870.7;

double Polinomio(const double* c, int n, double t) {
    double r = 0;
    for (int i = n - 1; i >= 0; --i) r = r * t + c[i];
    return r;
}

// Heliocentric position and velocity (au, au/day) of the Earth at TT: the
// Earth-Moon barycentre less the Moon's share of the geocentric Moon.
void Tierra(double tt, double pv[2][3]) {
    double luna[2][3];
    eraPlan94(tt, 0, 3, pv);
    eraMoon98(tt, 0, luna);
    for (int k = 0; k < 2; ++k)
        for (int i = 0; i < 3; ++i) pv[k][i] -= PARTE_LUNA * luna[k][i];
}

// Pluto's heliocentric position (au, ICRS-aligned) from the JPL mean
// elements and rates of table 2a/2b, Kepler's equation solved.
void Pluton(double tt, double p[3]) {
    double T = (tt - J2000) / 36525.0;
    double a = 39.48686035 + 0.00449751 * T;
    double e = 0.24885238 + 0.00006016 * T;
    double inc = (17.14104260 + 0.00000501 * T) * ERFA_DD2R;
    double L = 238.96535011 + 145.18042903 * T;
    double peri = 224.09702598 - 0.00968827 * T;
    double nodo = (110.30167986 - 0.00809981 * T) * ERFA_DD2R;
    double M = eraAnpm((L - peri - 0.01262724 * T * T) * ERFA_DD2R);
    double w = peri * ERFA_DD2R - nodo;
    double E = M + e * std::sin(M);
    for (int i = 0; i < 30; ++i) {
        double d = (E - e * std::sin(E) - M) / (1 - e * std::cos(E));
        E -= d;
        if (std::fabs(d) < 1e-14) break;
    }
    double xp = a * (std::cos(E) - e), yp = a * std::sqrt(1 - e * e) * std::sin(E);
    double cw = std::cos(w), sw = std::sin(w), cO = std::cos(nodo), sO = std::sin(nodo);
    double ci = std::cos(inc), si = std::sin(inc);
    double x = (cw * cO - sw * sO * ci) * xp + (-sw * cO - cw * sO * ci) * yp;
    double y = (cw * sO + sw * cO * ci) * xp + (-sw * sO + cw * cO * ci) * yp;
    double z = (sw * si) * xp + (cw * si) * yp;
    // Ecliptic of J2000 to the equator.
    double eps = 84381.448 * ERFA_DAS2R;
    p[0] = x;
    p[1] = y * std::cos(eps) - z * std::sin(eps);
    p[2] = y * std::sin(eps) + z * std::cos(eps);
}

void Heliocentrico(int cuerpo, double tt, double p[3]) {
    if (cuerpo == 9) {
        Pluton(tt, p);
        return;
    }
    double pv[2][3];
    eraPlan94(tt, 0, cuerpo, pv);  // status 1 (outside 1000-3000 AD) still gives the place
    for (int i = 0; i < 3; ++i) p[i] = pv[0][i];
}

double TT(double jdUT) { return jdUT + DeltaT(jdUT) / 86400.0; }

}  // namespace

double DeltaT(double jdUT) {
    double y = 2000.0 + (jdUT - J2000) / 365.25;
    auto largo = [](double y) {
        double u = (y - 1820.0) / 100.0;
        return -20.0 + 32.0 * u * u;
    };
    if (y < -500) return largo(y);
    if (y < 500) {
        static const double c[] = {10583.6, -1014.41, 33.78311, -5.952053, -0.1798452, 0.022174192, 0.0090316521};
        return Polinomio(c, 7, y / 100.0);
    }
    if (y < 1600) {
        static const double c[] = {1574.2, -556.01, 71.23472, 0.319781, -0.8503463, -0.005050998, 0.0083572073};
        return Polinomio(c, 7, (y - 1000.0) / 100.0);
    }
    if (y < 1700) {
        static const double c[] = {120, -0.9808, -0.01532, 1.0 / 7129};
        return Polinomio(c, 4, y - 1600.0);
    }
    if (y < 1800) {
        static const double c[] = {8.83, 0.1603, -0.0059285, 0.00013336, -1.0 / 1174000};
        return Polinomio(c, 5, y - 1700.0);
    }
    if (y < 1860) {
        static const double c[] = {13.72,       -0.332447,    0.0068612,     0.0041116,
                                   -0.00037436, 0.0000121272, -0.0000001699, 0.000000000875};
        return Polinomio(c, 8, y - 1800.0);
    }
    if (y < 1900) {
        static const double c[] = {7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1.0 / 233174};
        return Polinomio(c, 6, y - 1860.0);
    }
    if (y < 1920) {
        static const double c[] = {-2.79, 1.494119, -0.0598939, 0.0061966, -0.000197};
        return Polinomio(c, 5, y - 1900.0);
    }
    if (y < 1941) {
        static const double c[] = {21.20, 0.84493, -0.076100, 0.0020936};
        return Polinomio(c, 4, y - 1920.0);
    }
    if (y < 1961) {
        static const double c[] = {29.07, 0.407, -1.0 / 233, 1.0 / 2547};
        return Polinomio(c, 4, y - 1950.0);
    }
    if (y < 1986) {
        static const double c[] = {45.45, 1.067, -1.0 / 260, -1.0 / 718};
        return Polinomio(c, 4, y - 1975.0);
    }
    if (y < 2005) {
        static const double c[] = {63.86, 0.3345, -0.060374, 0.0017275, 0.000651814, 0.00002373599};
        return Polinomio(c, 6, y - 2000.0);
    }
    if (y < 2050) {
        static const double c[] = {62.92, 0.32217, 0.005589};
        return Polinomio(c, 3, y - 2000.0);
    }
    if (y < 2150) return largo(y) - 0.5628 * (2150.0 - y);
    return largo(y);
}

void MatrizFecha(double jdUT, double r[3][3]) {
    double tt = TT(jdUT), pb[3][3], n[3][3];
    eraLtpb(eraEpj(tt, 0), pb);
    eraNum00b(tt, 0, n);
    eraRxr(n, pb, r);
}

InstantePreciso PreparaInstante(double jdUT) {
    InstantePreciso i;
    i.jdUT = jdUT;
    i.tt = TT(jdUT);
    Tierra(i.tt, i.tierra);
    MatrizFecha(jdUT, i.matriz);
    return i;
}

LugarPreciso LugarAparente(int cuerpo, double jdUT) { return LugarAparente(cuerpo, PreparaInstante(jdUT)); }

LugarPreciso LugarAparente(int cuerpo, const InstantePreciso& instante) {
    LugarPreciso lugar;
    if (cuerpo < 1 || cuerpo > 11 || cuerpo == 3) return lugar;
    InstantePreciso i = instante;  // ERFA takes its arguments as writable arrays
    const double tt = i.tt;
    auto& tierra = i.tierra;
    double p[3];
    if (cuerpo == 11) {
        double pv[2][3];
        eraMoon98(tt, 0, pv);
        eraCp(pv[0], p);
    } else if (cuerpo == 10) {
        eraSxp(-1.0, tierra[0], p);
    } else {
        // Where the body was when the light now arriving left it.
        double h[3], tau = 0;
        for (int k = 0; k < 3; ++k) {
            Heliocentrico(cuerpo, tt - tau, h);
            eraPmp(h, tierra[0], p);
            tau = eraPm(p) / C_UA_DIA;
        }
    }
    double distancia, u[3], v[3], ap[3];
    eraPn(p, &distancia, u);
    for (int k = 0; k < 3; ++k) v[k] = tierra[1][k] / C_UA_DIA;
    eraAb(u, v, eraPm(tierra[0]), std::sqrt(1 - eraPdp(v, v)), ap);
    eraRxp(i.matriz, ap, ap);
    eraC2s(ap, &lugar.ar, &lugar.dec);
    lugar.ar = eraAnp(lugar.ar);
    lugar.distancia = distancia;
    return lugar;
}

double TiempoSidereoAparente(double jdUT, double longitudOeste) {
    double tt = TT(jdUT), dpsi, deps;
    eraNut00b(tt, 0, &dpsi, &deps);
    double gast = eraGmst06(jdUT, 0, tt, 0) + eraEe00(tt, 0, eraObl06(tt, 0), dpsi);
    return eraAnp(gast - longitudOeste);
}

LugarPreciso Topocentrico(const LugarPreciso& geo, double latitud, double tsl) {
    // The station's geocentric vector on the WGS84 ellipsoid, in Earth radii.
    const double f = 1 / 298.257223563;
    double u = std::atan((1 - f) * std::tan(latitud));
    double rc = std::cos(u), rs = (1 - f) * std::sin(u);
    double p[3], o[3] = {rc * std::cos(tsl), rc * std::sin(tsl), rs};
    eraS2p(geo.ar, geo.dec, geo.distancia, p);
    for (int i = 0; i < 3; ++i) p[i] -= o[i] * RADIO_TIERRA_UA;
    LugarPreciso t;
    eraP2s(p, &t.ar, &t.dec, &t.distancia);
    t.ar = eraAnp(t.ar);
    return t;
}

double Refraccion(double altura) {
    double grados = altura * ERFA_DR2D;
    double h = std::fmax(grados, -1.0);
    double minutos = 1.02 / std::tan((h + 10.3 / (h + 5.11)) * ERFA_DD2R);
    // Below -1 degree the formula runs away; the lift fades out by -3.
    if (grados < -1.0) minutos *= std::fmax(0.0, (grados + 3.0) / 2.0);
    return minutos / 60.0 * ERFA_DD2R;
}

void MovimientoPropio(double& ar, double& dec, double pmAR, double pmDec, double jd) {
    double t = (jd - J2000) / 365.25;
    double ca = std::cos(ar), sa = std::sin(ar), cd = std::cos(dec), sd = std::sin(dec);
    // The star's direction and the unit vectors toward east and north there.
    double p[3] = {cd * ca, cd * sa, sd};
    double este[3] = {-sa, ca, 0}, norte[3] = {-sd * ca, -sd * sa, cd};
    for (int i = 0; i < 3; ++i) p[i] += t * (pmAR * este[i] + pmDec * norte[i]);
    eraC2s(p, &ar, &dec);
    ar = eraAnp(ar);
}

}  // namespace vedrano
