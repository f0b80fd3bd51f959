#include "astro/Sidereo.h"

#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "astro/Coordenadas.h"

namespace vedrano {

namespace {

constexpr double CICLO = 365.2422;  // days of the sidereal-time cycle

}  // namespace

double TiempoSidereoLocal(double jd, const Observador& o, const ElementosOrbita& tierra) {
    double t = jd + ORIGEN_ELEMENTOS + o.Longitud / DOS_PI;
    double p = (t / CICLO - Int(t / CICLO)) * CICLO;
    double J = (jd + o.ZonaHoraria / 24.0) + (o.HorarioVerano ? 1.0 / 24.0 : 0.0);
    double H = (J - Int(J) + 0.5) * DOS_PI;  // local civil time from midnight, as an angle
    double S = p * tierra.MovDiario + tierra.LongEpoca + H;
    double adelanto = o.ZonaHoraria / 24.0 + (o.HorarioVerano ? 1.0 / 24.0 : 0.0);
    double ts = (S - DOS_PI * adelanto) - o.Longitud;
    if (ts > DOS_PI) ts = ts - DOS_PI;
    return ts;
}

double LongitudMedia(double jd, const ElementosOrbita& p) {
    double L = (jd + ORIGEN_ELEMENTOS) * p.MovDiario + p.LongEpoca;
    L = L - Int(L / DOS_PI) * DOS_PI;
    return L + 2 * p.Excentricidad * std::sin(L - p.LongPerihelio);
}

PosicionSol HallaSol(double jd, const ElementosOrbita& tierra) {
    PosicionSol r;
    double lambda = LongitudMedia(jd, tierra);
    r.tierra.LongGeo = lambda;
    EclipticaAEcuatorial(lambda, r.tierra.AscRecta, r.tierra.Declinacion);
    Vector3f v = AngulosAVector(r.tierra.AscRecta, r.tierra.Declinacion);
    r.tierra.x = v.x;
    r.tierra.y = v.y;
    r.tierra.z = v.z;
    r.sol.SolX = std::sin(lambda + PI);
    r.sol.SolZ = std::cos(lambda + PI);
    return r;
}

}  // namespace vedrano
