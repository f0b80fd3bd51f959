// Local sidereal time and the Sun's place, from the mean elements of the
// Earth's orbit (the solar-system table's record 3).
#pragma once

#include "astro/Cuerpos.h"

namespace vedrano {

// TiempoSidereoLocal
//   Given:   jd      the instant, Julian day (UT)
//            o       the observer: longitude (west positive), time zone
//                    and summer time
//            tierra  the Earth's mean daily motion and mean longitude
//   Returns: the local sidereal time, radians: the days elapsed in the
//            current cycle of 365.2422 days times the Earth's mean motion,
//            plus its mean longitude, plus the local civil time as an angle
//            from midnight, less the zone and summer hour as an angle, less
//            the longitude; 2pi subtracted once when above 2pi (the value
//            may stay outside [0, 2pi); its readers take sines or reduce).
double TiempoSidereoLocal(double jd, const Observador& o, const ElementosOrbita& tierra);

// LongitudMedia
//   Given:   jd  the instant, Julian day (UT)
//            p   a body's mean elements
//   Returns: the mean longitude at jd reduced to [0, 2pi), plus the
//            equation of the centre to first order, 2 e sin(L - perihelion).
double LongitudMedia(double jd, const ElementosOrbita& p);

// The Sun of one instant: the Earth's heliocentric ecliptic longitude,
// equatorial angles and direction (LongGeo, AscRecta, Declinacion, x, y, z;
// the screen point is left at zero), and the Sun seen from the Earth.
struct PosicionSol {
    PosicionCuerpo tierra;
    DireccionSol sol;
};

// HallaSol
//   Given:   jd      the instant, Julian day (UT)
//            tierra  the mean elements of the Earth's orbit
//   Returns: the Earth's longitude (LongitudMedia), its right ascension and
//            declination on the ecliptic (EclipticaAEcuatorial) and unit
//            vector, and sin and cos of that longitude plus pi.
PosicionSol HallaSol(double jd, const ElementosOrbita& tierra);

}  // namespace vedrano
