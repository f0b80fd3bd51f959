#include "cli/CarpetaDatos.h"

#include "platform/CarpetaPrograma.h"

namespace vedrano {

std::string CarpetaDatosPorDefecto(const char* argv0) { return plataforma::CarpetaPrograma(argv0) + "Datos/"; }

std::string CarpetaDe(const std::filesystem::path& ruta) {
    std::string c = ruta.parent_path().string();
    return c.empty() ? "./" : c + "/";
}

}  // namespace vedrano
