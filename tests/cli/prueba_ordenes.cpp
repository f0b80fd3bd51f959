// The command lines of both programs: help and version on standard output
// with code 0; wrong lines, missing folders and full disks on standard error
// with a non-zero code and the option or file named.
#include <gtest/gtest.h>

#include <QStringList>
#include <filesystem>
#include <fstream>
#include <string>

#include "../Ayudas.h"
#include "cli/Argumentos.h"

namespace {

namespace fs = std::filesystem;
using vedrano::AnalizaArgumentos;
using vedrano::AnalizaArgumentosVentana;
using vedrano::Orden;

QStringList Linea(std::initializer_list<const char*> args) {
    QStringList l{QStringLiteral("vedrano-cli")};
    for (const char* a : args) l << QString::fromUtf8(a);
    return l;
}

using pruebas::Ejecucion;
using pruebas::EjecutaCli;

TEST(Ordenes, AyudaYVersionSalenBienPorLaSalidaEstandar) {
    auto a = AnalizaArgumentos(Linea({"--help"}));
    EXPECT_TRUE(a.terminar);
    EXPECT_EQ(a.codigo, 0);
    EXPECT_NE(a.salida.find("Órdenes:"), std::string::npos);
    EXPECT_EQ(a.error, "");
    for (const char* orden : {"calcula", "configuracion", "lista", "dibuja"}) {
        SCOPED_TRACE(orden);
        a = AnalizaArgumentos(Linea({orden, "--help"}));
        EXPECT_EQ(a.codigo, 0);
        EXPECT_EQ(a.salida.rfind(std::string("Uso: vedrano-cli ") + orden, 0), 0u);
        EXPECT_EQ(AnalizaArgumentos(Linea({orden, "-h"})).salida, a.salida);
    }
    a = AnalizaArgumentos(Linea({"--version"}));
    EXPECT_EQ(a.codigo, 0);
    EXPECT_EQ(a.salida, "vedrano-cli 3.2\n");
    // The real executable: help really reaches standard output.
    Ejecucion e = EjecutaCli("dibuja --help");
    EXPECT_EQ(e.codigo, 0);
    EXPECT_NE(e.salida.find("--salida FICHERO"), std::string::npos);
    EXPECT_EQ(e.errores, "");
}

TEST(Ordenes, OpcionesConIgualOSeparadas) {
    auto a = AnalizaArgumentos(Linea({"dibuja", "--ancho=800", "--alto", "600", "--salida=cielo ñ.png"}));
    ASSERT_FALSE(a.terminar) << a.error;
    EXPECT_EQ(a.opciones.orden, Orden::Dibuja);
    EXPECT_EQ(a.opciones.ancho, 800);
    EXPECT_EQ(a.opciones.alto, 600);
    EXPECT_EQ(a.opciones.salida, QStringLiteral("cielo ñ.png"));
    a = AnalizaArgumentos(Linea({"lista", "Sistema", "Solar", "--datos=/tmp/d"}));
    ASSERT_FALSE(a.terminar);
    EXPECT_EQ(a.opciones.categoria, QStringLiteral("Sistema Solar"));
    EXPECT_EQ(a.opciones.datos, QStringLiteral("/tmp/d"));
}

TEST(Ordenes, LineasMalasNombranLaOpcionYSalenCon2) {
    struct Caso {
        QStringList linea;
        const char* nombrado;
    };
    const Caso casos[] = {
        {Linea({"dibuja", "--nada", "--salida", "a.png"}), "--nada"},
        {Linea({"dibuja", "--ancho"}), "--ancho"},
        {Linea({"dibuja", "--ancho=15", "--salida", "a.png"}), "«15»"},
        {Linea({"dibuja", "--ancho=9x", "--salida", "a.png"}), "«9x»"},
        {Linea({"dibuja"}), "--salida"},
        {Linea({"calcula", "sobra"}), "sobra"},
        {Linea({"configuracion"}), "--lee"},
        {Linea({"configuracion", "--escribe", "b.ls1"}), "--lee"},
        {Linea({"lista"}), "categoría"},
        {Linea({"cometas"}), "cometas"},
        {Linea({"-x"}), "-x"},
        {Linea({}), "Uso:"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.linea.join(u' ').toStdString());
        auto a = AnalizaArgumentos(c.linea);
        EXPECT_TRUE(a.terminar);
        EXPECT_EQ(a.codigo, 2);
        EXPECT_EQ(a.salida, "");
        EXPECT_NE(a.error.find(c.nombrado), std::string::npos) << a.error;
    }
}

TEST(Ordenes, LaVentanaAbreElArchivoNombrado) {
    auto a = AnalizaArgumentosVentana({QStringLiteral("vedrano"), QStringLiteral("Ωmega 東京.ls1")});
    ASSERT_FALSE(a.terminar);
    EXPECT_EQ(a.opciones.config, QStringLiteral("Ωmega 東京.ls1"));
    EXPECT_TRUE(AnalizaArgumentosVentana({QStringLiteral("vedrano")}).opciones.config.isEmpty());
    a = AnalizaArgumentosVentana({QStringLiteral("vedrano"), QStringLiteral("--help")});
    EXPECT_EQ(a.codigo, 0);
    EXPECT_EQ(a.salida.rfind("Uso: vedrano [ARCHIVO.ls1]", 0), 0u);
    EXPECT_EQ(AnalizaArgumentosVentana({QStringLiteral("vedrano"), QStringLiteral("--version")}).salida,
              "vedrano 3.2\n");
    a = AnalizaArgumentosVentana({QStringLiteral("vedrano"), QStringLiteral("--pantalla")});
    EXPECT_EQ(a.codigo, 2);
    EXPECT_NE(a.error.find("--pantalla"), std::string::npos);
    EXPECT_EQ(AnalizaArgumentosVentana({QStringLiteral("vedrano"), QStringLiteral("a.ls1"), QStringLiteral("b.ls1")})
                  .codigo,
              2);
}

TEST(Ordenes, FaltasDeDatosYDeDiscoSalenMal) {
    const std::string datos = std::string("--datos '") + VEDRANO_DATOS + "'";
    // A data folder that does not exist: named, nothing written.
    Ejecucion e = EjecutaCli("lista Estrellas --datos /no/existe");
    EXPECT_EQ(e.codigo, 1);
    EXPECT_EQ(e.salida, "");
    EXPECT_NE(e.errores.find("/no/existe"), std::string::npos);
    EXPECT_EQ(EjecutaCli("calcula --datos /no/existe").codigo, 1);
    // A full disk, for each order that writes to standard output or a file.
    e = EjecutaCli("lista Estrellas " + datos, "/dev/null", "/dev/full");
    EXPECT_EQ(e.codigo, 1);
    EXPECT_NE(e.errores.find("no se puede escribir"), std::string::npos);
    fs::path lote = fs::temp_directory_path() / ("vedrano_ordenes_lote_" + std::to_string(::getpid()));
    std::ofstream(lote) << "TextoHoras 4.9\n";
    EXPECT_EQ(EjecutaCli("calcula " + datos, lote.string(), "/dev/full").codigo, 1);
    fs::remove(lote);
    const std::string eclipse = std::string("'") + VEDRANO_RAIZ + "/Archivo/Eclipse 2005.ls1'";
    EXPECT_EQ(EjecutaCli("configuracion --lee " + eclipse, "/dev/null", "/dev/full").codigo, 1);
    e = EjecutaCli("dibuja --ancho 64 --alto 64 --salida /dev/full " + datos);
    EXPECT_EQ(e.codigo, 1);
    EXPECT_NE(e.errores.find("/dev/full"), std::string::npos);
    // A configuration that cannot be read, named.
    e = EjecutaCli("configuracion --lee /no/existe.ls1");
    EXPECT_EQ(e.codigo, 1);
    EXPECT_NE(e.errores.find("/no/existe.ls1"), std::string::npos);
    e = EjecutaCli("dibuja --config /no/existe.ls1 --salida /tmp/x.png " + datos);
    EXPECT_EQ(e.codigo, 1);
    EXPECT_NE(e.errores.find("/no/existe.ls1"), std::string::npos);
}

}  // namespace
