// Angles and sky directions. A direction is a unit vector of three 32-bit
// floats: x = -sin a |cos d|, y = sin d, z = cos a |cos d| (y toward the
// pole of the system, z toward the origin of a, a increasing toward -x).
#pragma once

#include "astro/Vector3f.h"

namespace vedrano {

// ArcoTangente
//   Given:   y, x  a point of the plane
//   Returns: its angle in [0, 2pi): atan(y / x), plus pi for x < 0, plus
//            2pi for x >= 0 and y < 0. x = 0 raises ErrorEjecucion 11 (6
//            when y is 0 too), as the division it starts with.
double ArcoTangente(double y, double x);

// AngulosAVector
//   Given:   a  a longitude-like angle (right ascension), radians
//            d  a latitude-like angle (declination), radians
//   Returns: the unit vector of the direction, each component rounded to
//            32 bits.
Vector3f AngulosAVector(double a, double d);

// VectorAAngulos
//   Given:   v     a unit vector
//   Returned: a, d its angles: d the arc sine of y, a the arc cosine of
//            z / |cos d| (kept off +-1), turned to 2pi - a when x > 0.
//   Returns: false for a vector exactly at a pole, which cannot be
//            converted: a is then left as it was (d too, unless its arc
//            sine succeeded).
bool VectorAAngulos(const Vector3f& v, double& a, double& d);

// EclipticaAEcuatorial
//   Given:   lambda  a longitude on the ecliptic (latitude 0), radians
//   Returned: ar, dec  its right ascension and declination, with the fixed
//            obliquity cos e = 0.9175234, sin e = 0.3976818.
void EclipticaAEcuatorial(double lambda, double& ar, double& dec);

// The rotation from the equator to the horizon: sines and cosines of the
// local sidereal time and of the latitude.
struct RotacionHorizonte {
    double sidereo = 0, latitud = 0;
    double cs = 1, ss = 0, cf = 1, sf = 0;
};

// HallaRotacionHorizonte
//   Given:   sidereo  the local sidereal time, radians
//            latitud  the observer's latitude, radians
//   Returns: the rotation EcuatorialAHorizontal applies.
RotacionHorizonte HallaRotacionHorizonte(double sidereo, double latitud);

// EcuatorialAHorizontal
//   Given:   r  the rotation of a sidereal time and latitude
//            v  an equatorial direction of the date
//   Returns: the direction in the horizon frame: X toward the west, Y
//            toward the north point, Z toward the zenith (the sine of the
//            altitude). Each component is rounded to 32 bits before the
//            next step uses it.
Vector3f EcuatorialAHorizontal(const RotacionHorizonte& r, const Vector3f& v);

}  // namespace vedrano
