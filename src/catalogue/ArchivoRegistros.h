// A data file of fixed-length records opened for random access. The loader
// reads each table with one read of all its records: a missing file then
// costs one message for the open, one for the read and one for the close,
// not one per record.
#pragma once
#include <cstdio>
#include <span>
#include <string>

#include "app/base/ErrorEjecucion.h"
#include "catalogue/DecodificaRegistros.h"

namespace vedrano {

class ArchivoRegistros {
public:
    ArchivoRegistros() = default;
    ArchivoRegistros(const ArchivoRegistros&) = delete;
    ArchivoRegistros& operator=(const ArchivoRegistros&) = delete;
    ~ArchivoRegistros();

    // A missing or unreadable file raises 53.
    void Abre(const std::string& ruta, std::size_t largoRegistro);

    // Reads records primero, primero + 1, ... (numbered from 1) into the
    // elements of `destino`. Records past the end of the file read blank,
    // and then the short file raises 62 (input past the end), so that a cut
    // or empty file is told and never passes for a whole one. A file that
    // is not open raises 52 and leaves `destino` as it was.
    template <class Registro>
    void Lee(long primero, std::span<Registro> destino) {
        std::string bytes = LeeBytes(primero, destino.size());
        std::string_view todo(bytes);
        for (std::size_t i = 0; i < destino.size(); ++i) {
            std::size_t desde = i * largo_;
            Decodifica(desde < todo.size() ? todo.substr(desde, largo_) : std::string_view{}, destino[i]);
        }
        if (todo.size() < destino.size() * largo_) throw ErrorEjecucion(ErrFinDeArchivo);
    }

    // A file that is not open raises 52.
    void Cierra();

private:
    std::string LeeBytes(long primero, std::size_t cuantos);
    std::FILE* f_ = nullptr;
    std::size_t largo_ = 0;
};

}  // namespace vedrano
