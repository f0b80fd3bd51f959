#include "config/EscrituraSegura.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

#include "config/ErroresArchivo.h"

namespace vedrano {

namespace {

// Forces the data to the disk before the rename makes it the file, so that
// a power cut right after cannot leave an empty file under the old name.
bool VuelcaADisco(FILE* f) {
    if (std::fflush(f) != 0) return false;
#if __has_include(<unistd.h>)
    if (::fsync(::fileno(f)) != 0) return false;
#endif
    return true;
}

}  // namespace

int EscribeArchivoEntero(const std::string& ruta, std::string_view contenido) {
    namespace fs = std::filesystem;
    const fs::path destino(ruta);
    fs::path carpeta = destino.parent_path();
    if (carpeta.empty()) carpeta = ".";
    std::error_code ec;
    if (!fs::is_directory(carpeta, ec)) return ErrRutaNoEncontrada;
    if (fs::is_directory(destino, ec)) return ErrAccesoRuta;

    // A fresh name each time, opened exclusively, so that two programs saving
    // at once never share a temporary file.
    std::random_device azar;
    fs::path temporal;
    FILE* f = nullptr;
    for (int intento = 0; intento < 20 && !f; ++intento) {
        std::string nombre(1, '.');
        nombre += destino.filename().string();
        nombre += '.';
        nombre += std::to_string(azar());
        nombre += ".tmp";
        temporal = carpeta / nombre;
        f = std::fopen(temporal.c_str(), "wbx");
        if (!f && errno != EEXIST) return ErrorDeSistema(errno);
    }
    if (!f) return ErrAccesoRuta;

    bool bien = std::fwrite(contenido.data(), 1, contenido.size(), f) == contenido.size();
    bien = bien && VuelcaADisco(f);
    int codigo = bien ? 0 : errno;
    if (std::fclose(f) != 0 && bien) {
        bien = false;
        codigo = errno;
    }
    if (bien) {
        fs::rename(temporal, destino, ec);
        if (!ec) return 0;
        codigo = ec.value();
    }
    fs::remove(temporal, ec);  // the error reported is the write's; a failed clean-up adds nothing
    return ErrorDeSistema(codigo);
}

}  // namespace vedrano
