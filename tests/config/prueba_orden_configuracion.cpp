// "vedrano-cli configuracion" run as users run it.
#include <gtest/gtest.h>

#include <filesystem>

#include "../Ayudas.h"

namespace fs = std::filesystem;

namespace {

struct Salida {
    int estado;
    std::string texto;
};

// Standard output and error together, as the user sees them.
Salida Ejecuta(const std::string& argumentos) {
    pruebas::Ejecucion e = pruebas::EjecutaCli("configuracion " + argumentos);
    return {e.codigo, e.salida + e.errores};
}

}  // namespace

TEST(OrdenConfiguracion, ListaReescribeYFallaSinArchivo) {
    const fs::path muestra = fs::path(VEDRANO_RAIZ) / "Archivo" / "Plutón.ls1";
    const fs::path copia = fs::temp_directory_path() / ("vedrano_orden_" + std::to_string(::getpid()) + ".ls1");
    Salida s = Ejecuta("--lee '" + muestra.string() + "' --escribe '" + copia.string() + "'");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_NE(s.texto.find("1.2 IndiceLugar = 88\n"), std::string::npos) << s.texto;
    EXPECT_NE(s.texto.find("2.1 TextoLugar = \"Los Ángeles (USA)\"\n"), std::string::npos) << s.texto;
    EXPECT_NE(s.texto.find("4.18 ImagenEnPantalla = #FALSE#\n"), std::string::npos) << s.texto;
    EXPECT_EQ(pruebas::LeeArchivo(copia), pruebas::LeeArchivo(muestra));
    fs::remove(copia);

    s = Ejecuta("--lee /no/existe/Nada.ls1");
    EXPECT_EQ(s.estado, 1);
    EXPECT_NE(s.texto.find("No existe un archivo de configuración con ese nombre."), std::string::npos);
}
