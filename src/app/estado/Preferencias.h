// The program preferences that the configuration files have no item for,
// as the state carries them (config/Preferencias.h reads and writes their
// file).
#pragma once

namespace vedrano {

// Each preference is one line: X(type, name, default). The name is the
// member of Preferencias and the key in the file; the types are bool and
// int.
#define VEDRANO_PREFERENCIAS(X)                                                                   \
    X(bool, PrecisionAlta, false)    /* the precise model of the Sun, the Moon and the planets */ \
    X(bool, EstrellasDebiles, false) /* "Estrellas débiles": the deep star layer */               \
    X(bool, TodosLosRotulos, false)  /* "Todos los rótulos": every label, overlapping or not */

struct Preferencias {
#define VEDRANO_MIEMBRO(tipo, nombre, defecto) tipo nombre = defecto;
    VEDRANO_PREFERENCIAS(VEDRANO_MIEMBRO)
#undef VEDRANO_MIEMBRO
    bool operator==(const Preferencias&) const = default;
};

}  // namespace vedrano
