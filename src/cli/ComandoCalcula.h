// "vedrano-cli calcula": the batch calculator. Reads one operation a line
// and writes one result line for each, in order.
#pragma once
#include <iosfwd>
#include <string>

namespace vedrano {

// Runs the calculator over `entrada` into `salida`; `dirDatos` is the folder
// of the catalogue files (read only by the operations that need orbital
// elements, on first need).
void Calcula(std::istream& entrada, std::ostream& salida, const std::string& dirDatos);

int ComandoCalcula(int argc, char** argv);

}  // namespace vedrano
