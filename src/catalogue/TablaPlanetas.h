// The solar-system table: orbital elements of the planets (indices 1..9,
// 3 being the Earth), the Sun (10) and the Moon (11); index 0 stays empty.
// Read from "VDRDATF.DAT", records 2 to 12 of 107 bytes: a 3-character code
// and a 104-byte numeric block of seven Doubles (the elements below), three
// Doubles and six Singles of result space that the file leaves at zero.
#pragma once
#include <array>
#include <string>

#include "astro/Cuerpos.h"
#include "catalogue/Registros.h"

namespace vedrano {

// One record: the astronomy's mean elements, with the record's code.
struct ElementosPlaneta : ElementosOrbita {
    CadenaFija<3> Codigo;
};

using TablaPlanetas = std::array<ElementosPlaneta, 12>;

inline constexpr int LARGO_REGISTRO_PLANETA = 107;

// Decodes one 107-byte record.
ElementosPlaneta DecodificaPlaneta(std::string_view registro);

// Reads records 2 to 12 of the file into indices 1 to 11. A missing file
// (or a folder) raises ErrorEjecucion(53); records past the end of the file
// read blank, and a short file then raises 62.
void LeeTablaPlanetas(const std::string& fichero, TablaPlanetas& tabla);

}  // namespace vedrano
