// The list command run as users run it: category names typed loosely, text
// out in UTF-8, loader messages on standard error.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "../Ayudas.h"

namespace {

namespace fs = std::filesystem;

struct Salida {
    int codigo;
    std::vector<std::string> lineas;
    std::string errores;
};

Salida Lista(const std::string& argumentos) {
    pruebas::Ejecucion e = pruebas::EjecutaCli("lista " + argumentos);
    return {e.codigo, e.Lineas(), e.errores};
}

TEST(ListaCli, CategoriasSinDistinguirMayusculasNiAcentos) {
    Salida s = Lista("'CUMULOS abiertos'");
    EXPECT_EQ(s.codigo, 0);
    EXPECT_EQ(s.lineas.size(), 296u);
    EXPECT_EQ(s.errores, "");
    s = Lista("Lugares");
    ASSERT_EQ(s.lineas.size(), 178u);
    EXPECT_EQ(s.lineas[95], "Málaga (oeste) (ESP)");
    EXPECT_EQ(Lista("sistema solar").lineas.size(), 11u);  // two words, unquoted
    EXPECT_EQ(Lista("'Quásares'").lineas.size(), 148u);
}

TEST(ListaCli, CategoriaDesconocidaSale2ConLosNombresValidos) {
    Salida s = Lista("Cometas");
    EXPECT_EQ(s.codigo, 2);
    EXPECT_TRUE(s.lineas.empty());
    EXPECT_NE(s.errores.find("Cometas"), std::string::npos);
    EXPECT_NE(s.errores.find("Cúmulos Globulares"), std::string::npos);
    EXPECT_EQ(Lista("").codigo, 2);
}

TEST(ListaCli, ConDatosIncompletosAvisaYNoEscribeFilasVacias) {
    fs::path vacia = fs::temp_directory_path() / ("vedrano_sin_datos_" + std::to_string(::getpid()));
    fs::create_directories(vacia);
    Salida s = Lista("'Sistema Solar' --datos '" + vacia.string() + "'");
    fs::remove_all(vacia);
    EXPECT_EQ(s.codigo, 1);
    EXPECT_TRUE(s.lineas.empty());
    EXPECT_NE(s.errores.find("Cargando datos iniciales: ERROR CTA53: No existe el fichero"), std::string::npos);
}

}  // namespace
