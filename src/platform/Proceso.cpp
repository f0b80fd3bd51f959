#include "platform/Proceso.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#include <unistd.h>
#endif

namespace vedrano::plataforma {

long IdProceso() {
#ifdef _WIN32
    return static_cast<long>(GetCurrentProcessId());
#else
    return static_cast<long>(::getpid());
#endif
}

bool ProcesoVivo(long id) {
    if (id <= 0) return true;
#ifdef _WIN32
    HANDLE h = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(id));
    if (!h) return GetLastError() != ERROR_INVALID_PARAMETER;
    DWORD codigo = 0;
    const bool vivo = GetExitCodeProcess(h, &codigo) && codigo == STILL_ACTIVE;
    CloseHandle(h);
    return vivo;
#else
    // EPERM: it exists, under another user.
    return ::kill(static_cast<pid_t>(id), 0) == 0 || errno != ESRCH;
#endif
}

}  // namespace vedrano::plataforma
