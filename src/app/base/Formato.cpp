#include "app/base/Formato.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace vedrano {

namespace {

bool SoloArrobas(std::string_view p) {
    if (p.empty()) return false;
    for (char c : p)
        if (c != '@') return false;
    return true;
}

// Decimal digits of |valor| rounded half away from zero to `decimales`
// places, taken from its 15-significant-digit text as the run-time does.
void Redondea(double valor, int decimales, std::string& entera, std::string& fraccion) {
    double absoluto = std::fabs(valor);
    if (absoluto == std::floor(absoluto) && absoluto < 1e15) {
        // Whole numbers need no rounding: the common case of every date and
        // angle field.
        char dig[24];
        auto fin = std::to_chars(dig, dig + sizeof dig, static_cast<long long>(absoluto)).ptr;
        entera.assign(dig, fin);
        if (entera == "0") entera.clear();
        fraccion.assign(static_cast<std::size_t>(decimales), '0');
        return;
    }
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.14e", std::fabs(valor));
    // buf: d.dddddddddddddde±XX
    std::string mantisa;
    mantisa += buf[0];
    for (int i = 2; i < 16; ++i) mantisa += buf[i];
    int exponente = std::atoi(buf + 17);
    // Digits with the point after position (exponente + 1).
    int punto = exponente + 1;
    std::string digitos = mantisa;
    if (punto <= 0) {
        digitos = std::string(static_cast<std::size_t>(-punto + 1), '0') + digitos;
        punto = 1;
    }
    if (static_cast<int>(digitos.size()) < punto + decimales + 1)
        digitos += std::string(static_cast<std::size_t>(punto + decimales + 1 - digitos.size()), '0');
    // Keep punto + decimales digits; round on the next one.
    std::string guardados = digitos.substr(0, static_cast<std::size_t>(punto + decimales));
    if (digitos[static_cast<std::size_t>(punto + decimales)] >= '5') {
        int i = static_cast<int>(guardados.size()) - 1;
        while (i >= 0) {
            if (guardados[static_cast<std::size_t>(i)] == '9') {
                guardados[static_cast<std::size_t>(i)] = '0';
                --i;
            } else {
                ++guardados[static_cast<std::size_t>(i)];
                break;
            }
        }
        if (i < 0) {
            guardados = "1" + guardados;
            ++punto;
        }
    }
    entera = guardados.substr(0, static_cast<std::size_t>(punto));
    fraccion = guardados.substr(static_cast<std::size_t>(punto));
    std::size_t k = 0;
    while (k < entera.size() && entera[k] == '0') ++k;
    entera = entera.substr(k);
}

// Integer part of a picture, filled from the right; surplus digits go to
// the leftmost digit place, "0" places pad with zero, "#" places with nothing.
void ParteEntera(std::string& r, std::string_view pEntera, std::string_view entera) {
    std::size_t primero = std::string_view::npos;
    for (std::size_t i = 0; i < pEntera.size() && primero == std::string_view::npos; ++i)
        if (pEntera[i] == '0' || pEntera[i] == '#') primero = i;
    // Room for every digit: a Double can have 309 before the point.
    std::string buf;
    buf.reserve(pEntera.size() + entera.size());
    long d = static_cast<long>(entera.size()) - 1;
    for (std::size_t i = pEntera.size(); i-- > 0;) {
        char c = pEntera[i];
        if (c != '0' && c != '#') {
            buf += c;
        } else if (i == primero && d >= 0) {
            while (d >= 0) buf += entera[static_cast<std::size_t>(d--)];
        } else if (d >= 0) {
            buf += entera[static_cast<std::size_t>(d--)];
        } else if (c == '0') {
            buf += '0';
        }
    }
    std::reverse(buf.begin(), buf.end());
    r += buf;
    if (primero == std::string_view::npos) r.append(entera);
}

std::string FormatoSeccion(double valor, std::string_view p, bool signo) {
    std::size_t punto = p.find('.');
    std::string_view pEntera = p.substr(0, punto);
    std::string_view pFraccion = punto == std::string_view::npos ? std::string_view{} : p.substr(punto + 1);
    int decimales = 0;
    for (char c : pFraccion)
        if (c == '0' || c == '#') ++decimales;
    std::string entera, fraccion;
    Redondea(valor, decimales, entera, fraccion);

    std::string r;
    ParteEntera(r, pEntera, entera);
    if (punto != std::string_view::npos) {
        r += '.';
        std::size_t f = 0;
        for (char c : pFraccion) {
            if (c == '0' || c == '#')
                r += fraccion[f++];
            else
                r += c;
        }
    }
    bool nulo = entera.empty() && fraccion.find_first_not_of('0') == std::string::npos;
    if (signo && !nulo) {
        // The sign goes before the first digit or literal of the result.
        r = "-" + r;
    }
    return r;
}

}  // namespace

