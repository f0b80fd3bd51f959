// What reading or writing a configuration came to. Both ask and tell the
// user through the program's message port (app/base/InterfazMensajes.h).
#pragma once
#include <string>

#include "app/base/InterfazMensajes.h"

namespace vedrano {

// The outcome of reading or writing a configuration.
struct ResultadoConfiguracion {
    int error = 0;             // run-time error number; 0 when all went well
    int linea = 0, dato = 0;   // the item being read when the fault happened (1-based)
    std::string texto;         // the message text (Windows-1252), empty when none
    std::string archivo;       // the file name used, after the name rules
    bool escrito = false;      // the writer replaced the file
};

}  // namespace vedrano
