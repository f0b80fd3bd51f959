// The sample configurations of Archivo/: each one a real situation, set up
// with the program's own astronomy and written with its own writer.
#pragma once
#include <iosfwd>
#include <string>

namespace vedrano {

// Writes "Inicial.ls1" and the thirteen examples into `carpeta`, replacing
// those there, reading the places and the orbital elements from `dirDatos`.
// One line per file goes to `informe`: the file, its instant and place, and
// the facts computed for it. Returns 0, or the error number of the first
// file that could not be written.
int GeneraMuestras(const std::string& carpeta, const std::string& dirDatos, std::ostream& informe);

}  // namespace vedrano
