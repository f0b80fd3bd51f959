#include "config/EscrituraSegura.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#if __has_include(<unistd.h>)
#include <sys/stat.h>
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

// A device or a pipe cannot be replaced by renaming: it is written into.
int EscribeEnDispositivo(const std::filesystem::path& destino, std::string_view contenido) {
    FILE* f = std::fopen(destino.c_str(), "wb");
    if (!f) return ErrorDeSistema(errno);
    bool bien = std::fwrite(contenido.data(), 1, contenido.size(), f) == contenido.size() && std::fflush(f) == 0;
    int codigo = bien ? 0 : errno;
    if (std::fclose(f) != 0 && bien) codigo = errno;
    return codigo == 0 ? 0 : ErrorDeSistema(codigo);
}

}  // namespace

int EscribeArchivoEntero(const std::string& ruta, std::string_view contenido) {
    namespace fs = std::filesystem;
    std::error_code ec;
    // A symbolic link stays a link: the file it points at is the one replaced.
    fs::path destino(ruta);
    if (fs::is_symlink(destino, ec)) {
        fs::path final = fs::weakly_canonical(destino, ec);
        if (ec) return ErrorDeSistema(ec.value());
        destino = final;
    }
    fs::path carpeta = destino.parent_path();
    if (carpeta.empty()) carpeta = ".";
    if (!fs::is_directory(carpeta, ec)) return ErrRutaNoEncontrada;
    const fs::file_status antes = fs::status(destino, ec);
    if (fs::is_directory(antes)) return ErrAccesoRuta;
    if (fs::exists(antes) && !fs::is_regular_file(antes)) return EscribeEnDispositivo(destino, contenido);

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

    // The new file gets the old one's permissions (a private 0600 file stays
    // private); a new name gets what the user's umask allows.
#if __has_include(<unistd.h>)
    if (fs::exists(antes)) ::fchmod(::fileno(f), static_cast<mode_t>(antes.permissions()) & 07777);
#endif
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
