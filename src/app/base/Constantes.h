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

}  // namespace vedrano
