// Program preferences that change the sky picture. They are not items of
// a configuration file: the program keeps them in its own settings.
#pragma once

namespace vedrano {

struct OpcionesDibujo {
    // "Todos los rótulos": print every label, overlapping or not.
    bool TodosLosRotulos = false;
};

}  // namespace vedrano
