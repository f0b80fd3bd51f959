// Precession of catalogue directions from the catalogue epoch to the date.
#pragma once

#include "app/Estado.h"
#include "astro/Coordenadas.h"

namespace vedrano {

// The angles zeta, z and theta for FechaJuliana (seconds of arc
// polynomials in centuries from 1900.0, turned into radians).
void HallaPrecesion(Estado& e);

// Precesses a catalogue direction to the date when the precession switch is
// on; otherwise leaves it as it is. The rigorous rotation by zeta, theta
// and z is applied as one matrix, rebuilt whenever the angles change.
void AplicaPrecesion(const Estado& e, Vector3f& v);

// Makes sure e.Derivados.p holds the precession matrix of the state's angles.
void PreparaPrecesion(const Estado& e);

}  // namespace vedrano
