#include "catalogue/ArchivoRegistros.h"

#include <filesystem>

namespace vedrano {

ArchivoRegistros::~ArchivoRegistros() {
    if (f_) std::fclose(f_);
}

void ArchivoRegistros::Abre(const std::string& ruta, std::size_t largoRegistro) {
    std::error_code ec;
    // A folder of that name opens on some systems and then reads nothing:
    // it is no data file.
    if (!std::filesystem::is_regular_file(ruta, ec)) throw ErrorEjecucion(ErrArchivoNoExiste);
    f_ = std::fopen(ruta.c_str(), "rb");
    if (!f_) throw ErrorEjecucion(ErrArchivoNoExiste);
    largo_ = largoRegistro;
}

std::string ArchivoRegistros::LeeBytes(long primero, std::size_t cuantos) {
    if (!f_) throw ErrorEjecucion(ErrNombreArchivo);
    std::string bytes(cuantos * largo_, '\0');
    long desde = (primero - 1) * static_cast<long>(largo_);
    if (std::fseek(f_, desde, SEEK_SET) != 0) return {};
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), f_));
    return bytes;
}

void ArchivoRegistros::Cierra() {
    if (!f_) throw ErrorEjecucion(ErrNombreArchivo);
    std::fclose(f_);
    f_ = nullptr;
}

}  // namespace vedrano
