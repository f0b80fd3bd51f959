#include "app/base/Texto1252.h"

#include <array>
#include <cstdint>

#include "app/base/ErrorEjecucion.h"

namespace vedrano {

namespace {

// Unicode code points of the bytes 0x80..0x9F of Windows-1252 (0 = unused).
constexpr std::array<uint16_t, 32> kAltos = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char ByteDe(uint32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (std::size_t i = 0; i < kAltos.size(); ++i)
        if (kAltos[i] != 0 && kAltos[i] == cp) return static_cast<char>(0x80 + i);
    return '?';
}

void AnadeUtf8(std::string& s, uint32_t cp) {
    if (cp < 0x80) {
        s += static_cast<char>(cp);
    } else if (cp < 0x800) {
        s += static_cast<char>(0xC0 | (cp >> 6));
        s += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (cp >> 12));
        s += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

}  // namespace

std::string TextoConArchivo(std::string_view textoCp1252, std::string_view ruta) {
    std::string t(textoCp1252);
    t += "\r\n";
    t += A1252(ruta);
    return t;
}

std::string A1252(std::string_view u) {
    std::string r;
    r.reserve(u.size());
    for (std::size_t i = 0; i < u.size();) {
        auto b = static_cast<unsigned char>(u[i]);
        uint32_t cp;
        std::size_t n;
        if (b < 0x80) {
            cp = b, n = 1;
        } else if ((b & 0xE0) == 0xC0) {
            cp = b & 0x1F, n = 2;
        } else if ((b & 0xF0) == 0xE0) {
            cp = b & 0x0F, n = 3;
        } else if ((b & 0xF8) == 0xF0) {
            cp = b & 0x07, n = 4;
        } else {
            r += '?';
            ++i;
            continue;
        }
        if (i + n > u.size()) {
            r += '?';
            break;
        }
        bool valido = true;
        for (std::size_t k = 1; k < n; ++k) {
            auto c = static_cast<unsigned char>(u[i + k]);
            if ((c & 0xC0) != 0x80) valido = false;
            cp = (cp << 6) | (c & 0x3F);
        }
        r += valido ? ByteDe(cp) : '?';
        i += valido ? n : 1;
    }
    return r;
}

std::string DesdeA1252(std::string_view t) {
    std::string r;
    r.reserve(t.size() + t.size() / 8);
    for (char c : t) {
        auto b = static_cast<unsigned char>(c);
        uint32_t cp = b;
        if (b >= 0x80 && b < 0xA0) cp = kAltos[b - 0x80] ? kAltos[b - 0x80] : 0xFFFD;
        AnadeUtf8(r, cp);
    }
    return r;
}

std::string Mid(std::string_view texto, long inicio, long largo) {
    if (inicio < 1 || largo < 0) throw ErrorEjecucion(ErrArgumentoInvalido);
    auto desde = static_cast<std::size_t>(inicio - 1);
    if (desde >= texto.size()) return {};
    return std::string(texto.substr(desde, static_cast<std::size_t>(largo)));
}

std::string Right(std::string_view texto, long largo) {
    if (largo < 0) throw ErrorEjecucion(ErrArgumentoInvalido);
    auto n = std::min(texto.size(), static_cast<std::size_t>(largo));
    return std::string(texto.substr(texto.size() - n));
}

std::string Left(std::string_view texto, long largo) {
    if (largo < 0) throw ErrorEjecucion(ErrArgumentoInvalido);
    return std::string(texto.substr(0, static_cast<std::size_t>(largo)));
}

}  // namespace vedrano
