// Test helper: a picture with nothing but what the test turns back on.
#pragma once
#include "app/estado/Estado.h"

namespace vedrano {

// Every layer off, both levels 0 and no names, on a state the test has
// already placed in time and space.
inline void ApagaCapas(Estado& e) {
    e.Capas = Interruptores{};
    e.Capas.Sol = e.Capas.Luna = e.Capas.Horiz = 0;
    e.Capas.Plane.fill(0);
    e.NivelEstrellas = 0;
    e.NivelConstelaciones = 0;
    e.IdEstrellas = 0;
    e.IdentificarObjetos = false;
}

}  // namespace vedrano
