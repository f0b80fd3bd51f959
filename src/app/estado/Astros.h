// The sidereal time, the Sun, the Moon and the planets at the state's
// instant and place, written into the state's records.
#pragma once
#include <cstdint>

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// The observer of the state: its place, zone and summer time.
Observador ObservadorDe(const Estado& e);

// Sets TiempoSidereo for FechaJuliana and the place (TiempoSidereoLocal
// with the Earth's record 3), then runs HallaSol.
void HallaTiempoSidereo(Estado& e, const TablaPlanetas& planetas);

// Sets TiempoSidereo as given, not derived from the instant and place: for
// the calculator's operations and the tests that take a sidereal time as
// their input. Nothing else in the program sets it this way.
void FijaTiempoSidereo(Estado& e, double sidereo);

// The Earth's longitude, equatorial angles and direction into Planetas[3]
// (its screen point kept), and the Sun's direction into SolX and SolZ.
void HallaSol(Estado& e, const TablaPlanetas& planetas);

// LongGeo, AscRecta and Declinacion of record `indice` at FechaJuliana.
// The Sun it needs is computed for the same instant and handed over as a
// value, so no earlier HallaSol is required. An index outside 0..11 raises
// ErrorEjecucion 9.
void HallaPlaneta(Estado& e, const TablaPlanetas& planetas, int16_t indice);

// AscRecta and Declinacion of the Moon (record 11) at FechaJuliana, lowered
// for the state's latitude.
void HallaLuna(Estado& e);

// The Sun seen from the Earth into record 10 (right ascension, declination
// and direction), from the Earth's record 3 as HallaSol left it.
void HallaSolAparente(Estado& e);

}  // namespace vedrano
