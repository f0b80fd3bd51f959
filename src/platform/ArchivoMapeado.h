// A file seen as memory, read-only: the system brings its pages in when
// they are first read, so a large table costs nothing until it is used.
#pragma once
#include <cstddef>
#include <string>

namespace vedrano::plataforma {

class ArchivoMapeado {
public:
    ArchivoMapeado() = default;
    ~ArchivoMapeado();
    ArchivoMapeado(const ArchivoMapeado&) = delete;
    ArchivoMapeado& operator=(const ArchivoMapeado&) = delete;

    // Maps the file (a UTF-8 path). False when it cannot be opened or mapped;
    // `error` then holds the system's reason.
    bool Abre(const std::string& ruta, std::string& error);
    const unsigned char* Datos() const { return datos_; }
    std::size_t Tamano() const { return tamano_; }

private:
    void Cierra();
    const unsigned char* datos_ = nullptr;
    std::size_t tamano_ = 0;
#ifdef _WIN32
    void* archivo_ = nullptr;
    void* mapa_ = nullptr;
#endif
};

}  // namespace vedrano::plataforma