std::string CStr(double valor) {
    if (valor == std::floor(valor) && std::fabs(valor) < 1e15) {
        char dig[24];
        auto fin = std::to_chars(dig, dig + sizeof dig, static_cast<long long>(valor)).ptr;
        return std::string(dig, fin);
    }
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15G", valor);
    std::string s = buf;
    std::size_t e = s.find('E');
    std::string mant = e == std::string::npos ? s : s.substr(0, e);
    std::string exp = e == std::string::npos ? "" : s.substr(e);
    if (mant.find('.') != std::string::npos) {
        while (!mant.empty() && mant.back() == '0') mant.pop_back();
        if (!mant.empty() && mant.back() == '.') mant.pop_back();
    }
    if (!exp.empty()) {
        // E+020 -> E+20: the run-time writes at least two exponent digits.
        char sig = exp[1];
        std::string dig = exp.substr(2);
        while (dig.size() > 2 && dig[0] == '0') dig.erase(0, 1);
        exp = std::string("E") + sig + dig;
    }
    if (mant == "-0") mant = "0";
    return mant + exp;
}

std::string Str(double valor) {
    std::string s = CStr(valor);
    return s[0] == '-' ? s : " " + s;
}

std::string FormatoTexto(std::string_view texto, std::string_view picture) {
    std::size_t ancho = 0;
    for (char c : picture)
        if (c == '@') ++ancho;
    if (texto.size() >= ancho) return std::string(texto);
    return std::string(ancho - texto.size(), ' ') + std::string(texto);
}

std::string Formato(double valor, std::string_view picture) {
    bool sinDecimales = true;
    for (char c : picture) sinDecimales = sinDecimales && c != '.' && c != ';';
    if (sinDecimales && valor == std::floor(valor) && std::fabs(valor) < 1e15) {
        // Whole numbers: the date, time and angle fields, without rounding.
        char dig[24];
        char* fin = std::to_chars(dig, dig + sizeof dig, static_cast<long long>(std::fabs(valor))).ptr;
        std::string_view digitos(dig, static_cast<std::size_t>(fin - dig));
        std::string r;
        if (valor < 0) r += '-';
        if (SoloArrobas(picture)) {
            std::size_t largo = digitos.size() + r.size();
            if (largo < picture.size()) r.insert(0, picture.size() - largo, ' ');
            r.append(digitos);
            return r;
        }
        ParteEntera(r, picture, digitos == "0" ? std::string_view{} : digitos);
        return r;
    }
    if (SoloArrobas(picture)) return FormatoTexto(CStr(valor), picture);
    std::size_t pc = picture.find(';');
    if (pc != std::string_view::npos) {
        if (valor < 0) return FormatoSeccion(valor, picture.substr(pc + 1), false);
        return FormatoSeccion(valor, picture.substr(0, pc), false);
    }
    return FormatoSeccion(valor, picture, valor < 0);
}

}  // namespace vedrano
