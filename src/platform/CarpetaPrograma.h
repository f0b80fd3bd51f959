// The program's own folder: the one that holds Datos/ and Archivo/.
#pragma once
#include <string>

namespace vedrano::plataforma {

// The first folder holding a Datos/ folder among: the executable's own
// folder (an unpacked copy, or a build tree, which gets Datos/ and a
// writable copy of Archivo/ when it is configured); ../share/vedrano/ of the
// prefix the executable is installed in; vedrano/ of the data folders of
// the XDG base directories (XDG_DATA_HOME, XDG_DATA_DIRS). Nothing is
// fixed when the program is built, so an installed or moved copy never
// reads another tree's files. When none holds the data, the executable's
// folder, so that the loader names what is missing. Ends in '/'. `argv0`
// serves only where the system cannot tell the executable's path.
std::string CarpetaPrograma(const char* argv0);

}  // namespace vedrano::plataforma
