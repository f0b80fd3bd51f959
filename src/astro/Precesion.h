// Precession of catalogue directions from the catalogue epoch to the date,
// as angles and as a rotation of the program's frame (x = -sin a cos d,
// y = sin d, z = cos a cos d).
#pragma once

#include "astro/Coordenadas.h"

namespace vedrano {

// The three precession angles, radians.
struct AngulosPrecesion {
    double zeta = 0, z = 0, theta = 0;
};

// A rotation of the program's frame, applied as r.m times the column (x, y, z).
struct Rotacion {
    double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

// HallaPrecesion
//   Given:   jd  the instant, Julian day (UT)
//   Returns: zeta, z and theta from the polynomials in T, Julian centuries
//            of 36524.22 days from 1900.0 (T = (jd - 2415020.5) / 36524.22 - 1):
//              zeta  = 2305.646 T + 0.302 T^2 + 0.018 T^3
//              z     = zeta + 0.791 T^2 + 0.001 T^3
//              theta = 2003.829 T - 0.426 T^2 - 0.042 T^3   (seconds of arc)
//   Follows: Newcomb's precession with the starting epoch 2000.0 (T0 = 1
//            century from 1900: 2304.250 + 1.396 T0 = 2305.646 and
//            2004.682 - 0.853 T0 = 2003.829).
//   Reference: Explanatory Supplement to the Astronomical Ephemeris (1961);
//            J. Meeus, Astronomical Formulae for Calculators, ch. 14.
AngulosPrecesion HallaPrecesion(double jd);

// MatrizPrecesion
//   Given:   a  the precession angles
//   Returns: the rotation Rz(z) Ry(theta) Rz(zeta) carried into the
//            program's frame: the closed form of
//              A = cos d0 sin(a0 + zeta)
//              B = cos th cos d0 cos(a0 + zeta) - sin th sin d0
//              C = sin th cos d0 cos(a0 + zeta) + cos th sin d0
//              a = atan2(A, B) + z,  d = asin C
Rotacion MatrizPrecesion(const AngulosPrecesion& a);

// MatrizFechaPrograma
//   Given:   jd  the instant, Julian day (UT)
//   Returns: the precise model's rotation from J2000 to the true equator
//            and equinox of the date (MatrizFecha: ERFA's long-term
//            precession and nutation) in the program's frame.
Rotacion MatrizFechaPrograma(double jd);

// Rota
//   Given:   m  a rotation matrix
//            v  a direction
//   Returns: m v, computed in 64 bits and rounded to 32 (cf. eraRxp).
Vector3f Rota(const double m[3][3], const Vector3f& v);

}  // namespace vedrano
