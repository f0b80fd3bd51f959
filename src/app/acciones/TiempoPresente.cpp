#include "app/acciones/TiempoPresente.h"

#include "app/estado/Tiempo.h"
#include "platform/Reloj.h"

namespace vedrano {

void TiempoActual(Estado& e, const TablaPlanetas& planetas, double fechaHoraUniversal) {
    TiempoDesdeReloj(e, planetas, RelojLocal(e, fechaHoraUniversal));
}

void TiempoActual(Estado& e, const TablaPlanetas& planetas) {
    TiempoActual(e, planetas, plataforma::FechaHoraUniversal());
}

}  // namespace vedrano
