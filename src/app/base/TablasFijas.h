// Tables that never change while the program runs, built once on first use
// and read-only afterwards.
#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace vedrano {

struct TablasFijas {
    // Days in the year before month m: row 0 common, row 1 leap; row 2 and
    // column 0 stay 0.
    std::array<std::array<int16_t, 13>, 3> DiasAcum{};
    // Length of each step unit (1..12); units 10..12 count calendar years.
    std::array<double, 13> LongUnidad{};
    // Singular and plural unit names, Windows-1252, each with a leading blank.
    std::array<std::string, 13> NomUnidad, NomUnidades;
    // Step lengths by kind (0 sidereal, 1 solar) and unit (1 minute .. 7 millennium).
    std::array<std::array<double, 8>, 2> TablaPasos{};
    // The same lengths in one list, sidereal kind first (1..14).
    std::array<double, 15> ListaPasos{};
};

const TablasFijas& Tablas();

}  // namespace vedrano
