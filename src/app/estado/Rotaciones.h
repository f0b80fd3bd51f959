// The rotations of the state's instant and place: precession to the date
// and the turn from the equator to the horizon, with the state's cache of
// their matrices (app/estado/Derivados.h).
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
// and z is applied as one matrix: the cached one while it is the state's,
// otherwise one built for this call.
void AplicaPrecesion(const Estado& e, Vector3f& v);

// Rotates an equatorial direction into the horizon frame of the state's
// sidereal time and latitude: X toward the west, Y toward the north point,
// Z toward the zenith (the sine of the altitude).
Vector3f EcuatorialAHorizontal(const Estado& e, const Vector3f& v);

// The precession matrix of the state (the precise model's: the rotation
// from J2000 to the true equator and equinox of the date, ERFA's long-term
// precession and nutation) and the horizon rotation of its sidereal time
// and latitude. PrecesionVigente and HorizonteVigente tell whether `r`
// holds them for the state's fields; Llena... computes them into `r`
// whatever it held; Prepara... refreshes the state's own cache when it is
// out of date.
bool PrecesionVigente(const DerivadosRotacion& r, const Estado& e);
void LlenaPrecesion(DerivadosRotacion& r, const Estado& e);
void PreparaPrecesion(Estado& e);
bool HorizonteVigente(const DerivadosRotacion& r, const Estado& e);
void LlenaHorizonte(DerivadosRotacion& r, const Estado& e);
void PreparaHorizonte(Estado& e);

}  // namespace vedrano
