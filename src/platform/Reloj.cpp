#include "platform/Reloj.h"

#include <chrono>

#ifdef _WIN32
#include <windows.h>
#include <mmsystem.h>
#endif

namespace vedrano::plataforma {

namespace {

// Days from 30 December 1899 to 1 January 1970.
constexpr double DIAS_HASTA_1970 = 25569.0;

}  // namespace

double FechaHoraUniversal() {
#ifdef _WIN32
    // FILETIME counts 100 ns intervals from 1 January 1601 (UTC).
    FILETIME ft;
    GetSystemTimeAsFileTime(&ft);
    const unsigned long long t = (static_cast<unsigned long long>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
    constexpr double DIAS_1601_A_1899 = 109205.0;  // 1 January 1601 to 30 December 1899
    return static_cast<double>(t) / 864000000000.0 - DIAS_1601_A_1899;
#else
    using namespace std::chrono;
    const double segundos = duration<double>(system_clock::now().time_since_epoch()).count();
    return DIAS_HASTA_1970 + segundos / 86400.0;
#endif
}

unsigned long Milisegundos() {
#ifdef _WIN32
    return timeGetTime();
#else
    using namespace std::chrono;
    return static_cast<unsigned long>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
#endif
}

}  // namespace vedrano::plataforma
