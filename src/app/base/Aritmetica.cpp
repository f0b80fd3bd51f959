#include "app/base/Aritmetica.h"

#include <charconv>

namespace vedrano {

NumeroEscrito EscaneaNumero(std::string_view texto, bool saltaBlancos) {
    NumeroEscrito r;
    auto blanco = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    std::size_t i = 0;
    auto salta = [&] {
        while (saltaBlancos && i < texto.size() && blanco(texto[i])) ++i;
    };
    salta();
    if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) {
        if (texto[i] == '-') r.Pon('-');
        ++i;
    }
    bool punto = false;
    for (salta(); i < texto.size(); ++i, salta()) {
        char c = texto[i];
        if (c >= '0' && c <= '9') {
            r.digitos = true;
        } else if (c == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
        r.Pon(c);
    }
    r.consumido = i;
    if (!r.digitos) return r;
    // An exponent continues the number only when digits follow it.
    if (i < texto.size() && (texto[i] == 'e' || texto[i] == 'E' || texto[i] == 'd' || texto[i] == 'D')) {
        std::size_t j = i + 1;
        if (j < texto.size() && (texto[j] == '+' || texto[j] == '-')) ++j;
        std::size_t k = j;
        while (k < texto.size() && texto[k] >= '0' && texto[k] <= '9') ++k;
        if (k > j) {
            r.Pon('e');
            for (std::size_t q = i + 1; q < k; ++q) r.Pon(texto[q]);
            r.consumido = k;
        }
    }
    return r;
}

double Val(std::string_view texto) {
    // Blanks, tabs and line feeds are skipped anywhere in the number, as the
    // classic Val does ("1 5" reads 15).
    NumeroEscrito n = EscaneaNumero(texto, true);
    if (!n.digitos) return 0.0;
    // Whole numbers of a few digits (every date field) need no conversion routine.
    std::string_view t = n.Texto();
    bool negativo = t.front() == '-';
    std::string_view cifras = negativo ? t.substr(1) : t;
    if (cifras.size() <= 9 && cifras.find_first_not_of("0123456789") == std::string_view::npos) {
        long entero = 0;
        for (char c : cifras) entero = entero * 10 + (c - '0');
        return negativo ? -static_cast<double>(entero) : static_cast<double>(entero);
    }
    double v = 0;
    std::from_chars(n.texto, n.texto + n.n, v);
    return v;
}

}  // namespace vedrano
