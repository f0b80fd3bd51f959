// The mouse pointers by their classic numbers, as the state keeps the one
// showing (CursorActual): 21 to 25 are the program's own pointers, below
// 20 the standard ones.
#pragma once
#include <cstdint>

namespace vedrano::cursor {

enum : int16_t {
    Normal = 0,        // the system's default pointer
    Espera = 11,       // the hourglass, while something long is computed
    ManoIndice = 21,   // "ManoIndice": over anything that can be pressed
    ManoAbierta = 22,  // "ManoAbierta": over something that can be dragged
    ManoCerrada = 23,  // "ManoCerrada": while dragging
    Lapiz = 24,        // "Lapiz"
    Goma = 25,         // "Goma"
};

}  // namespace vedrano::cursor
