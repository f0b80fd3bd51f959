// "vedrano-cli configuracion" run as users run it.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

struct Salida {
    int estado;
    std::string texto;
};

Salida Ejecuta(const std::string& argumentos) {
    std::string orden = std::string(VEDRANO_CLI) + " configuracion " + argumentos + " 2>&1";
    FILE* p = popen(orden.c_str(), "r");
    Salida s{-1, ""};
    if (!p) return s;
    char buf[4096];
    while (std::fgets(buf, sizeof buf, p)) s.texto += buf;
    int w = pclose(p);
    s.estado = WIFEXITED(w) ? WEXITSTATUS(w) : -1;
    return s;
}

std::string Lee(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
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
    EXPECT_EQ(Lee(copia), Lee(muestra));
    fs::remove(copia);

    s = Ejecuta("--lee /no/existe/Nada.ls1");
    EXPECT_EQ(s.estado, 1);
    EXPECT_NE(s.texto.find("No existe un archivo de configuración con ese nombre."), std::string::npos);
}
