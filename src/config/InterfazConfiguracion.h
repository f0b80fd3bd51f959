// What the configuration reader and writer need from whoever runs them:
// a way to show a message and hear the answer. The main window answers with
// its message box; the command line answers for itself.
#pragma once
#include <cstdint>
#include <string>

namespace vedrano {

class InterfazConfiguracion {
public:
    virtual ~InterfazConfiguracion() = default;
    // Shows `texto` titled `titulo` (both Windows-1252, lines joined with
    // CR LF) with button set 1 (accept only) or 2 (accept and cancel) and an
    // icon code (1 error, 2 question). Returns the answer: 0 for cancel,
    // anything else for accept.
    virtual int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones,
                            int16_t icono) = 0;
};

// The outcome of reading or writing a configuration.
struct ResultadoConfiguracion {
    int error = 0;             // run-time error number; 0 when all went well
    int linea = 0, dato = 0;   // the item being read when the fault happened (1-based)
    std::string texto;         // the message text (Windows-1252), empty when none
    std::string archivo;       // the file name used, after the name rules
    bool escrito = false;      // the writer replaced the file
};

}  // namespace vedrano
