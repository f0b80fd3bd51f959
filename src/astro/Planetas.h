// Places of the planets, the Moon and the Sun by the compact models of the
// solar-system table: mean elements with the equation of the centre to first
// order for the planets, a short trigonometric series for the Moon.
#pragma once

#include "astro/Cuerpos.h"

namespace vedrano {

// HallaPlaneta
//   Given:   jd  the instant, Julian day (UT)
//            p   the planet's mean elements
//            s   the Sun seen from the Earth at the same instant (HallaSol)
//   Returns: LongGeo, the geocentric ecliptic longitude; AscRecta and
//            Declinacion of that point of the ecliptic, with the ecliptic
//            latitude then added to the declination. The rest is zero.
//   Follows: the heliocentric longitude l = atan2(cos i sin u, cos u) + node
//            (u the argument of latitude), the radius a (1 - e cos(l - perihelion))
//            taken with l, and the Earth at 1 au in the direction s. Kepler's
//            equation is not solved.
PosicionCuerpo HallaPlaneta(double jd, const ElementosOrbita& p, const DireccionSol& s);

// HallaLuna
//   Given:   jd       the instant, Julian day (UT)
//            latitud  the observer's latitude, radians
//   Returns: AscRecta and Declinacion of the Moon (the rest zero), the
//            declination lowered by latitud / 1.65 degrees to stand for the
//            parallax.
//   Follows: the low-precision lunar theory of the main terms in the four
//            fundamental arguments (cf. Meeus, Astronomical Algorithms,
//            ch. 47, the largest terms), with two terms kept as the program
//            has them: 0.214 sin 2M (twice the Sun's anomaly) and the
//            argument 2D + F - M' used twice in the latitude.
PosicionCuerpo HallaLuna(double jd, double latitud);

// HallaSolAparente
//   Given:   tierra  the Earth's place of HallaSol
//   Returns: the Sun seen from the Earth: right ascension + pi (less 2pi
//            when above 2pi), declination negated, and their unit vector.
PosicionCuerpo HallaSolAparente(const PosicionCuerpo& tierra);

}  // namespace vedrano
