#include "config/CodigoItems.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include "app/base/Aritmetica.h"
#include "app/base/ErrorEjecucion.h"

namespace vedrano {

namespace {

constexpr int ErrTipo = 13;  // type mismatch

bool EsBlanco(char c) { return c == ' ' || c == '\t'; }

std::string_view Recorta(std::string_view t) {
    while (!t.empty() && EsBlanco(t.front())) t.remove_prefix(1);
    while (!t.empty() && EsBlanco(t.back())) t.remove_suffix(1);
    return t;
}

bool IgualSinCaja(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i], y = b[i];
        if (x >= 'a' && x <= 'z') x = static_cast<char>(x - 32);
        if (y >= 'a' && y <= 'z') y = static_cast<char>(y - 32);
        if (x != y) return false;
    }
    return true;
}

// A number in the strict form sign, digits with at most one point (at least
// one digit), and an optional exponent with E or D. Anything else in the
// item is a type mismatch, so that "12abc" is never read as 12.
double Numero(const ItemLeido& item) {
    if (item.entrecomillado) throw ErrorEjecucion(ErrTipo);
    const NumeroEscrito n = EscaneaNumero(item.texto, false);
    if (!n.digitos || n.consumido != item.texto.size()) throw ErrorEjecucion(ErrTipo);
    if (n.largo) throw ErrorEjecucion(ErrDesbordamiento);
    const std::string limpio(n.Texto());
    double v = 0;
    auto [fin, ec] = std::from_chars(limpio.data(), limpio.data() + limpio.size(), v);
    if (ec == std::errc::result_out_of_range) {
        // Too small to hold is zero, as the run-time reads it; too large overflows.
        std::size_t e = limpio.find('e');
        if (e != std::string::npos && limpio[e + 1] == '-') return 0.0;
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    if (ec != std::errc() || fin != limpio.data() + limpio.size()) throw ErrorEjecucion(ErrTipo);
    return v;
}

}  // namespace

std::string TextoNumero(double valor, int cifras) {
    if (valor == 0.0 || !std::isfinite(valor)) return "0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*e", cifras - 1, valor);
    // buf: [-]d.ddd...e±XX
    std::string_view b = buf;
    bool negativo = b.front() == '-';
    if (negativo) b.remove_prefix(1);
    std::size_t e = b.find('e');
    std::string digitos;
    for (char c : b.substr(0, e))
        if (c != '.') digitos += c;
    int exponente = std::atoi(std::string(b.substr(e + 1)).c_str());
    while (digitos.size() > 1 && digitos.back() == '0') digitos.pop_back();

    std::string r = negativo ? "-" : "";
    if (exponente >= -4 && exponente < cifras) {  // 0.0001 stays plain, 0.00001 is 1E-05
        if (exponente < 0) {
            r += "0.";
            r.append(static_cast<std::size_t>(-exponente - 1), '0');
            r += digitos;
        } else {
            std::size_t entera = static_cast<std::size_t>(exponente) + 1;
            if (digitos.size() <= entera) {
                r += digitos;
                r.append(entera - digitos.size(), '0');
            } else {
                r += digitos.substr(0, entera);
                r += '.';
                r += digitos.substr(entera);
            }
        }
    } else {
        r += digitos[0];
        if (digitos.size() > 1) {
            r += '.';
            r += digitos.substr(1);
        }
        char exp[16];
        std::snprintf(exp, sizeof exp, "E%c%02d", exponente < 0 ? '-' : '+', std::abs(exponente));
        r += exp;
    }
    return r;
}

std::string TextoEntero(int16_t valor) { return std::to_string(valor); }
std::string TextoSingle(float valor) { return TextoNumero(static_cast<double>(valor), 7); }
std::string TextoDouble(double valor) {
    // Fifteen digits round the largest Doubles up past the largest there is
    // ("1.79769313486232E+308"), which no reader could take back: those few
    // are written with all seventeen.
    if (std::fabs(valor) > 1.79769313486231e308) return TextoNumero(valor, 17);
    return TextoNumero(valor, 15);
}
std::string TextoBooleano(bool valor) { return valor ? "#TRUE#" : "#FALSE#"; }

std::string TextoCadena(std::string_view valor) {
    std::string r = "\"";
    for (char c : valor) {
        if (c == '"')
            r += "\"\"";
        else if (c == '\r' || c == '\n')
            r += ' ';
        else
            r += c;
    }
    r += '"';
    return r;
}

std::vector<ItemLeido> PartirLinea(std::string_view linea) {
    std::vector<ItemLeido> items;
    std::size_t i = 0;
    while (true) {
        while (i < linea.size() && EsBlanco(linea[i])) ++i;
        ItemLeido item;
        if (i < linea.size() && linea[i] == '"') {
            item.entrecomillado = true;
            ++i;
            bool cerrado = false;
            while (i < linea.size()) {
                if (linea[i] == '"') {
                    if (i + 1 < linea.size() && linea[i + 1] == '"') {
                        item.texto += '"';
                        i += 2;
                        continue;
                    }
                    ++i;
                    cerrado = true;
                    break;
                }
                item.texto += linea[i++];
            }
            if (!cerrado) throw ErrorEjecucion(ErrTipo);
            while (i < linea.size() && EsBlanco(linea[i])) ++i;
            if (i < linea.size() && linea[i] != ',') throw ErrorEjecucion(ErrTipo);
        } else {
            std::size_t coma = linea.find(',', i);
            if (coma == std::string_view::npos) coma = linea.size();
            item.texto = std::string(Recorta(linea.substr(i, coma - i)));
            i = coma;
        }
        items.push_back(std::move(item));
        if (i >= linea.size()) break;
        ++i;  // the comma
    }
    return items;
}

int16_t LeeEntero(const ItemLeido& item) { return CInt(Numero(item)); }

float LeeSingle(const ItemLeido& item) { return ASingle(Numero(item)); }

double LeeDouble(const ItemLeido& item) { return Numero(item); }

bool LeeBooleano(const ItemLeido& item) {
    if (!item.entrecomillado) {
        if (IgualSinCaja(item.texto, "#TRUE#")) return true;
        if (IgualSinCaja(item.texto, "#FALSE#")) return false;
    }
    return Numero(item) != 0.0;
}

std::string LeeCadena(const ItemLeido& item) { return item.texto; }

}  // namespace vedrano
