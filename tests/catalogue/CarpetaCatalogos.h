// A folder of catalogue files of the test's own, loaded into fresh tables
// with the loader's messages noted.
#pragma once
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "../Ayudas.h"

namespace pruebas {

class CarpetaCatalogos : public ::testing::Test {
protected:
    CarpetaPrueba carpeta{"vedrano_catalogos"};
    const std::filesystem::path& dir = carpeta.ruta;
    // The shipped files, copied in.
    void CopiaDatos() {
        for (const auto& f : std::filesystem::directory_iterator(VEDRANO_DATOS))
            if (f.path().extension() == ".DAT") std::filesystem::copy_file(f.path(), dir / f.path().filename());
    }
    // `bytes` as file `nombre`, over a file or a folder of that name.
    void Escribe(const std::string& nombre, const std::string& bytes) {
        std::filesystem::remove_all(dir / nombre);
        std::ofstream(dir / nombre, std::ios::binary) << bytes;
    }
    vedrano::Catalogos& Carga() {
        vedrano::CargaCatalogos(dir.string(), *c, avisos);
        return *c;
    }
    std::unique_ptr<vedrano::Catalogos> c = std::make_unique<vedrano::Catalogos>();
    Anota avisos;
};

}  // namespace pruebas
