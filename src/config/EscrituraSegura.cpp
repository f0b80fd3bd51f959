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
#include "platform/Proceso.h"

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

// ".NAME.PID-N.tmp": the writer's process number in the name tells a
// leftover of a killed writer from the file of one still at work.
std::string PrefijoTemporal(const std::string& nombre) { return "." + nombre + "."; }

void LimpiaEn(const std::filesystem::path& carpeta, const std::string& prefijo) {
    namespace fs = std::filesystem;
    std::error_code ec;
    for (fs::directory_iterator it(carpeta, ec), fin; !ec && it != fin; it.increment(ec)) {
        const std::string n = it->path().filename().string();
        if (n.size() < prefijo.size() + 4 || n.compare(0, prefijo.size(), prefijo) != 0 ||
            n.compare(n.size() - 4, 4, ".tmp") != 0)
            continue;
        // The process number is the digits after the last dot but one.
        const std::size_t punto = n.rfind('.', n.size() - 5);
        const std::size_t guion = n.find('-', punto);
        if (punto == std::string::npos || guion == std::string::npos || guion == punto + 1) continue;
        long id = 0;
        bool numero = true;
        for (std::size_t i = punto + 1; i < guion && numero; ++i) {
            numero = n[i] >= '0' && n[i] <= '9' && id < 100000000;
            id = id * 10 + (n[i] - '0');
        }
        if (!numero || plataforma::ProcesoVivo(id)) continue;
        std::error_code borrado;
        fs::remove(it->path(), borrado);
    }
}

}  // namespace

void LimpiaTemporales(const std::string& carpeta) { LimpiaEn(carpeta, "."); }

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

    // What a writer killed while saving this file left behind goes first.
    const std::string prefijo = PrefijoTemporal(destino.filename().string());
    LimpiaEn(carpeta, prefijo);

    // A fresh name each time, opened exclusively, so that two programs saving
    // at once never share a temporary file.
    std::random_device azar;
    fs::path temporal;
    FILE* f = nullptr;
    for (int intento = 0; intento < 20 && !f; ++intento) {
        std::string nombre = prefijo;
        nombre += std::to_string(plataforma::IdProceso());
        nombre += '-';
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
