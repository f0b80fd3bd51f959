// The values the astronomy passes around: an observer, the mean orbital
// elements of one body, and the computed place of a body. Angles are
// radians; the instant is a Julian day in Universal Time.
#pragma once

namespace vedrano {

// The Julian day plus this offset is the time of the elements' origin; every
// computation from the solar-system elements uses the same value.
inline constexpr double ORIGEN_ELEMENTOS = 31739.5;

// Where and by which clock the sky is seen: longitud west positive, latitud
// north positive, the time zone in hours east positive (32 bits, as kept)
// and whether summer time adds its hour.
struct Observador {
    double Longitud = 0, Latitud = 0;
    float ZonaHoraria = 0;
    bool HorarioVerano = false;
};

// Mean elements of one orbit at the elements' origin.
struct ElementosOrbita {
    double MovDiario = 0;      // mean daily motion n, radians per day
    double LongEpoca = 0;      // mean longitude at the origin, radians
    double LongPerihelio = 0;  // longitude of perihelion, radians
    double Excentricidad = 0;
    double SemiejeMayor = 0;   // astronomical units
    double Inclinacion = 0;    // radians
    double LongNodo = 0;       // longitude of the ascending node, radians
};

// A body's place: geocentric ecliptic longitude, right ascension and
// declination, the direction as a 32-bit unit vector and the screen point
// the projection made of it.
struct PosicionCuerpo {
    double LongGeo = 0, AscRecta = 0, Declinacion = 0;
    float x = 0, y = 0, z = 0;
    float X = 0, Y = 0, Z = 0;
};

// The Sun seen from the Earth, in the ecliptic plane: sin and cos of the
// Earth's heliocentric longitude plus pi.
struct DireccionSol {
    double SolX = 0, SolZ = 0;
};

}  // namespace vedrano
