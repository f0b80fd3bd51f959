// The view over the state: where the centre of the picture looks.
#pragma once

#include "app/estado/Estado.h"

namespace vedrano {

// The turned azimuth the projection rotates by: DireccionGirada =
// Direccion - pi. Every writer of Direccion runs it afterwards.
void GiraDireccion(Estado& e);

// Sets the view's direction (azimuth from north through east) and elevation,
// radians, and turns the direction.
void FijaVista(Estado& e, double direccion, double elevacion);

}  // namespace vedrano
