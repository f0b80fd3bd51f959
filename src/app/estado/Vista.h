// The view over the state: where the centre of the picture looks, and the
// scale of the picture.
#pragma once

#include "app/estado/Estado.h"

namespace vedrano {

// The turned azimuth the projection rotates by: DireccionGirada =
// Direccion - pi. FijaVista runs it; the pass runs it once more.
void GiraDireccion(Estado& e);

// Sets the view's direction (azimuth from north through east) and elevation,
// radians, and turns the direction.
void FijaVista(Estado& e, double direccion, double elevacion);

// Sets the zoom and the scale for it, for the picture size of the last
// scale set (none before the first: then the 4:3 scale). The pass sets the
// scale again for the picture it draws.
void FijaZoom(Estado& e, float zoom);

// Sets the orientation (1 the sky as seen, 2 inverted) and the scale
// for it, as FijaZoom does.
void FijaOrientacion(Estado& e, int16_t orientacion);

// The user scale from the zoom and the orientation flag, and the depth
// threshold below which a point cannot fall inside the picture. With a
// picture size the scale extends on the longer side so that one unit stays
// the same number of pixels across and down; without one (or at 4:3) it
// spans exactly +-1.7333 x +-1.3 at zoom 1.
// The picture size is kept in AnchoImagen and AltoImagen.
void AjustaEscala(Estado& e, int anchoPixeles = 0, int altoPixeles = 0);

}  // namespace vedrano
