// Data files made by an attacker or a broken disk: counts beyond their
// tables, absurd magnitudes, a folder or an empty file in place of a
// catalogue. Each is told, the others still load, and the sky is drawn.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "CarpetaCatalogos.h"
#include "../sky/CapasApagadas.h"
#include "astro/Coordenadas.h"
#include "catalogue/CargaCatalogos.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

namespace {

using namespace vedrano;
namespace fs = std::filesystem;

class DatosDanados : public pruebas::CarpetaCatalogos {
protected:
    void SetUp() override { CopiaDatos(); }
};

// A view with every layer that walks a count table on, at the deepest level.
Estado TodoALaVista() {
    Estado e;
    e.NivelEstrellas = e.NivelConstelaciones = 7;
    e.NivelGalaxias = e.NivelNebPlanetarias = e.NivelNebDifusas = e.NivelCumAbiertos = e.NivelCumGlobulares = 7;
    e.IdEstrellas = 1;
    e.IdConstelaciones = 1;
    Interruptores& s = e.Capas;
    s.Galax = s.NebPl = s.NebDi = s.CumAb = s.CumGl = 1;
    FijaVista(e, e.Direccion, 1.5);
    return e;
}

// Counts far beyond the tables, and below -1, were loop bounds of the star
// and figure plotters, which then read past their tables.
TEST_F(DatosDanados, CuentasFueraDeLasTablasSeAvisanYSeAjustan) {
    std::string cuentas;
    for (int i = 0; i < 64; ++i) {
        int16_t v = i % 2 ? 32767 : -32768;
        cuentas += static_cast<char>(v & 0xFF);
        cuentas += static_cast<char>((v >> 8) & 0xFF);
    }
    Escribe("VDRDATA.DAT", cuentas);
    Carga();
    EXPECT_EQ(avisos.Textos(), std::vector<std::string>(8, "ERROR CTA9\r\n" + (dir / "VDRDATA.DAT").string()));
    const Cuentas& k = c->TablasCuentas;
    const std::vector<std::pair<const TablaCuentas*, int>> tablas = {
        {&k.Estrellas, N_ESTRELLAS},       {&k.Rotulos, N_ESTRELLAS_NOMBRE},   {&k.Figuras, N_FIGURAS},
        {&k.Galaxias, N_GALAXIAS},         {&k.NebPlanetarias, N_NEB_PLANETARIAS}, {&k.NebDifusas, N_NEB_DIFUSAS},
        {&k.CumAbiertos, N_CUM_ABIERTOS}, {&k.CumGlobulares, N_CUM_GLOBULARES}};
    for (const auto& [t, n] : tablas)
        for (std::size_t nivel = 0; nivel < 8; ++nivel) EXPECT_EQ((*t)[nivel], nivel % 2 ? n - 1 : -1);
    Estado e = TodoALaVista();
    Lienzo l(320, 240);
    EXPECT_NO_THROW(ActualizaCielo(e, *c, l));
}

// A magnitude of -30000 asked for a dot 31508 pixels wide, kept as a
// sprite per width and colour: gigabytes for a few hundred such stars. Now
// they are drawn as plain discs, which cover the whole picture.
TEST_F(DatosDanados, UnaMagnitudAbsurdaDibujaUnDiscoSinAgotarLaMemoria) {
    Catalogos& cat = *c;
    Estado e;
    ApagaCapas(e);
    e.NivelEstrellas = 1;
    FijaZoom(e, 15);
    Lienzo l(200, 150);
    ActualizaCielo(e, cat, l);  // sets the scale and the sky's rotation
    double ar = 0, dec = 0;
    float altitud = 0, azimut = 0;
    PuntoACielo(e, e.EscalaIzquierda + e.EscalaAncho / 2, e.EscalaSuperior + e.EscalaAlto / 2, ar, dec, altitud,
                azimut);
    for (int i = 0; i < 200; ++i) {
        Estrella& s = cat.TablaEstrellas[static_cast<std::size_t>(i)];
        s.Magnitud = -30000.0f + static_cast<float>(i);
        s.Tipo = static_cast<int16_t>(i % 4);
        s.Direccion = AngulosAVector(ar, dec);
    }
    cat.TablasCuentas.Estrellas.fill(199);
    ASSERT_NO_THROW(ActualizaCielo(e, cat, l));
    for (auto [x, y] : {std::pair{0, 0}, {100, 75}, {199, 149}}) EXPECT_NE(l.Imagen().pixel(x, y) & 0xFFFFFF, 0u);
}

// A folder in place of the planets file raised a stream exception that
// ended the calculator and the sample writer; an empty star file gave a
// starless sky without a word.
TEST_F(DatosDanados, CarpetaOVacioEnLugarDeUnFicheroSeAvisaYElRestoCarga) {
    fs::remove(dir / "VDRDATF.DAT");
    fs::create_directory(dir / "VDRDATF.DAT");
    Escribe("VDRDAT1.DAT", "");
    Carga();
    const std::string enPlanetas = "\r\n" + (dir / "VDRDATF.DAT").string();
    EXPECT_EQ(avisos.Textos(), (std::vector<std::string>{"ERROR CTA53: No existe el fichero" + enPlanetas,
                                                        "ERROR CTA52" + enPlanetas, "ERROR CTA52" + enPlanetas,
                                                        "ERROR CTA62: Faltan datos en el fichero\r\n" +
                                                            (dir / "VDRDAT1.DAT").string()}));
    EXPECT_EQ(c->Listas.Estrellas.size(), 1483u);
    EXPECT_EQ(c->TablaEstrellas[0].Magnitud, 0.0f);
    TablaPlanetas planetas{};
    EXPECT_EQ(pruebas::ErrorDe([&] { LeeTablaPlanetas((dir / "VDRDATF.DAT").string(), planetas); }), 53);
    Estado e = TodoALaVista();
    Lienzo l(320, 240);
    EXPECT_NO_THROW(ActualizaCielo(e, *c, l));
}

}  // namespace
