// The rotations of the state's instant and place: precession to the date
// and the turn from the equator to the horizon, with the state's cache of
// their sines, cosines and matrices.
#pragma once

#include "app/estado/Estado.h"
#include "astro/Coordenadas.h"

namespace vedrano {

// Sets PrecZeta, PrecZ and PrecTheta for FechaJuliana.
void HallaPrecesion(Estado& e);

// Whether catalogue directions are carried to the date: the precession
// switch, or the precise model, which always refers them to the date.
bool PrecesaCatalogo(const Estado& e);

// Precesses a catalogue direction to the date when PrecesaCatalogo says
// so; otherwise leaves it as it is. The rigorous rotation by zeta, theta
// and z is applied as one matrix, rebuilt whenever the angles change.
void AplicaPrecesion(const Estado& e, Vector3f& v);

// Makes sure e.Derivados.p holds the precession matrix of the state's angles;
// in the precise model, the rotation from J2000 to the true equator and
// equinox of the date (ERFA's long-term precession and nutation).
void PreparaPrecesion(const Estado& e);

// Rotates an equatorial direction into the horizon frame of the state's
// sidereal time and latitude: X toward the west, Y toward the north point,
// Z toward the zenith (the sine of the altitude).
Vector3f EcuatorialAHorizontal(const Estado& e, const Vector3f& v);

// Makes sure e.Derivados.horizonte is the rotation of the state's sidereal
// time and latitude.
void PreparaHorizonte(const Estado& e);

}  // namespace vedrano
