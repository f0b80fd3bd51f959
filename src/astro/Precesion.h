// Precession of catalogue directions from the catalogue epoch to the date.
#pragma once

#include "app/estado/Estado.h"
#include "astro/Coordenadas.h"

namespace vedrano {

// The angles zeta, z and theta for FechaJuliana (seconds of arc
// polynomials in centuries from 1900.0, turned into radians).
void HallaPrecesion(Estado& e);

// Precesses a catalogue direction to the date when PrecesaCatalogo says
// so; otherwise leaves it as it is. The rigorous rotation by zeta, theta
// and z is applied as one matrix, rebuilt whenever the angles change.
void AplicaPrecesion(const Estado& e, Vector3f& v);

// Makes sure e.Derivados.p holds the precession matrix of the state's angles;
// in the precise model, the rotation from J2000 to the true equator and
// equinox of the date (ERFA's long-term precession and nutation).
void PreparaPrecesion(const Estado& e);

// Whether catalogue directions are carried to the date: the precession
// switch, or the precise model, which always refers them to the date.
bool PrecesaCatalogo(const Estado& e);

}  // namespace vedrano
