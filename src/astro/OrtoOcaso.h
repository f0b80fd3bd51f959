// Rising, transit and setting of a body over one local day, from any
// position routine: the times come from the body's altitude followed
// through the day, so a moving body (the Sun, the Moon) is handled as a
// fixed star is, and so are the Sun's twilights.
#pragma once
#include <functional>

#include "app/base/Constantes.h"

namespace vedrano {

// Right ascension and declination of the date, radians.
struct Ecuatorial {
    double ar = 0, dec = 0;
};

// The body's place at a Julian day (Universal Time).
using PosicionEn = std::function<Ecuatorial(double jd)>;
// The local sidereal time, radians, at a Julian day (Universal Time).
using SidereoEn = std::function<double(double jd)>;

// Standard altitudes of the upper limb or centre at the visible rising,
// refraction included (radians).
namespace altura {
inline constexpr double ESTRELLA = -0.5667 * GRADO;  // refraction 34'
inline constexpr double SOL = -0.8333 * GRADO;       // 34' and the Sun's semidiameter 16'
inline constexpr double CIVIL = -6 * GRADO;
inline constexpr double NAUTICO = -12 * GRADO;
inline constexpr double ASTRONOMICO = -18 * GRADO;
}  // namespace altura

// What the day holds for a body at one altitude of the horizon.
enum class Visibilidad {
    Normal,       // crosses the horizon (one crossing may fall outside the day)
    Circumpolar,  // above it the whole day
    NoSale,       // below it the whole day
};

struct Instante {
    bool hay = false;  // false: no such event within the day
    double jd = 0;     // Universal Time
};

struct OrtoTransitoOcaso {
    Visibilidad visibilidad = Visibilidad::Normal;
    Instante orto, transito, ocaso;
    double alturaTransito = 0;  // radians, at the upper transit
};

// HallaOrtoOcaso
//   Given: jdInicio  the start of the local day (local midnight in UT)
//          latitud   of the observer, radians, north positive
//          h0        the altitude of the horizon for this event, radians
//                    (altura::ESTRELLA, altura::SOL, a twilight, ...)
//          posicion  the body's place through the day
//          sidereo   the local sidereal time through the day
//   Returns the first rising (altitude going up through h0), the upper
//   transit (hour angle through 0) and the first setting within
//   [jdInicio, jdInicio + 1), each to about a second, the altitude at
//   transit, and Circumpolar or NoSale when the altitude stays on one side
//   of h0 all day.
//   Method: the altitude sin h = sin phi sin d + cos phi cos d cos H is
//   sampled every 20 minutes and each change of sign is narrowed by
//   bisection; a crossing closer together than the sampling (a grazing
//   body near the pole) can be missed.
//   Reference: J. Meeus, Astronomical Algorithms, 2nd ed., ch. 15 (the
//   quantities); the sampling replaces his interpolation so that a body's
//   own motion needs no special treatment.
OrtoTransitoOcaso HallaOrtoOcaso(double jdInicio, double latitud, double h0, const PosicionEn& posicion,
                                 const SidereoEn& sidereo);

// The altitude of a body, radians, from its place, the local sidereal time
// and the latitude.
double Altura(const Ecuatorial& p, double sidereoLocal, double latitud);

}  // namespace vedrano
