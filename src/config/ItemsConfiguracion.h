// The items of a configuration file, line by line in the order they are
// written, with the field of the application state each one holds, its
// range when the program cannot work with other values, and whether it
// takes its default (the value of a fresh state record) when the file
// cannot be opened. Reader, writer and the command line all
// walk this one table, so they cannot disagree on order or type.
#pragma once
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "app/estado/Estado.h"

namespace vedrano {

using CampoEntero = int16_t& (*)(Estado&);
using CampoSingle = float& (*)(Estado&);
using CampoDouble = double& (*)(Estado&);
using CampoBooleano = bool& (*)(Estado&);
using CampoCadena = std::string& (*)(Estado&);
using CampoItem = std::variant<CampoEntero, CampoSingle, CampoDouble, CampoBooleano, CampoCadena>;

struct ItemConfiguracion {
    const char* nombre;  // the field's name in the state
    CampoItem campo;
    double minimo, maximo;  // accepted range of a number (inclusive)
    bool tieneOmision;      // the reader stores the default when the file cannot be opened
};

inline constexpr std::array<int, 4> ITEMS_POR_LINEA{7, 1, 42, 18};

// The items of line 1..4.
std::span<const ItemConfiguracion> ItemsLinea(int linea);

}  // namespace vedrano
