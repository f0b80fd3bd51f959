// The target of a search: the place of the object on line `linea` of the
// search form's category `categoria` (0..11 in the order of the general
// index), into ObjetivoAR and ObjetivoDEC.
#pragma once
#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"

namespace vedrano {

// Both target values start at 0.0 and stay so when there is nothing to
// centre: no line selected (-1), a reading-only category (7..11), or the
// Earth. The Sun, the Moon and the planets are computed for the state's
// instant; the Moon also arms the one-shot time correction of the
// centring. A line at or above its table's bound raises ErrorEjecucion 9.
void FijaObjetivo(Estado& e, const Catalogos& c, int categoria, int linea);

// Whether the objects of a category can be centred (the lists 7..11 are for
// reading only).
constexpr bool CategoriaCentrable(int categoria) { return categoria >= 0 && categoria <= 6; }

}  // namespace vedrano
