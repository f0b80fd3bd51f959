// Test helper: a picture with nothing but what the test turns back on.
#pragma once
#include <cmath>

#include "app/estado/Estado.h"
#include "app/estado/Rotaciones.h"
#include "app/estado/Vista.h"

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

// Turns the view toward a direction of the date, at the state's instant
// and place (the horizon frame: x west, y north, z zenith).
inline void MiraA(Estado& e, const Vector3f& v) {
    const Vector3f h = EcuatorialAHorizontal(e, v);
    const double direccion = std::atan2(-double{h.x}, double{h.y});
    FijaVista(e, direccion < 0 ? direccion + 2 * M_PI : direccion, std::asin(double{h.z}));
}

}  // namespace vedrano
