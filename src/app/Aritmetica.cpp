#include "app/Aritmetica.h"

#include <string>

namespace vedrano {

double Val(std::string_view texto) {
    // Blanks, tabs and line feeds are skipped anywhere in the number, as the
    // classic Val does ("1 5" reads 15).
    std::string limpio;
    for (char c : texto)
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r') limpio += c;
    std::size_t i = 0;
    std::string numero;
    if (i < limpio.size() && (limpio[i] == '+' || limpio[i] == '-')) numero += limpio[i++];
    bool digitos = false, punto = false;
    while (i < limpio.size()) {
        char c = limpio[i];
        if (c >= '0' && c <= '9') {
            digitos = true;
        } else if (c == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
        numero += c;
        ++i;
    }
    if (!digitos) return 0.0;
    // An exponent continues the number only when digits follow it.
    if (i < limpio.size() && (limpio[i] == 'e' || limpio[i] == 'E' || limpio[i] == 'd' ||
                              limpio[i] == 'D')) {
        std::size_t j = i + 1;
        std::string exp = "e";
        if (j < limpio.size() && (limpio[j] == '+' || limpio[j] == '-')) exp += limpio[j++];
        std::size_t k = j;
        while (k < limpio.size() && limpio[k] >= '0' && limpio[k] <= '9') exp += limpio[k++];
        if (k > j) numero += exp;
    }
    return std::stod(numero);
}

}  // namespace vedrano
