#include "platform/ArchivoMapeado.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#endif

namespace vedrano::plataforma {

ArchivoMapeado::~ArchivoMapeado() { Cierra(); }

#ifdef _WIN32

// Windows: CreateFileW, CreateFileMappingW and MapViewOfFile.
bool ArchivoMapeado::Abre(const std::string& ruta, std::string& error) {
    Cierra();
    int n = MultiByteToWideChar(CP_UTF8, 0, ruta.c_str(), -1, nullptr, 0);
    std::wstring ancha(static_cast<std::size_t>(n > 0 ? n : 1), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, ruta.c_str(), -1, ancha.data(), n);
    HANDLE f = CreateFileW(ancha.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    if (f == INVALID_HANDLE_VALUE) {
        error = "no se puede abrir";
        return false;
    }
    LARGE_INTEGER t;
    if (!GetFileSizeEx(f, &t) || t.QuadPart == 0) {
        CloseHandle(f);
        error = "está vacío o no es un fichero";
        return false;
    }
    HANDLE m = CreateFileMappingW(f, nullptr, PAGE_READONLY, 0, 0, nullptr);
    void* p = m ? MapViewOfFile(m, FILE_MAP_READ, 0, 0, 0) : nullptr;
    if (!p) {
        if (m) CloseHandle(m);
        CloseHandle(f);
        error = "no se puede proyectar en memoria";
        return false;
    }
    archivo_ = f;
    mapa_ = m;
    datos_ = static_cast<const unsigned char*>(p);
    tamano_ = static_cast<std::size_t>(t.QuadPart);
    return true;
}

void ArchivoMapeado::Cierra() {
    if (datos_) UnmapViewOfFile(datos_);
    if (mapa_) CloseHandle(mapa_);
    if (archivo_) CloseHandle(archivo_);
    datos_ = nullptr;
    mapa_ = archivo_ = nullptr;
    tamano_ = 0;
}

#else

namespace {

// The user reads Spanish; the system's own words only where no plain
// reason fits.
std::string MotivoSistema(int numero) {
    switch (numero) {
        case ENOENT: return "no existe";
        case EACCES: return "no hay permiso para leerlo";
        case EISDIR: return "es una carpeta";
        default: return "no se puede abrir (" + std::string(std::strerror(numero)) + ")";
    }
}

}  // namespace

// POSIX: open, fstat and mmap; the descriptor is not needed once mapped.
bool ArchivoMapeado::Abre(const std::string& ruta, std::string& error) {
    Cierra();
    int fd = ::open(ruta.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        error = MotivoSistema(errno);
        return false;
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size == 0) {
        ::close(fd);
        error = "está vacío o no es un fichero";
        return false;
    }
    void* p = ::mmap(nullptr, static_cast<std::size_t>(st.st_size), PROT_READ, MAP_PRIVATE, fd, 0);
    ::close(fd);
    if (p == MAP_FAILED) {
        error = "no se puede proyectar en memoria (" + std::string(std::strerror(errno)) + ")";
        return false;
    }
    datos_ = static_cast<const unsigned char*>(p);
    tamano_ = static_cast<std::size_t>(st.st_size);
    return true;
}

void ArchivoMapeado::Cierra() {
    if (datos_) ::munmap(const_cast<unsigned char*>(datos_), tamano_);
    datos_ = nullptr;
    tamano_ = 0;
}

#endif

}  // namespace vedrano::plataforma
