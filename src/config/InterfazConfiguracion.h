// What the configuration reader and writer need from whoever runs them:
// a way to show a message and hear the answer. The main window answers with
// its message box; the command line answers for itself.
#pragma once
#include <cstdint>
#include <string>

#include "app/base/InterfazMensajes.h"

namespace vedrano {

// The configuration reader and writer ask and tell through the program's
// one message interface.
using InterfazConfiguracion = InterfazMensajes;

// The outcome of reading or writing a configuration.
struct ResultadoConfiguracion {
    int error = 0;             // run-time error number; 0 when all went well
    int linea = 0, dato = 0;   // the item being read when the fault happened (1-based)
    std::string texto;         // the message text (Windows-1252), empty when none
    std::string archivo;       // the file name used, after the name rules
    bool escrito = false;      // the writer replaced the file
};

}  // namespace vedrano
