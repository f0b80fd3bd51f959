// The screen mode: its size, and the offer to switch it to 800x600.
#pragma once

namespace vedrano::plataforma {

class Pantalla {
public:
    virtual ~Pantalla() = default;
    virtual int Ancho() const = 0;  // pixels
    virtual int Alto() const = 0;
    // Tests a change to 800x600 without making it: 0 when it would work.
    virtual long PruebaCambio800x600() = 0;
    // Makes the change and records it: 0 done, 1 the computer must restart,
    // anything else a failure.
    virtual long Cambia800x600() = 0;
};

// The display-mode change of the operating system: the real calls on
// Windows; elsewhere the program cannot change the mode and says so.
long PruebaCambioSistema();
long CambioSistema();

}  // namespace vedrano::plataforma
