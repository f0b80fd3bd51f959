#include "astro/Sidereo.h"

#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "astro/Coordenadas.h"

namespace vedrano {

namespace {

constexpr double CICLO = 365.2422;  // days of the sidereal-time cycle

double HorasDeAdelanto(const Estado& e) {
    return e.ZonaHoraria / 24.0 + (e.HorarioVerano ? 1.0 / 24.0 : 0.0);
}

}  // namespace

void HallaTiempoSidereo(Estado& e, const TablaPlanetas& planetas) {
    const ElementosPlaneta& tierra = planetas[3];
    double t = e.FechaJuliana + ORIGEN_ELEMENTOS + e.Longitud / DOS_PI;
    double p = (t / CICLO - Int(t / CICLO)) * CICLO;
    double J = (e.FechaJuliana + e.ZonaHoraria / 24.0) + (e.HorarioVerano ? 1.0 / 24.0 : 0.0);
    double H = (J - Int(J) + 0.5) * DOS_PI;  // local civil time from midnight, as an angle
    double S = p * tierra.MovDiario + tierra.LongEpoca + H;
    double ts = (S - DOS_PI * HorasDeAdelanto(e)) - e.Longitud;
    if (ts > DOS_PI) ts = ts - DOS_PI;
    e.TiempoSidereo = ts;
    HallaSol(e, planetas);
}

double LongitudMedia(const Estado& e, const ElementosPlaneta& p) {
    double L = (e.FechaJuliana + ORIGEN_ELEMENTOS) * p.MovDiario + p.LongEpoca;
    L = L - Int(L / DOS_PI) * DOS_PI;
    return L + 2 * p.Excentricidad * std::sin(L - p.LongPerihelio);
}

void HallaSol(Estado& e, const TablaPlanetas& planetas) {
    PosicionCuerpo& tierra = e.Planetas[3];
    double lambda = LongitudMedia(e, planetas[3]);
    tierra.LongGeo = lambda;
    EclipticaAEcuatorial(lambda, tierra.AscRecta, tierra.Declinacion);
    Vector3f v = AngulosAVector(tierra.AscRecta, tierra.Declinacion);
    tierra.x = v.x;
    tierra.y = v.y;
    tierra.z = v.z;
    e.SolX = std::sin(lambda + PI);
    e.SolZ = std::cos(lambda + PI);
}

}  // namespace vedrano
