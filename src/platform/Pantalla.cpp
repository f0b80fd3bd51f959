#include "platform/Pantalla.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vedrano::plataforma {

#ifdef _WIN32
namespace {

long Cambio(DWORD banderas) {
    DEVMODEA modo{};
    modo.dmSize = sizeof modo;
    if (!EnumDisplaySettingsA(nullptr, ENUM_CURRENT_SETTINGS, &modo)) return -1;
    modo.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
    modo.dmPelsWidth = 800;
    modo.dmPelsHeight = 600;
    return ChangeDisplaySettingsA(&modo, banderas);
}

}  // namespace

long PruebaCambioSistema() { return Cambio(CDS_TEST); }
long CambioSistema() { return Cambio(CDS_UPDATEREGISTRY); }
#else
// Display modes belong to the window system here, not to programs: the
// test reports a failure, which the start-up turns into its honest message.
long PruebaCambioSistema() { return -1; }
long CambioSistema() { return -1; }
#endif

}  // namespace vedrano::plataforma
