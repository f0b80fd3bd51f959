// Places of the planets, the Moon and the Sun at the state's instant.
#pragma once
#include <cstdint>

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// Geocentric ecliptic longitude, right ascension and declination of record
// `indice` from its mean elements (equation of the centre to first order,
// the Earth at 1 AU in the direction SolX, SolZ; the ecliptic latitude is
// added to the declination). HallaSol must have run for the same instant.
// An index outside 0..11 raises ErrorEjecucion 9.
void HallaPlaneta(Estado& e, const TablaPlanetas& planetas, int16_t indice);

// Right ascension and declination of the Moon (record 11) from a short
// series in the four fundamental lunar arguments, lowered with the
// observer's latitude to stand for the parallax.
void HallaLuna(Estado& e);

// The Sun as seen from the Earth, opposite to the Earth's direction of
// record 3, into record 10 with its direction vector.
void HallaSolAparente(Estado& e);

}  // namespace vedrano
