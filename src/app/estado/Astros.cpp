#include "app/estado/Astros.h"

#include "app/base/ErrorEjecucion.h"
#include "astro/Planetas.h"
#include "astro/Sidereo.h"

namespace vedrano {

Observador ObservadorDe(const Estado& e) {
    return {e.Longitud, e.Latitud, e.ZonaHoraria, e.HorarioVerano};
}

void HallaTiempoSidereo(Estado& e, const TablaPlanetas& planetas) {
    e.TiempoSidereo.Fija(LlaveEstado{}, TiempoSidereoLocal(e.FechaJuliana, ObservadorDe(e), planetas[3]));
    HallaSol(e, planetas);
}

void FijaTiempoSidereo(Estado& e, double sidereo) { e.TiempoSidereo.Fija(LlaveEstado{}, sidereo); }

void HallaSol(Estado& e, const TablaPlanetas& planetas) {
    PosicionSol s = HallaSol(e.FechaJuliana, planetas[3]);
    PosicionCuerpo& tierra = e.Planetas[3];
    tierra.LongGeo = s.tierra.LongGeo;
    tierra.AscRecta = s.tierra.AscRecta;
    tierra.Declinacion = s.tierra.Declinacion;
    tierra.x = s.tierra.x;
    tierra.y = s.tierra.y;
    tierra.z = s.tierra.z;
    e.SolX = s.sol.SolX;
    e.SolZ = s.sol.SolZ;
}

void HallaPlaneta(Estado& e, const TablaPlanetas& planetas, int16_t indice) {
    if (indice < 0 || indice > 11) throw ErrorEjecucion(ErrSubindice);
    // The Sun of the same instant is passed as a value rather than read from
    // SolX and SolZ, so the result never depends on an earlier HallaSol.
    DireccionSol sol = HallaSol(e.FechaJuliana, planetas[3]).sol;
    PosicionCuerpo p = HallaPlaneta(e.FechaJuliana, planetas[static_cast<std::size_t>(indice)], sol);
    PosicionCuerpo& r = e.Planetas[static_cast<std::size_t>(indice)];
    r.LongGeo = p.LongGeo;
    r.AscRecta = p.AscRecta;
    r.Declinacion = p.Declinacion;
}

void HallaLuna(Estado& e) {
    PosicionCuerpo p = HallaLuna(e.FechaJuliana, e.Latitud);
    e.Planetas[11].AscRecta = p.AscRecta;
    e.Planetas[11].Declinacion = p.Declinacion;
}

void HallaSolAparente(Estado& e) {
    PosicionCuerpo s = HallaSolAparente(e.Planetas[3]);
    PosicionCuerpo& sol = e.Planetas[10];
    sol.AscRecta = s.AscRecta;
    sol.Declinacion = s.Declinacion;
    sol.x = s.x;
    sol.y = s.y;
    sol.z = s.z;
}

}  // namespace vedrano
