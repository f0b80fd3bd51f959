#include "config/Preferencias.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>

#include "app/base/Texto1252.h"
#include "config/EscrituraSegura.h"
#include "platform/CarpetaConfiguracion.h"

namespace vedrano {

namespace {

std::string_view Recorta(std::string_view s) {
    const char* blancos = " \t\r";
    std::size_t a = s.find_first_not_of(blancos);
    if (a == std::string_view::npos) return {};
    return s.substr(a, s.find_last_not_of(blancos) - a + 1);
}

bool LeeValor(std::string_view t, bool& v) {
    if (t == "true" || t == "1") return v = true, true;
    if (t == "false" || t == "0") return v = false, true;
    return false;
}

[[maybe_unused]] bool LeeValor(std::string_view t, int& v) {
    int n = 0;
    auto [fin, ec] = std::from_chars(t.data(), t.data() + t.size(), n);
    if (ec != std::errc() || fin != t.data() + t.size()) return false;
    v = n;
    return true;
}

std::string EscribeValor(bool v) { return v ? "true" : "false"; }
[[maybe_unused]] std::string EscribeValor(int v) { return std::to_string(v); }

// Sets the member named `clave`; false when no preference has that name or
// the value does not read.
bool Asigna(Preferencias& p, std::string_view clave, std::string_view valor) {
#define VEDRANO_ASIGNA(tipo, nombre, defecto) \
    if (clave == #nombre) return LeeValor(valor, p.nombre);
    VEDRANO_PREFERENCIAS(VEDRANO_ASIGNA)
#undef VEDRANO_ASIGNA
    return false;
}

}  // namespace

std::string RutaPreferencias() {
    std::string carpeta = plataforma::CarpetaConfiguracionUsuario();
    return carpeta.empty() ? std::string() : carpeta + "vedrano/preferencias.ini";
}

Preferencias LeePreferencias(const std::string& ruta) {
    Preferencias p;
    if (ruta.empty()) return p;
    std::ifstream f(std::filesystem::path(ruta), std::ios::binary);
    std::string linea;
    // A settings file is a few lines: anything far longer is not one.
    for (int n = 0; n < 1000 && std::getline(f, linea); ++n) {
        std::string_view l = Recorta(linea);
        if (l.empty() || l[0] == '#' || l[0] == ';' || l[0] == '[') continue;
        std::size_t igual = l.find('=');
        if (igual == std::string_view::npos) continue;
        Asigna(p, Recorta(l.substr(0, igual)), Recorta(l.substr(igual + 1)));
    }
    return p;
}

std::string TextoPreferencias(const Preferencias& p) {
    std::ostringstream s;
    s << "# Preferencias de VEDRANO\n[General]\n";
#define VEDRANO_ESCRIBE(tipo, nombre, defecto) s << #nombre "=" << EscribeValor(p.nombre) << '\n';
    VEDRANO_PREFERENCIAS(VEDRANO_ESCRIBE)
#undef VEDRANO_ESCRIBE
    return s.str();
}

std::string EscribePreferencias(const Preferencias& p, const std::string& ruta) {
    if (ruta.empty()) return {};
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(ruta).parent_path(), ec);
    if (EscribeArchivoEntero(ruta, TextoPreferencias(p)) == 0) return {};
    return A1252("No se han podido guardar las preferencias del programa en \"" + ruta +
                 "\". Se conservan solo durante esta sesión.");
}

}  // namespace vedrano
