#include "astro/Planetas.h"

#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "astro/Coordenadas.h"
#include "astro/Sidereo.h"

namespace vedrano {

PosicionCuerpo HallaPlaneta(double jd, const ElementosOrbita& p, const DireccionSol& s) {
    PosicionCuerpo r;
    double L = LongitudMedia(jd, p);
    double u = L - p.LongNodo;
    double l = ArcoTangente(std::cos(p.Inclinacion) * std::sin(u), std::cos(u)) + p.LongNodo;
    // The radius vector, taken with the heliocentric longitude l, not with L.
    double radio = p.SemiejeMayor + p.SemiejeMayor * p.Excentricidad * std::sin(l - (p.LongPerihelio + MEDIO_PI));
    double Y = radio * std::sin(l) + s.SolX;
    double X = radio * std::cos(l) + s.SolZ;
    r.LongGeo = ArcoTangente(Y, X);
    EclipticaAEcuatorial(r.LongGeo, r.AscRecta, r.Declinacion);
    double Z = std::sin(p.Inclinacion) * std::sin(u) * radio;
    double rho = Sqr(Y * Y + X * X);
    double beta = std::atan(Divide(Z, rho));
    // The latitude is simply added to the declination of the ecliptic point.
    r.Declinacion = r.Declinacion + beta;
    return r;
}

namespace {

double Fraccion(double revoluciones) { return revoluciones - Int(revoluciones); }

}  // namespace

PosicionCuerpo HallaLuna(double jd, double latitud) {
    PosicionCuerpo r;
    double T = (jd + ORIGEN_ELEMENTOS - 2446759.5) / 36525;
    // Arguments in revolutions; the slow term of L' uses the plain Julian day.
    double Lp = 1336.855231 * T + 0.757756 - (jd - 1.3253e6) / 2.535e8;
    double M = 99.9973606 * T + 0.995766;   // the Sun's mean anomaly
    double Mp = 1325.552359 * T + 0.822513; // the Moon's mean anomaly
    double D = 1236.853095 * T + 0.974271;  // mean elongation
    double F = 1342.227848 * T + 0.031252;  // argument of latitude
    Lp = Fraccion(Lp) * 360;
    M = Fraccion(M) * DOS_PI;
    Mp = Fraccion(Mp) * DOS_PI;
    D = Fraccion(D) * DOS_PI;
    F = Fraccion(F) * DOS_PI;

    // The term in 2M (twice the Sun's anomaly) is part of the model as given.
    double lambda = Lp + 6.289 * std::sin(Mp) + 1.274 * std::sin(2 * D - Mp) + 0.658 * std::sin(2 * D) +
                    0.214 * std::sin(2 * M) - 0.186 * std::sin(M) - 0.114 * std::sin(2 * F) +
                    0.059 * std::sin(2 * D - 2 * Mp) + 0.057 * std::sin(2 * D - M - Mp) +
                    0.053 * std::sin(2 * D + Mp);
    lambda = lambda * GRADO;
    // The fifth and sixth terms share the argument 2D + F - M' on purpose.
    double beta = 5.128 * std::sin(F) + 0.281 * std::sin(Mp + F) + 0.278 * std::sin(Mp - F) +
                  0.173 * std::sin(2 * D - F) + 0.055 * std::sin(2 * D + F - Mp) +
                  0.046 * std::sin(2 * D + F - Mp) + 0.033 * std::sin(2 * D + F) +
                  0.017 * std::sin(2 * Mp + F);
    beta = beta * GRADO;

    r.AscRecta = ArcoTangente(0.91748 * std::sin(lambda) - 0.39778 * std::tan(beta), std::cos(lambda));
    double s = 0.91748 * std::sin(beta) + 0.39778 * std::cos(beta) * std::sin(lambda);
    r.Declinacion = std::atan(Divide(s, Sqr(1 - s * s))) - (latitud / 1.65) * GRADO;
    return r;
}

PosicionCuerpo HallaSolAparente(const PosicionCuerpo& tierra) {
    PosicionCuerpo sol;
    sol.AscRecta = tierra.AscRecta + PI;
    if (sol.AscRecta > DOS_PI) sol.AscRecta = sol.AscRecta - DOS_PI;
    sol.Declinacion = -tierra.Declinacion;
    Vector3f v = AngulosAVector(sol.AscRecta, sol.Declinacion);
    sol.x = v.x;
    sol.y = v.y;
    sol.z = v.z;
    return sol;
}

}  // namespace vedrano
