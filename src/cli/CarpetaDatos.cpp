#include "cli/CarpetaDatos.h"

#include <filesystem>

namespace vedrano {

std::string CarpetaDatosPorDefecto(const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path exe = fs::canonical("/proc/self/exe", ec);
    if (ec) exe = fs::absolute(argv0, ec);
    fs::path dir = exe.parent_path();
    for (const fs::path& candidata : {dir / "Datos", dir.parent_path() / "share" / "vedrano" / "Datos"})
        if (fs::is_directory(candidata, ec)) return candidata.string() + "/";
#ifdef VEDRANO_DATOS_FUENTE
    return VEDRANO_DATOS_FUENTE;
#else
    return (dir / "Datos").string() + "/";
#endif
}

}  // namespace vedrano
