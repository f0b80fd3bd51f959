#include "app/Aritmetica.h"

#include <charconv>

namespace vedrano {

double Val(std::string_view texto) {
    // Blanks, tabs and line feeds are skipped anywhere in the number, as the
    // classic Val does ("1 5" reads 15). The number is gathered on the stack.
    char numero[64];
    std::size_t n = 0;
    auto blanco = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    std::size_t i = 0;
    auto salta = [&] {
        while (i < texto.size() && blanco(texto[i])) ++i;
    };
    salta();
    bool negativo = false;
    if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) {
        negativo = texto[i] == '-';
        ++i;
    }
    bool digitos = false, punto = false;
    for (salta(); i < texto.size(); ++i, salta()) {
        char c = texto[i];
        if (c >= '0' && c <= '9') {
            digitos = true;
        } else if (c == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
        if (n < sizeof numero - 8) numero[n++] = c;
    }
    if (!digitos) return 0.0;
    // An exponent continues the number only when digits follow it.
    if (i < texto.size() && (texto[i] == 'e' || texto[i] == 'E' || texto[i] == 'd' || texto[i] == 'D')) {
        std::size_t j = i + 1;
        char exp[8];
        std::size_t m = 0;
        exp[m++] = 'e';
        if (j < texto.size() && (texto[j] == '+' || texto[j] == '-')) exp[m++] = texto[j++];
        std::size_t k = j;
        while (k < texto.size() && texto[k] >= '0' && texto[k] <= '9' && m < sizeof exp) exp[m++] = texto[k++];
        if (k > j)
            for (std::size_t q = 0; q < m; ++q) numero[n++] = exp[q];
    }
    double v = 0;
    std::from_chars(numero, numero + n, v);
    return negativo ? -v : v;
}

}  // namespace vedrano
