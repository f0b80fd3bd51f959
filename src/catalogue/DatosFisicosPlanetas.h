// The physical data of the Sun, the Moon and the planets that the search
// form lists under "Sistema Solar", one fixed-column row per body in the
// order Mercury .. Pluto, Sun, Moon: diameter (km), mass (Earth = 1), tilt
// of the equator to the orbit (degrees), surface gravity (Earth = 1),
// rotation period, semi-major axis (AU), eccentricity, sidereal and
// synodic orbital periods (days).
#pragma once
#include <array>

namespace vedrano {

inline constexpr std::array<const char*, 11> FILAS_SISTEMA_SOLAR = {
    "MERCURIO   4878.0   0.0553   0.00  0.38   58.646 d   0.3871 0.2056    87.96 115.9",
    "VENUS     12104.0   0.8150 177.30  0.89  243.010 d   0.7233 0.0068   224.68 584.0",
    "TIERRA    12756.3   1.0000  23.45  1.00 23h 56m  4s  1.0000 0.0167   365.26   -",
    "MARTE      6794.4   0.1074  25.19  0.38 24h 37m 22s  1.5237 0.0934   686.95 779.9",
    "JUPITER  142796.0 317.8900   3.12  2.54  9h 53m      5.2028 0.0483  4337.00 398.9",
    "SATURNO  120000.0  95.1700  26.73  1.07 10h 39m 54s  9.5388 0.0560 10760.00 378.1",
    "URANO     52290.0  14.5600  97.86  0.80  12h a 24h  19.1914 0.0461 30700.00 369.7",
    "NEPTUNO   48600.0  17.2400  29.56  1.20  18h 12m    30.0611 0.0100 60200.00 367.5",
    "PLUTON     3300.0   0.0200 118.00    ?     6.3868 d 39.5294 0.2484 90780.00 366.7",
    "SOL     1392000.0                 28.00   25.38 d.",
    "LUNA       3476.0   0.0121   5.15  0.17   27.3217 d  0.0026 0.0660    27.32  29.5",
};

}  // namespace vedrano
