// Where the command-line tool finds the catalogue files by default.
#pragma once
#include <filesystem>
#include <string>

namespace vedrano {

// The installation's Datos/ folder: beside the executable, or in
// ../share/vedrano/Datos/ of an installed prefix, or the source tree's.
std::string CarpetaDatosPorDefecto(const char* argv0);

// The folder of a file named on the command line, ended by "/": "./" for a
// bare name, which is looked for in the current folder.
std::string CarpetaDe(const std::filesystem::path& ruta);

}  // namespace vedrano
