// Local sidereal time and the Sun's place from the Earth's orbit record.
#pragma once

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// Sets TiempoSidereo from FechaJuliana, the place and the time zone, using
// the Earth's mean motion and mean longitude (record 3), then runs HallaSol.
void HallaTiempoSidereo(Estado& e, const TablaPlanetas& planetas);

// The Earth's heliocentric ecliptic longitude (equation of the centre to
// first order), its equatorial angles and direction into Planetas[3], and
// the Sun's direction seen from the Earth into SolX and SolZ.
void HallaSol(Estado& e, const TablaPlanetas& planetas);

// Mean longitude of a record at the state's instant, reduced to [0, 2pi),
// plus the equation of the centre to first order.
double LongitudMedia(const Estado& e, const ElementosPlaneta& p);

}  // namespace vedrano
