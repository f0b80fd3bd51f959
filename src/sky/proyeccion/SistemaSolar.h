// The Sun, the Moon and the planets by the model the user chose: the
// classic one of the solar-system table, or the precise one on ERFA.
#pragma once
#include <cstdint>

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// Writes the place of body `cuerpo` (1..9 planets, 10 Sun, 11 Moon; never 3,
// the Earth's record) into e.Planetas. The classic model needs the Sun of
// the same instant (ActualizaTiempo). The precise model gives the apparent
// place of the date, the Moon as seen from the observer.
void HallaCuerpo(Estado& e, const TablaPlanetas& t, int16_t cuerpo);

// Every body: the planets but the Earth, then the Sun and the Moon.
void HallaSistemaSolar(Estado& e, const TablaPlanetas& t);

}  // namespace vedrano
