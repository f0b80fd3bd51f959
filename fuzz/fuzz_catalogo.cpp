// The catalogue loader with one data file replaced at a time: the first byte
// of the input picks the file, the rest is its new content; the other files
// are the shipped ones. Promises: the loader always comes back, every count
// stays within its table, and the sky is drawn from what was loaded.
#include <QGuiApplication>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include <unistd.h>

#include "app/base/ErrorEjecucion.h"
#include "catalogue/CargaCatalogos.h"
#include "fuzz/Objetivo.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

constexpr std::array<const char*, 18> FICHEROS = {
    "VDRDAT1.DAT", "VDRDAT2.DAT", "VDRDAT3.DAT", "VDRDAT4.DAT", "VDRDAT5.DAT", "VDRDATA.DAT",
    "VDRDATB.DAT", "VDRDATC.DAT", "VDRDATD.DAT", "VDRDATE.DAT", "VDRDATF.DAT", "VDRDATG.DAT",
    "VDRDATH.DAT", "VDRDATI.DAT", "VDRDATJ.DAT", "VDRDATK.DAT", "VDRDATL.DAT", "VDRDATM.DAT"};

struct Silencio : InterfazMensajes {
    int16_t Mensaje(const std::string&, const std::string&, int16_t, int16_t) override { return 1; }
};

fs::path carpeta;
std::array<std::string, FICHEROS.size()> originales;

void Escribe(const fs::path& p, const std::string& bytes) {
    std::ofstream f(p, std::ios::binary | std::ios::trunc);
    f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Every level and layer that walks a table, on.
Estado TodoALaVista() {
    Estado e;
    e.NivelEstrellas = e.NivelConstelaciones = 7;
    e.NivelGalaxias = e.NivelNebPlanetarias = e.NivelNebDifusas = e.NivelCumAbiertos = e.NivelCumGlobulares = 7;
    e.IdEstrellas = 1;
    e.IdConstelaciones = 1;
    Interruptores& s = e.Capas;
    s.Galax = s.NebPl = s.NebDi = s.CumAb = s.CumGl = s.Quasa = s.Pulsa = s.Aguje = 1;
    s.Messi = s.ViaLa = s.LimCo = s.Eclip = 1;
    FijaZoom(e, 1);
    return e;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(*argc, *argv);  // lives for the whole run
    const fs::path raiz = fs::exists("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    carpeta = raiz / ("vedrano_fuzz_catalogo_" + std::to_string(::getpid()));
    fs::create_directories(carpeta);
    for (std::size_t i = 0; i < FICHEROS.size(); ++i) {
        std::ifstream f(fs::path(VEDRANO_DATOS) / FICHEROS[i], std::ios::binary);
        originales[i].assign(std::istreambuf_iterator<char>(f), {});
        Escribe(carpeta / FICHEROS[i], originales[i]);
    }
    std::atexit([] { fs::remove_all(carpeta); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    if (largo == 0) return 0;
    const std::size_t k = datos[0] % FICHEROS.size();
    const fs::path fichero = carpeta / FICHEROS[k];
    Escribe(fichero, std::string(reinterpret_cast<const char*>(datos) + 1, largo - 1));
    auto c = std::make_unique<Catalogos>();
    Silencio s;
    CargaCatalogos(carpeta.string() + "/", *c, s);
    const Cuentas& t = c->TablasCuentas;
    for (const TablaCuentas* cuentas : {&t.Estrellas, &t.Rotulos, &t.Figuras, &t.Galaxias, &t.NebPlanetarias,
                                         &t.NebDifusas, &t.CumAbiertos, &t.CumGlobulares})
        for (int16_t v : *cuentas)
            if (v < -1) fuzz::Incumple("las cuentas no bajan de -1");
    Estado e = TodoALaVista();
    Lienzo lienzo(96, 72);
    try {
        ActualizaCielo(e, *c, lienzo);
    } catch (const ErrorEjecucion&) {
        // The window tells these once and keeps what was drawn.
    }
    Escribe(fichero, originales[k]);
    return 0;
}
