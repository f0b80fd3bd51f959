#include "platform/Reloj.h"

#include <chrono>
#include <ctime>

#ifdef _WIN32
#include <windows.h>
#include <mmsystem.h>
#endif

namespace vedrano::plataforma {

namespace {

// Days from 30 December 1899 to 1 January 1970.
constexpr double DIAS_HASTA_1970 = 25569.0;

}  // namespace

double FechaHoraLocal() {
#ifdef _WIN32
    SYSTEMTIME st;
    GetLocalTime(&st);
    std::tm t{};
    t.tm_year = st.wYear - 1900;
    t.tm_mon = st.wMonth - 1;
    t.tm_mday = st.wDay;
    // The civil fields, counted as if they were UTC, give the local serial.
    std::time_t dias = _mkgmtime(&t) / 86400;
    return DIAS_HASTA_1970 + static_cast<double>(dias) +
           (st.wHour * 3600.0 + st.wMinute * 60.0 + st.wSecond + st.wMilliseconds / 1000.0) / 86400.0;
#else
    using namespace std::chrono;
    auto ahora = system_clock::now();
    std::time_t segundos = system_clock::to_time_t(ahora);
    std::tm local{};
    localtime_r(&segundos, &local);
    // Seconds of the local civil time counted from 1970 as if it were UTC.
    double civil = static_cast<double>(segundos) + static_cast<double>(local.tm_gmtoff);
    double fraccion = duration<double>(ahora.time_since_epoch()).count() - static_cast<double>(segundos);
    return DIAS_HASTA_1970 + (civil + fraccion) / 86400.0;
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
