// The program's own folder: the one that holds Datos/ and Archivo/.
#pragma once
#include <string>

namespace vedrano::plataforma {

// The folder of the executable when Datos/ stands beside it, else
// ../share/vedrano/ of an installed prefix, else the source tree a build
// runs from. Ends in '/'.
std::string CarpetaPrograma(const char* argv0);

}  // namespace vedrano::plataforma
