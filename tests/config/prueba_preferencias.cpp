// The program-preferences file: defaults without it, good values kept from
// a damaged one, and a write that replaces the file whole or says why not.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "../Ayudas.h"
#include "config/Preferencias.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

fs::path CarpetaPrueba(const char* nombre) {
    fs::path d = fs::temp_directory_path() / "vedrano_preferencias" / nombre;
    fs::remove_all(d);
    return d;
}

void Escribe(const fs::path& ruta, const std::string& texto) {
    fs::create_directories(ruta.parent_path());
    std::ofstream(ruta, std::ios::binary) << texto;
}

using pruebas::LeeArchivo;

}  // namespace

TEST(Preferencias, SinArchivoOConArchivoDanadoDanLosValoresPorDefecto) {
    fs::path d = CarpetaPrueba("lectura");
    EXPECT_EQ(LeePreferencias((d / "no-existe.ini").string()), Preferencias{});
    EXPECT_EQ(LeePreferencias(""), Preferencias{});
    EXPECT_EQ(LeePreferencias(d.string()), Preferencias{});  // a folder, not a file

    // Good lines count whatever surrounds them; bad values and unknown keys
    // are passed over.
    Escribe(d / "a.ini", std::string("basura sin igual\n\x01\xFF\x00zz\n[General]\r\n  PrecisionAlta = true \r\nOtra=3\n", 66));
    EXPECT_TRUE(LeePreferencias((d / "a.ini").string()).PrecisionAlta);
    Escribe(d / "b.ini", "PrecisionAlta=quizas\nPrecisionAlta\n=true\n");
    EXPECT_FALSE(LeePreferencias((d / "b.ini").string()).PrecisionAlta);
    Escribe(d / "c.ini", "; PrecisionAlta=true\n# PrecisionAlta=true\n");
    EXPECT_FALSE(LeePreferencias((d / "c.ini").string()).PrecisionAlta);
    // A damaged value of one key does not disturb the good ones around it.
    Escribe(d / "d.ini", "EstrellasDebiles=tru\nTodosLosRotulos=1\nPrecisionAlta=true\xFF\n");
    Preferencias p = LeePreferencias((d / "d.ini").string());
    EXPECT_FALSE(p.EstrellasDebiles);
    EXPECT_TRUE(p.TodosLosRotulos);
    EXPECT_FALSE(p.PrecisionAlta);
}

TEST(Preferencias, EscribirYLeerDevuelveLoEscritoYUnFalloLoDice) {
    fs::path d = CarpetaPrueba("escritura");
    fs::path ruta = d / "vedrano" / "preferencias.ini";  // the folder is made
    // Each key on its own survives being written and read back.
    Preferencias p;
    for (bool Preferencias::*clave :
         {&Preferencias::PrecisionAlta, &Preferencias::EstrellasDebiles, &Preferencias::TodosLosRotulos}) {
        Preferencias una;
        una.*clave = true;
        EXPECT_EQ(EscribePreferencias(una, ruta.string()), "");
        EXPECT_EQ(LeePreferencias(ruta.string()), una);
    }
    p.PrecisionAlta = p.TodosLosRotulos = true;
    EXPECT_EQ(EscribePreferencias(p, ruta.string()), "");
    EXPECT_EQ(LeePreferencias(ruta.string()), p);
    p.PrecisionAlta = false;
    EXPECT_EQ(EscribePreferencias(p, ruta.string()), "");
    EXPECT_EQ(LeePreferencias(ruta.string()), p);
    EXPECT_EQ(LeeArchivo(ruta), TextoPreferencias(p));

    // Where a file stands in the way of the folder, nothing is written, the
    // old file is kept and the user is told.
    Escribe(d / "tapon", "x");
    std::string error = EscribePreferencias(p, (d / "tapon" / "preferencias.ini").string());
    EXPECT_NE(error.find("No se han podido guardar las preferencias"), std::string::npos);
    EXPECT_EQ(LeeArchivo(d / "tapon"), "x");
    EXPECT_EQ(EscribePreferencias(p, ""), "");  // not kept: nothing to say
}
