// Angles and sky directions. A direction is a unit vector of three 32-bit
// floats: x = -sin a |cos d|, y = sin d, z = cos a |cos d| (y toward the
// pole of the system, z toward the origin of a, a increasing toward -x).
#pragma once

#include "app/estado/Estado.h"

namespace vedrano {

struct Vector3f {
    float x = 0, y = 0, z = 0;
};

// Angle of the point (x, y) in [0, 2pi). x = 0 raises ErrorEjecucion 11
// (6 when y is 0 too), as the division it starts with.
double ArcoTangente(double y, double x);

// The unit vector of a longitude-like angle a and latitude-like angle d,
// each component rounded to 32 bits.
Vector3f AngulosAVector(double a, double d);

// Angles of a unit vector. A vector exactly at a pole cannot be converted:
// the function then returns false and leaves a and d as they were (d is
// written only when the arc sine succeeded).
bool VectorAAngulos(const Vector3f& v, double& a, double& d);

// Right ascension and declination of a point of the ecliptic at longitude
// lambda (latitude 0), with the program's fixed obliquity.
void EclipticaAEcuatorial(double lambda, double& ar, double& dec);

// Rotates an equatorial direction into the horizon frame of the state's
// sidereal time and latitude: X toward the west, Y toward the north point,
// Z toward the zenith (the sine of the altitude).
Vector3f EcuatorialAHorizontal(const Estado& e, const Vector3f& v);

// Makes sure the sines and cosines of the sidereal time and latitude in
// e.Derivados are those of the state.
void PreparaHorizonte(const Estado& e);

}  // namespace vedrano
