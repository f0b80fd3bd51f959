// Spanish texts of the run-time errors that reading and writing a file can
// raise, and the message that names them.
#pragma once
#include <string>

#include "app/base/ErrorEjecucion.h"

namespace vedrano {

// "ERROR <modulo><numero>: <description>." in Windows-1252.
std::string TextoErrorArchivo(const char* modulo, int numero);

// The run-time error number of a C library error code (errno).
int ErrorDeSistema(int codigo);

}  // namespace vedrano
