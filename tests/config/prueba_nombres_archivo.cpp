// File names outside Windows-1252 and the way a saved file replaces the old
// one: permissions kept, symbolic links kept.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "../Ayudas.h"
#include "app/estado/Vista.h"
#include "config/EscribeConfiguracion.h"
#include "config/EscrituraSegura.h"
#include "config/LeeConfiguracion.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

class NombresArchivo : public ::testing::Test {
protected:
    pruebas::CarpetaPrueba dir{"vedrano_nombres"};
    const fs::path& carpeta = dir.ruta;
};

}  // namespace

TEST_F(NombresArchivo, NombresUnicodeSeGuardanYSeLeenTalCual) {
    Estado e;
    e.DirArchivo = carpeta.string() + "/";
    pruebas::Anota ui;
    FijaZoom(e, 3.5f);
    for (const char* nombre : {"Ωmega-copia", "東京.ls1", "Ñandú"}) {
        SCOPED_TRACE(nombre);
        ResultadoConfiguracion w = EscribeConfiguracion(e, nombre, ui, false);
        ASSERT_TRUE(w.escrito);
        // On disk under exactly that name, not "?mega-copia.ls1".
        EXPECT_TRUE(fs::is_regular_file(carpeta / fs::u8path(w.archivo)));
        Estado leido;
        leido.DirArchivo = e.DirArchivo;
        EXPECT_EQ(LeeConfiguracion(leido, w.archivo, ui).error, 0);
        EXPECT_EQ(leido.Zoom, 3.5f);
    }
    EXPECT_TRUE(fs::exists(carpeta / fs::u8path("Ωmega-copia.ls1")));
    EXPECT_TRUE(fs::exists(carpeta / fs::u8path("Ñandú.ls1")));
    EXPECT_TRUE(ui.vistos.empty());
}

TEST_F(NombresArchivo, ReemplazarConservaPermisosYEnlaces) {
    const fs::path privado = carpeta / "privado.ls1";
    std::ofstream(privado) << "viejo";
    fs::permissions(privado, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_EQ(EscribeArchivoEntero(privado.string(), "nuevo"), 0);
    EXPECT_EQ(pruebas::LeeArchivo(privado), "nuevo");
    EXPECT_EQ(fs::status(privado).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::owner_write);

    // Through a relative link in another folder: the link stays a link and
    // the file it points at gets the text.
    fs::create_directories(carpeta / "otra");
    const fs::path enlace = carpeta / "otra" / "enlace.ls1";
    fs::create_symlink("../privado.ls1", enlace);
    ASSERT_EQ(EscribeArchivoEntero(enlace.string(), "por el enlace"), 0);
    EXPECT_TRUE(fs::is_symlink(enlace));
    EXPECT_EQ(pruebas::LeeArchivo(privado), "por el enlace");
    EXPECT_EQ(fs::status(privado).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::owner_write);

    // A device is written into, never replaced; a full one is an error.
    EXPECT_NE(EscribeArchivoEntero("/dev/full", "x"), 0);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    for (const auto& f : fs::directory_iterator(carpeta))
        EXPECT_EQ(f.path().extension(), f.is_directory() ? "" : ".ls1") << f.path();
}
