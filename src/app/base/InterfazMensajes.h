// The program's one way to tell the user something or ask them: the window
// answers with its message box, the command line for itself, tests with a
// scripted answer. The catalogue loader, the configuration reader and
// writer and the start-up all speak through it.
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
    // A fault that needs no answer (the loader's): the error icon and the
    // accepting button only.
    void Avisa(const std::string& textoCp1252, const std::string& tituloCp1252) {
        Mensaje(textoCp1252, tituloCp1252, 1, 1);
    }
};

}  // namespace vedrano
