// "vedrano-cli calcula": the batch calculator. Reads one operation a line
// and writes one result line for each, in order.
#pragma once
#include <iosfwd>
#include <string>

#include "cli/Argumentos.h"

namespace vedrano {

// Runs the calculator over `entrada` into `salida`; `dirDatos` is the folder
// of the catalogue files (read only by the operations that need orbital
// elements, on first need). With `precisionAlta` the precise model adds
// the operation "LugarAparente cuerpo JD".
void Calcula(std::istream& entrada, std::ostream& salida, const std::string& dirDatos,
             bool precisionAlta = false);

// Runs the calculator over standard input and output; 1 when the data
// folder is missing or the output cannot be written.
int ComandoCalcula(const OpcionesCli& o);

}  // namespace vedrano
