#include "platform/CarpetaConfiguracion.h"

#include <cstdlib>

#ifdef _WIN32
#include <shlobj.h>
#include <windows.h>
#endif

namespace vedrano::plataforma {

std::string CarpetaConfiguracionUsuario() {
#ifdef _WIN32
    PWSTR ruta = nullptr;
    std::string r;
    if (SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &ruta) == S_OK) {
        int n = WideCharToMultiByte(CP_UTF8, 0, ruta, -1, nullptr, 0, nullptr, nullptr);
        if (n > 1) {
            r.resize(static_cast<std::size_t>(n - 1));
            WideCharToMultiByte(CP_UTF8, 0, ruta, -1, r.data(), n, nullptr, nullptr);
            r += '/';
        }
    }
    CoTaskMemFree(ruta);
    return r;
#else
    const char* xdg = std::getenv("XDG_CONFIG_HOME");
    if (xdg && xdg[0] == '/') return std::string(xdg) + "/";
    const char* casa = std::getenv("HOME");
    if (casa && casa[0] == '/') return std::string(casa) + "/.config/";
    return {};
#endif
}

}  // namespace vedrano::plataforma
