// The list command run as users run it: category names typed loosely, text
// out in UTF-8, loader messages on standard error.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Salida {
    int codigo = -1;
    std::vector<std::string> lineas;
    std::string errores;
};

Salida Lista(const std::string& argumentos) {
    fs::path err = fs::temp_directory_path() / ("vedrano_lista_" + std::to_string(::getpid()));
    std::string orden = std::string(VEDRANO_CLI) + " lista " + argumentos + " 2> '" + err.string() + "'";
    Salida s;
    FILE* p = popen(orden.c_str(), "r");
    if (!p) return s;
    char buf[4096];
    while (std::fgets(buf, sizeof buf, p)) {
        std::string l = buf;
        if (!l.empty() && l.back() == '\n') l.pop_back();
        s.lineas.push_back(l);
    }
    int estado = pclose(p);
    s.codigo = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    std::ifstream e(err);
    std::stringstream t;
    t << e.rdbuf();
    s.errores = t.str();
    fs::remove(err);
    return s;
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
