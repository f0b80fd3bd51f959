// The precise model ("Precisión alta") of the Sun, the Moon and the
// planets, on ERFA: value in, value out. Angles in radians, the instant a
// Julian day in Universal Time, longitudes west positive as everywhere in
// the program.
#pragma once

namespace vedrano {

// A place: right ascension and declination, and the distance in au.
struct LugarPreciso {
    double ar = 0, dec = 0, distancia = 0;
};

// Delta T = TT - UT in seconds for a Julian day in UT.
// Follows: Espenak and Meeus, "Five Millennium Canon of Solar Eclipses"
// (NASA/TP-2006-214141), the polynomial expressions of Delta T.
double DeltaT(double jdUT);

// What every body of one instant shares: TT, the Earth's heliocentric
// position and velocity (au, au/day) and the rotation to the date.
struct InstantePreciso {
    double jdUT = 0, tt = 0;
    double tierra[2][3] = {};
    double matriz[3][3] = {};
};

// Prepares the shared part of an instant (Julian day in UT).
InstantePreciso PreparaInstante(double jdUT);

// Geocentric apparent place of body 1..11 of the solar-system table
// (1..8 planets, 9 Pluto, 10 Sun, 11 Moon; 3, the Earth, gives a zero
// place), true equator and equinox of the date.
// Follows: eraPlan94 with light time for the planets; the Earth as the
// Earth-Moon barycentre of eraPlan94 less the Moon's share (eraMoon98);
// eraMoon98 for the Moon; Pluto from JPL's mean elements (Standish, table
// 2a/2b, 3000 BC - 3000 AD) with Kepler's equation solved; annual
// aberration eraAb; precession eraLtpb and nutation eraNum00b.
// Outside 1000-3000 AD eraPlan94 reports a degraded fit, not a failure:
// the place is still given, with the error growing smoothly with the
// distance from that range.
LugarPreciso LugarAparente(int cuerpo, double jdUT);
LugarPreciso LugarAparente(int cuerpo, const InstantePreciso& instante);

// The rotation from the catalogue frame (J2000 mean equator, ICRS-aligned)
// to the true equator and equinox of the date, in ERFA's axes (x to the
// equinox, z to the pole): eraNum00b x eraLtpb.
void MatrizFecha(double jdUT, double r[3][3]);

// Local apparent sidereal time: Greenwich mean sidereal time (IAU 2006)
// plus the equation of the equinoxes (IAU 2000B nutation), less the
// longitude (west positive). In [0, 2pi).
double TiempoSidereoAparente(double jdUT, double longitudOeste);

// The place seen from the observer: the geocentric place moved by the
// parallax of a station at `latitud` on the WGS84 ellipsoid (sea level)
// whose local apparent sidereal time is `tsl`.
LugarPreciso Topocentrico(const LugarPreciso& geo, double latitud, double tsl);

// Atmospheric refraction for a true altitude (radians): the amount to add,
// in radians, at 10 degrees C and 1010 hPa.
// Follows: Saemundsson, Sky and Telescope 72 (1986) 70, as given by Meeus,
// Astronomical Algorithms (1998) eq. 16.4. Below -1 degree, where the
// formula no longer holds, the lift fades linearly to nothing at -3.
double Refraccion(double altura);

// A catalogue direction of J2000 moved by its proper motion to a Julian
// day: pmAR is the motion along the parallel (d(alpha)/dt times cos delta,
// as Hipparcos gives it) and pmDec along the meridian, radians per Julian
// year. The star moves on a straight line across the sky's tangent space,
// as eraStarpm moves a star of unknown distance and radial velocity.
void MovimientoPropio(double& ar, double& dec, double pmAR, double pmDec, double jd);

}  // namespace vedrano
