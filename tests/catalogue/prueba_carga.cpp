// The catalogue loader: the list rules on small files made for each case,
// the error trap on missing, short and damaged files, and the shipped data.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "CarpetaCatalogos.h"
#include "catalogue/CargaCatalogos.h"

namespace {

using namespace vedrano;
namespace fs = std::filesystem;

// One record's bytes, field by field, little-endian.
struct Bytes {
    std::string b;
    Bytes& T(std::string_view s, std::size_t n) {
        std::string t(s.substr(0, n));
        b += t + std::string(n - t.size(), ' ');
        return *this;
    }
    Bytes& I(int16_t v) {
        b += static_cast<char>(v & 0xFF);
        b += static_cast<char>((v >> 8) & 0xFF);
        return *this;
    }
    Bytes& S(float f) {
        uint32_t u;
        std::memcpy(&u, &f, 4);
        for (int i = 0; i < 4; ++i) b += static_cast<char>((u >> (8 * i)) & 0xFF);
        return *this;
    }
    Bytes& Direccion() { return S(0).S(0).S(1); }
};

using Carpeta = pruebas::CarpetaCatalogos;

float Horas(double h, double m, double s) { return static_cast<float>((h + m / 60 + s / 3600) * 15 * M_PI / 180); }
float Grados(double g, double m, double s) { return static_cast<float>((g + m / 60 + s / 3600) * M_PI / 180); }

Bytes EstrellaNombrada(std::string_view des, std::string_view nombre, float mag, int16_t tipo = 0,
                       float ar = 0, float dec = 0) {
    return Bytes().T(des, 8).T(nombre, 10).S(ar).S(dec).S(mag).I(tipo).Direccion();
}

TEST_F(Carpeta, ListaDeEstrellasSigueSuRegla) {
    std::string f;
    f += EstrellaNombrada("", "", 3.0f).b;                // 0: listed, bright enough
    f += EstrellaNombrada("", "Anonima", 3.01f).b;         // 1: faint, no designation
    f += EstrellaNombrada("V337 Car", "", 3.01f).b;        // 2: a variable-star name
    f += EstrellaNombrada("v Pup", "", 4.0f).b;            // 3: lower case too
    f += EstrellaNombrada(" X", "", 4.0f).b;               // 4: designation not blank in its first two
    f += EstrellaNombrada("Alf Ori", "Betelgeuse", 0.5f, 1, Horas(5, 55, 10.3), Grados(7, 24, 25.4)).b;
    for (int i = 6; i < 2583; ++i) f += EstrellaNombrada("Bet Xyz", "", 5.0f, 2).b;
    Escribe("VDRDAT2.DAT", f);
    Carga();

    const auto& lineas = c->Listas.Estrellas;
    const auto& indice = c->IndiceListaEstrellas;
    ASSERT_EQ(lineas.size(), 1483u);
    ASSERT_EQ(indice.size(), 1483u);
    EXPECT_EQ(indice[0], 0);
    EXPECT_EQ(indice[1], 4);
    EXPECT_EQ(indice[2], 5);
    EXPECT_EQ(indice[1482], 1485);  // the 1483rd candidate
    // The 1484th candidate is not listed but is in the table.
    EXPECT_EQ(c->TablaEstrellasNombre[1486].Designacion.texto(), "Bet Xyz ");
    EXPECT_EQ(c->TablaEstrellasNombre[2582].Magnitud, 5.0f);

    EXPECT_EQ(lineas[2], "Alf Ori  Betelgeuse V    5h 55m 10s     7\xB0 24' 25\"   0.5");
    EXPECT_EQ(lineas[3].substr(0, 21), "Bet Xyz             M");  // no name: its blanks keep the columns
}

TEST_F(Carpeta, LineasDeMessierCieloProfundoYExoticos) {
    std::string g;
    for (int i = 0; i < 109; ++i) {
        Bytes r;
        r.T("5", 1).T(i == 101 ? "5457?" : "224", 6).S(Horas(0, 42, 44.3)).S(Grados(41, 16, 9));
        r.T(" 3.4", 4).T(i == 101 ? "Dudoso (\xBFM101?) UMa" : "Gal. espiral     And", 20);
        g += r.T("Gal. Andr\xF3meda", 15).Direccion().b;
    }
    Escribe("VDRDATG.DAT", g);
    Escribe("VDRDAT3.DAT", Bytes().T("N1", 6).S(Horas(12, 0, 0)).S(0.0f).I(4).Direccion().b +
                               Bytes().T("IC342", 6).S(Horas(3, 46, 48.5)).S(-0.1f).I(-1).Direccion().b);
    Escribe("VDRDATL.DAT", Bytes().T("B0531+21", 12).S(Horas(5, 34, 31.9)).S(Grados(22, 0, 52.1)).Direccion().b);
    Escribe("VDRDATI.DAT", Bytes().T("Mel22", 6).S(Horas(3, 47, 0)).S(Grados(24, 7, 0.5)).I(1).Direccion().b);
    Carga();

    // (The places, open clusters, quasars and solar system lists are
    // counted, and line 95 read, through vedrano-cli lista.)
    const auto& l = c->Listas;
    EXPECT_EQ(l.Messier[30], " 31 224     Gal. espiral     And  Gal. Andr\xF3meda    3.4    0h 42m 44s   41\xB0 16' 09\"");
    EXPECT_EQ(l.Messier[101], "102 5457?   Dudoso (\xBFM101?) UMa ");
    EXPECT_EQ(l.Galaxias[0], "  N1        4    12h 00m 00s       0\xB0 00' 00\"");  // zero gets the blank
    EXPECT_EQ(l.Galaxias[1], "  IC342    -1     3h 46m 49s    -  5\xB0 43' 46\"");
    EXPECT_EQ(l.Pulsares[0], "  B0531+21         5h 34m 32s      22\xB0 00' 52\"");
    EXPECT_EQ(l.CumAbiertos[0], "   Mel22            3h 47m 00s      24\xB0 07' 00\"");
    EXPECT_EQ(l.Galaxias.size(), 1234u);  // records past the end read blank and are listed
    EXPECT_EQ(l.Galaxias[2], "            0     0h 00m 00s       0\xB0 00' 00\"");
}

TEST_F(Carpeta, SinVDRDAT1SeAvisaYElRestoCarga) {
    CopiaDatos();
    fs::remove(dir / "VDRDAT1.DAT");
    const Catalogos* completo = &pruebas::CatalogosDatos();
    Carga();

    // The open, then the read and the close of a file that is not open;
    // each names the file.
    const std::string ruta = "\r\n" + (dir / "VDRDAT1.DAT").string();
    EXPECT_EQ(avisos.Textos(), (std::vector<std::string>{"ERROR CTA53: No existe el fichero" + ruta,
                                                         "ERROR CTA52" + ruta, "ERROR CTA52" + ruta}));
    for (const auto& m : avisos.vistos) EXPECT_EQ(m.titulo, "Cargando datos iniciales");
    EXPECT_EQ(c->TablaEstrellas[0].Magnitud, 0.0f);
    EXPECT_EQ(c->TablaEstrellas[26519].Direccion.z, 0.0f);
    EXPECT_EQ(c->Listas.Estrellas, completo->Listas.Estrellas);
    EXPECT_EQ(c->Listas.Pulsares, completo->Listas.Pulsares);
    EXPECT_EQ(c->TablaPuntosCielo[5].y, completo->TablaPuntosCielo[5].y);
    EXPECT_EQ(c->TablasCuentas.Estrellas, completo->TablasCuentas.Estrellas);
}

// Every file cut short, emptied or filled with noise: no crash, no line
// beyond its table, and a short file reads blank past its end.
TEST_F(Carpeta, FicherosCortosOEstropeadosNoRompenNada) {
    CopiaDatos();
    std::vector<fs::path> ficheros;
    // The deep star file and the motions are not classic tables; they have their own tests.
    for (const auto& f : fs::directory_iterator(dir))
        if (f.path().filename() != "VDRDATP.DAT" && f.path().filename() != "VDRDATN.DAT")
            ficheros.push_back(f.path());
    ASSERT_EQ(ficheros.size(), 18u);
    std::mt19937 azar(20240611);
    for (const fs::path& f : ficheros) {
        const std::string original = pruebas::LeeArchivo(f);
        std::string ruido(original.size(), '\0');
        for (char& ch : ruido) ch = static_cast<char>(azar());
        for (const std::string& version : {original.substr(0, original.size() / 3 + 5), std::string(), ruido}) {
            Escribe(f.filename().string(), version);
            c = std::make_unique<Catalogos>();
            avisos.vistos.clear();
            ASSERT_NO_THROW(Carga()) << f.filename();
            EXPECT_LE(c->Listas.Estrellas.size(), 1483u);
            EXPECT_LE(c->Listas.Galaxias.size(), 1234u);
            // A cut or empty file is told; noise may only raise subscripts.
            const std::string corto = "ERROR CTA62: Faltan datos en el fichero\r\n" + f.string(),
                              subindice = "ERROR CTA9\r\n" + f.string();
            const std::vector<std::string> textos = avisos.Textos();
            bool esCorto = version.size() < original.size();
            EXPECT_EQ(std::count(textos.begin(), textos.end(), corto), esCorto ? 1 : 0) << f.filename();
            for (const std::string& a : textos)
                EXPECT_TRUE(a == subindice || (esCorto && a == corto)) << f.filename() << ": " << a;
        }
        Escribe(f.filename().string(), original);
    }
    Escribe("VDRDATH.DAT", std::string(28 * 10 + 13, 'x'));
    c = std::make_unique<Catalogos>();
    avisos.vistos.clear();
    Carga();
    EXPECT_EQ(avisos.Textos(),
              std::vector<std::string>{"ERROR CTA62: Faltan datos en el fichero\r\n" + (dir / "VDRDATH.DAT").string()});
    EXPECT_EQ(c->Listas.Lugares[9], std::string(20, 'x'));
    EXPECT_EQ(c->Listas.Lugares[10], std::string(13, 'x') + std::string(7, ' '));
    EXPECT_EQ(c->Listas.Lugares[11], std::string(20, ' '));
    EXPECT_EQ(c->TablaCiudades[11].Latitud, 0.0f);
}

TEST(CargaDatos, LosDatosDelProgramaCarganSinAvisos) {
    auto c = std::make_unique<Catalogos>();
    pruebas::Anota avisos;
    CargaCatalogos(VEDRANO_DATOS, *c, avisos);
    EXPECT_TRUE(avisos.vistos.empty());
    // (The places, open clusters, quasars and solar system lists are
    // counted, and line 95 read, through vedrano-cli lista.)
    const auto& l = c->Listas;
    EXPECT_EQ(l.Messier.size(), 109u);
    EXPECT_EQ(l.Constelaciones.size(), 88u);
    EXPECT_EQ(l.Estrellas.size(), 1483u);
    EXPECT_EQ(l.CumGlobulares.size(), 75u);
    EXPECT_EQ(l.Pulsares.size(), 185u);
    EXPECT_EQ(l.Agujeros.size(), 3u);
    // Published positions (SIMBAD): Sirius 06h45m08.9s -16d42m58s; M31 00h42m44.3s.
    EXPECT_EQ(l.Estrellas[0].substr(0, 8), "Alf CMa ");
    EXPECT_NE(l.Estrellas[0].find("6h 45m 09s  - 16\xB0 42' 5"), std::string::npos) << l.Estrellas[0];
    EXPECT_NE(l.Messier[30].find(" 0h 42m 44s"), std::string::npos) << l.Messier[30];
    EXPECT_EQ(c->TablaPlanetas[1].Codigo.texto(), "Mer");
    EXPECT_EQ(c->TablaPlanetas[11].Codigo.texto(), "Lun");
    EXPECT_EQ(c->TablaPlanetas[0].MovDiario, 0.0);
    EXPECT_EQ(c->TablasCuentas.Estrellas[7], 26519);
    EXPECT_EQ(c->TablasCuentas.CumGlobulares[7], 74);
}

}  // namespace
