#include "platform/CarpetaPrograma.h"

#include <filesystem>

namespace vedrano::plataforma {

std::string CarpetaPrograma(const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path exe = fs::canonical("/proc/self/exe", ec);
    if (ec) exe = fs::absolute(argv0 ? argv0 : "", ec);
    fs::path dir = exe.parent_path();
    for (const fs::path& candidata : {dir, dir.parent_path() / "share" / "vedrano"})
        if (fs::is_directory(candidata / "Datos", ec)) return candidata.string() + "/";
#ifdef VEDRANO_RAIZ_FUENTE
    return VEDRANO_RAIZ_FUENTE;
#else
    return dir.string() + "/";
#endif
}

}  // namespace vedrano::plataforma
