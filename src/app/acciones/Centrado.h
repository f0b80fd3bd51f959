// Centring the view on a target, as the search and a click on the sky do
// it: refused with its message when the target never rises, otherwise the
// situation saved to "Temporal.wrk" (what "Restaurar situación anterior"
// reads back) before the time and the view move.
#pragma once

#include "app/base/InterfazMensajes.h"
#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// Centres the view on ObjetivoAR, ObjetivoDEC: refuses with its message a
// target that never rises at the state's latitude; otherwise saves the
// situation to "Temporal.wrk", moves the time so that the target reaches
// the meridian, aims the view at its culmination and turns the azimuth.
// Returns true when the view moved; the caller redraws.
bool CentraObjeto(Estado& e, const TablaPlanetas& planetas, InterfazMensajes& m);

// The centring of a left click: the target under the screen point, when
// the point is on the sphere.
bool CentraPunto(Estado& e, const TablaPlanetas& planetas, InterfazMensajes& m, float X, float Y);

}  // namespace vedrano
