// Pointing at the sky: what lies under the cursor, and the arithmetic of
// centring the view on a target by moving the time until it stands on the
// meridian.
#pragma once
#include <string>

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// The four texts of the cursor panel for a screen point (user scale):
// "A.R. = ", "DEC. = ", "Altitud = ", "Azimut = " and their values, or a
// single blank each for a point off the sphere. Leaves the altitude and
// azimuth in the state's cursor values.
struct TextosCursor {
    std::string AR, DEC, Altitud, Azimut;  // Windows-1252
};
TextosCursor InformeCursor(Estado& e, float X, float Y);

// Whether the target (ObjetivoAR, ObjetivoDEC) ever rises at the state's
// latitude (it may just graze the horizon).
bool ObjetivoVisible(const Estado& e);

// The arithmetic of centring a visible target: moves the time so that it
// reaches the meridian, aims the view at its culmination and turns the
// azimuth. Saving the situation first is the caller's (app/acciones).
void LlevaObjetivoAlMeridiano(Estado& e, const TablaPlanetas& planetas);

// The target under a screen point (user scale), left in ObjetivoAR and
// ObjetivoDEC; false, leaving them, off the sphere.
bool ObjetivoEnPunto(Estado& e, float X, float Y);

// A place on the horizon sphere: altitude and azimuth, radians.
struct PuntoHorizonte {
    double altitud = 0, azimut = 0;
};

// The horizon place under a screen point (user scale); false off the sphere.
bool HorizonteEn(const Estado& e, float X, float Y, PuntoHorizonte& h);

// Turns the view (Direccion, Elevacion) so that the horizon place `h`
// shows at the screen point (X, Y): the grip of a drag and the fixed point
// of a zoom under the pointer. Elevacion stays within 0..pi/2 as the arrows
// keep it, so near the limits the place follows only in azimuth. Returns
// false, changing nothing, when (X, Y) is off the sphere.
bool LlevaPunto(Estado& e, const PuntoHorizonte& h, float X, float Y);

// The zoom after `pasos` steps of 0.5 (negative zooms out), within 1..15.
float ZoomTrasPasos(float zoom, int pasos);

}  // namespace vedrano
