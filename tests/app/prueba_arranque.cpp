// Start-up without a window: working folders and the screen check.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "../Ayudas.h"
#include "app/acciones/Arranque.h"
#include "app/base/Texto1252.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

fs::path CarpetaTemporal(const std::string& nombre) {
    fs::path p = fs::temp_directory_path() / ("vedrano_" + nombre + "_" + std::to_string(::getpid()));
    fs::remove_all(p);
    fs::create_directories(p);
    return p;
}

// An installation with the fourteen samples under their source names.
fs::path Instalacion(const std::string& nombre) {
    fs::path raiz = CarpetaTemporal(nombre);
    fs::create_directories(raiz / "Archivo");
    for (const auto& m : MUESTRAS)
        std::ofstream(raiz / "Archivo" / fs::path(reinterpret_cast<const char8_t*>(m.origen))) << m.origen;
    return raiz;
}

using Respuestas = pruebas::Anota;

struct PantallaFalsa : plataforma::Pantalla {
    int ancho, alto;
    long prueba = -1, cambio = 0;
    int cambios = 0;
    PantallaFalsa(int w, int h) : ancho(w), alto(h) {}
    int Ancho() const override { return ancho; }
    int Alto() const override { return alto; }
    long PruebaCambio800x600() override { return prueba; }
    long Cambia800x600() override { return ++cambios, cambio; }
};

}  // namespace

TEST(Arranque, WritableInstallationLeavesNoProbe) {
    fs::path raiz = Instalacion("escribible");
    Estado e;
    PreparaCarpetas(e, raiz.string(), CarpetaTemporal("sistema1").string());
    EXPECT_FALSE(e.SoloLectura);
    EXPECT_EQ(e.DirPrograma, raiz.string() + "/");
    EXPECT_EQ(e.DirArchivo, raiz.string() + "/Archivo/");
    EXPECT_EQ(e.DirDatos, raiz.string() + "/Datos/");
    EXPECT_FALSE(fs::exists(raiz / "CSCD.WRK"));
    fs::remove_all(raiz);
}

TEST(Arranque, ReadOnlyInstallationCopiesTheSamplesAtEveryStart) {
    fs::path raiz = Instalacion("lectura");
    // A folder standing where the probe file would go makes the probe fail,
    // whoever runs the test (root writes anywhere else).
    fs::create_directory(raiz / "CSCD.WRK");
    fs::path sistema = CarpetaTemporal("sistema2");
    for (int vez = 0; vez < 2; ++vez) {
        Estado e;
        PreparaCarpetas(e, raiz.string(), sistema.string());
        ASSERT_TRUE(e.SoloLectura);
        EXPECT_EQ(e.DirPrograma, sistema.string() + "/Temp/Qrx/");
        EXPECT_EQ(e.DirArchivo, sistema.string() + "/Temp/Qrx/Archivo/");
        EXPECT_EQ(e.DirDatos, raiz.string() + "/Datos/");  // catalogues stay in the installation
        int copias = 0;
        for (const auto& entrada : fs::directory_iterator(e.DirArchivo)) {
            (void)entrada;
            ++copias;
        }
        EXPECT_EQ(copias, 14);
        EXPECT_TRUE(fs::exists(fs::path(e.DirArchivo) / fs::path(u8"Cúmulo de Virgo.ls1")));
        EXPECT_FALSE(fs::exists(fs::path(e.DirArchivo) / fs::path(u8"Cúmula de Virgo.ls1")));
        // A user's change to a copy is overwritten at the next start.
        if (vez == 0) std::ofstream(fs::path(e.DirArchivo) / "Inicial.ls1") << "cambiado";
    }
    std::ifstream f(sistema / "Temp/Qrx/Archivo/Inicial.ls1");
    std::string contenido;
    std::getline(f, contenido);
    EXPECT_EQ(contenido, "Inicial.ls1");
    fs::remove_all(raiz);
    fs::remove_all(sistema);
}

TEST(Arranque, ScreenWidthCheck) {
    Respuestas r;
    PantallaFalsa ancha(800, 480);
    EXPECT_TRUE(CompruebaPantalla(ancha, r));
    EXPECT_TRUE(r.vistos.empty());

    PantallaFalsa estrecha(799, 1200);
    r.respuesta = 0;  // Cancel: the program ends
    EXPECT_FALSE(CompruebaPantalla(estrecha, r));
    ASSERT_EQ(r.vistos.size(), 1u);
    EXPECT_EQ(r.vistos[0].titulo, A1252("Resolución de pantalla"));
    EXPECT_NE(r.vistos[0].texto.find("es de (799x1200).  Pulse"), std::string::npos);
    EXPECT_EQ(estrecha.cambios, 0);

    // Accept, on a system that cannot change the mode: one honest message.
    Respuestas s;
    PantallaFalsa vieja(640, 480);
    EXPECT_TRUE(CompruebaPantalla(vieja, s));
    ASSERT_EQ(s.vistos.size(), 2u);
    EXPECT_NE(s.vistos[0].texto.find("(640x480)"), std::string::npos);
    EXPECT_EQ(s.vistos[1].texto, A1252("No se puede cambiar la resolución de la pantalla."));
    EXPECT_EQ(s.vistos[1].titulo, A1252("Cambio de resolución de pantalla"));

    for (long resultado : {0L, 1L, 5L}) {
        Respuestas t;
        PantallaFalsa cambiable(640, 480);
        cambiable.prueba = 0;
        cambiable.cambio = resultado;
        EXPECT_TRUE(CompruebaPantalla(cambiable, t));
        ASSERT_EQ(t.vistos.size(), 2u);
        const char* esperado = resultado == 0   ? "Se ha cambiado con éxito la resolución de la pantalla a 800x600."
                               : resultado == 1 ? "Necesita reiniciar el equipo para que los cambios tengan efecto."
                                                : "No se ha podido realizar el cambio de resolución de la pantalla. "
                                                  "Inténtelo de forma manual.";
        EXPECT_EQ(t.vistos[1].texto, A1252(esperado));
    }
}
