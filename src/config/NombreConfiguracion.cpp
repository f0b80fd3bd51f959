#include "config/NombreConfiguracion.h"

namespace vedrano {

namespace {

bool TerminaEn(std::string_view nombre, std::string_view extension) {
    if (nombre.size() < extension.size()) return false;
    std::string_view fin = nombre.substr(nombre.size() - extension.size());
    for (std::size_t i = 0; i < fin.size(); ++i) {
        char c = fin[i];
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
        if (c != extension[i]) return false;
    }
    return true;
}

}  // namespace

std::optional<std::string> NombreParaGuardar(std::string_view nombre) {
    // A separator would write outside the configuration folder.
    if (nombre.empty() || nombre.find_first_of("/\\") != std::string_view::npos) return std::nullopt;
    std::size_t punto = nombre.find('.');
    if (punto == 0) return std::nullopt;
    if (punto == std::string_view::npos) return std::string(nombre) + ".ls1";
    if (TerminaEn(nombre, ".ls1") || TerminaEn(nombre, ".wrk")) return std::string(nombre);
    return std::string(nombre.substr(0, punto)) + ".ls1";
}

}  // namespace vedrano
