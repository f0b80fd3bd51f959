// The program's angle constants, in the exact ten-decimal forms that every
// computation uses (they are not the full-precision values on purpose).
#pragma once

namespace vedrano {

inline constexpr double PI = 3.1415926536;
inline constexpr double DOS_PI = 6.2831853072;
inline constexpr double MEDIO_PI = 1.5707963268;
inline constexpr double GRADO = 0.01745329252;             // one degree in radians
inline constexpr double SEGUNDO_ARCO = 4.848136811111111e-6;  // one second of arc
inline constexpr double RAD_A_GRADOS = 57.29577951289617;
// The parser's shorter seconds-of-arc constant, distinct from SEGUNDO_ARCO.
inline constexpr double SEGUNDO_ARCO_LECTURA = 4.8481368e-6;

// Pi to the full precision of a double, where a computation is not one of
// the program's classic ones (ERFA-level work, drawing with Qt's angles).
inline constexpr double PI_COMPLETO = 3.14159265358979323846;
// Pi and two pi in single precision, for angles kept as Single.
inline constexpr float PI_SIMPLE = 3.1415927f;
inline constexpr float DOS_PI_SIMPLE = 6.2831855f;
static_assert(PI_SIMPLE == static_cast<float>(PI) && DOS_PI_SIMPLE == static_cast<float>(DOS_PI));

// Angles of the program's own that are no fraction of pi, kept as the
// program has always stored them:
// the elevation of a fresh view, 45 degrees as first saved (6.9e-7 rad
// above pi/4; the default configuration and pictures depend on it);
inline constexpr double ELEVACION_INICIAL = 0.785398852000001;
// the telescope circle of a fresh state, 3 degrees written with seven
// decimals (2.8e-7 rad short of 3 degrees).
inline constexpr double CAMPO_TELESCOPIO_INICIAL = 0.0523596;

}  // namespace vedrano
