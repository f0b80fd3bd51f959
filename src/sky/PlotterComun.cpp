#include "app/base/ErrorEjecucion.h"
#include "sky/Plotters.h"

namespace vedrano {

void AjustaTrazo(Contexto& x, const PuntoProyectado& p, int16_t& estiloRecordado) {
    int16_t estilo = p.Z < 0 ? 5 : 0;
    if (estilo != estiloRecordado) {
        estiloRecordado = estilo;
        x.l.FijaEstiloTrazo(estilo);
    }
}

int CuentaNivel(const TablaCuentas& t, int nivel) {
    if (nivel < 0 || nivel > 7) throw ErrorEjecucion(ErrSubindice);
    return t[static_cast<std::size_t>(nivel)];
}

}  // namespace vedrano
