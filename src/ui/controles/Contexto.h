// What the drawn controls share with the program that holds them: the
// pointer shown and the spin hold flag, which they write, and the sound
// option and speed setting, which they only read. The program binds the two
// settings to its own record, so a control never sees the state itself.
#pragma once
#include <cstdint>

#include "app/base/Cursores.h"

namespace vedrano::controles {

struct Contexto {
    const bool& Sonido;        // click sounds on
    const int16_t& Velocidad;  // scales every pause (0..100)
    // The pointer last set on a control (cursor::...), so that a move over
    // the same control does not set it again.
    int16_t CursorActual = cursor::ManoIndice;
    // Ends the hold-to-repeat loop of a spin key or an arrow key when cleared.
    bool SujecionSpin = false;
};

}  // namespace vedrano::controles
