// How the core asks the user something or tells them something: the window
// answers with its message box, the command line for itself, tests with a
// scripted answer.
#pragma once
#include <cstdint>
#include <string>

namespace vedrano {

class InterfazMensajes {
public:
    virtual ~InterfazMensajes() = default;
    // Shows `texto` titled `titulo` (both Windows-1252, lines joined with
    // CR LF) with button set 1 (accept only) or 2 (accept and cancel) and an
    // icon code. Returns the answer: 0 for cancel, anything else for accept.
    virtual int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones,
                            int16_t icono) = 0;
};

}  // namespace vedrano
