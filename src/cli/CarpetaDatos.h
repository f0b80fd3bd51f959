// Where the command-line tool finds the catalogue files by default.
#pragma once
#include <string>

namespace vedrano {

// The installation's Datos/ folder: beside the executable, or in
// ../share/vedrano/Datos/ of an installed prefix, or the source tree's.
std::string CarpetaDatosPorDefecto(const char* argv0);

}  // namespace vedrano
