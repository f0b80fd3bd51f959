// The present moment as the program's instant: the "now" of the date and
// animation forms and of real-time motion.
#pragma once

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// Sets FechaJuliana to the present moment, cut to whole minutes, and
// refreshes: a Universal-Time clock reading (days since 30 December 1899)
// made the observer's civil time (configured zone and summer time), then
// taken back by the same amount. The computer's own zone plays no part,
// wherever the computer is.
void TiempoActual(Estado& e, const TablaPlanetas& planetas, double fechaHoraUniversal);

// The same with the computer's clock.
void TiempoActual(Estado& e, const TablaPlanetas& planetas);

}  // namespace vedrano
