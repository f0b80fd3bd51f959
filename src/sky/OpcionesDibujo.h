// Program preferences that change the sky picture. They are not items of
// a configuration file: the program keeps them in its own settings.
#pragma once

namespace vedrano {

class EstrellasProfundas;

struct OpcionesDibujo {
    // "Todos los rótulos": print every label, overlapping or not.
    bool TodosLosRotulos = false;
    // "Estrellas débiles": the deep star layer, from this catalogue (none
    // drawn while it is not open).
    bool EstrellasDebiles = false;
    const EstrellasProfundas* Profundas = nullptr;
};

}  // namespace vedrano
