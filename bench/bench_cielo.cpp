// The full rendering pass with every layer on and all stars, at 1024x768
// and 1920x1080; the same with the deep star layer at 1920x1080, zoom 1, 4
// and 15, looking at the Milky Way in Cygnus and in Sagittarius; the
// projection of all the stars alone, and the PNG encoding of a picture.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImageWriter>

#include <cmath>
#include <cstdlib>

#include "app/base/Constantes.h"
#include "app/estado/Astros.h"
#include "app/estado/Rotaciones.h"
#include "astro/Coordenadas.h"
#include "app/estado/Tiempo.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/EstrellasProfundas.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

namespace {

using namespace vedrano;

class Mudo : public InterfazMensajes {
public:
    int16_t Mensaje(const std::string&, const std::string&, int16_t, int16_t) override { return 1; }
};

const Catalogos& Datos() {
    static Catalogos c;
    static bool listo = [] {
        Mudo m;
        CargaCatalogos(VEDRANO_DATOS, c, m);
        return true;
    }();
    (void)listo;
    return c;
}

void Aplicacion() {
    static int argc = 1;
    static char nombre[] = "bench";
    static char* argv[] = {nombre, nullptr};
    if (!QGuiApplication::instance()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QGuiApplication(argc, argv);
    }
}

Estado TodoEncendido() {
    Estado e;
    Interruptores& s = e.Capas;
    s.Sol = s.Luna = 1;
    s.Plane.fill(1);
    s.Galax = s.NebPl = s.NebDi = s.CumAb = s.CumGl = s.Quasa = s.Pulsa = s.Aguje = 1;
    s.ARDEC30 = s.ARDEC15 = s.Horiz = s.Eclip = s.LimCo = s.LuzDi = s.ViaLa = s.Messi = 1;
    e.NivelEstrellas = 7;
    e.NivelConstelaciones = 4;
    e.NivelGalaxias = 4;
    e.NivelNebPlanetarias = e.NivelNebDifusas = e.NivelCumAbiertos = e.NivelCumGlobulares = 2;
    e.IdEstrellas = 2;
    e.IdConstelaciones = 2;
    e.IdMessier = 1;
    e.Precesion = true;
    FijaZoom(e, 1);
    FijaVista(e, e.Direccion, 1.2);
    FijaFechaJuliana(e, Datos().TablaPlanetas, 2460700.4);  // a January night
    return e;
}

// Every label printed when VEDRANO_TODOS_LOS_ROTULOS is set, to count them
// against the labels that can be read.
OpcionesDibujo Opciones() {
    OpcionesDibujo o;
    o.TodosLosRotulos = std::getenv("VEDRANO_TODOS_LOS_ROTULOS") != nullptr;
    return o;
}

// Arguments: the picture's width and height, and 0 for the classic model,
// 1 for the precise one.
void BM_PasadaCompleta(benchmark::State& st) {
    Aplicacion();
    const Catalogos& c = Datos();
    Lienzo l(static_cast<int>(st.range(0)), static_cast<int>(st.range(1)));
    Estado e = TodoEncendido();
    e.Pref.PrecisionAlta = st.range(2) != 0;
    ActualizaCielo(e, c, l);
    OpcionesDibujo o = Opciones();
    for (auto _ : st) {
        DibujaCielo(e, c, l, o);
        benchmark::DoNotOptimize(l.Imagen().constBits());
    }
    st.counters["rotulos"] = l.Rotulos().Dibujados();
}
BENCHMARK(BM_PasadaCompleta)
    ->Args({1024, 768, 0})
    ->Args({1920, 1080, 0})
    ->Args({1024, 768, 1})
    ->Unit(benchmark::kMillisecond);

// One layer alone at 1920x1080 (labels as in the full pass), to see where
// the pass's time goes; layer 0 is the empty pass: the clear and the panel.
void BM_CapaSola(benchmark::State& st) {
    Aplicacion();
    const Catalogos& c = Datos();
    Lienzo l(1920, 1080);
    Estado e = TodoEncendido();
    const Estado todo = e;
    e.Capas = Interruptores{};
    e.Capas.Sol = e.Capas.Luna = e.Capas.Horiz = 0;
    e.Capas.Plane.fill(0);
    e.NivelEstrellas = e.NivelConstelaciones = 0;
    Interruptores& s = e.Capas;
    const Interruptores& t = todo.Capas;
    switch (st.range(0)) {
        case 1: s.LuzDi = t.LuzDi; break;
        case 2: s.ARDEC15 = s.ARDEC30 = 1; break;
        case 3: s.LimCo = 1; break;
        case 4: s.Horiz = s.Eclip = 1; break;
        case 5: e.NivelConstelaciones = todo.NivelConstelaciones; break;
        case 6: e.NivelEstrellas = todo.NivelEstrellas; break;
        case 7: s.Messi = s.Galax = s.NebPl = s.NebDi = s.CumAb = s.CumGl = 1; break;
        case 8: s.Quasa = s.Pulsa = s.Aguje = 1; break;
        case 9: s.ViaLa = 1; break;
        case 10: s.Sol = s.Luna = 1, s.Plane.fill(1); break;
        default: break;
    }
    ActualizaCielo(e, c, l);
    OpcionesDibujo o = Opciones();
    for (auto _ : st) {
        DibujaCielo(e, c, l, o);
        benchmark::DoNotOptimize(l.Imagen().constBits());
    }
}
BENCHMARK(BM_CapaSola)->DenseRange(0, 10)->Unit(benchmark::kMillisecond);

const EstrellasProfundas& Profundas() {
    static EstrellasProfundas p;
    static bool abierto = [] {
        std::string mensaje;
        return p.Abre(std::string(VEDRANO_DATOS) + "VDRDATP.DAT", mensaje);
    }();
    (void)abierto;
    return p;
}

// Every layer and the deep stars, a summer night at Malaga, at a zoom: range(0) the zoom, range(1)
// 0 for Cygnus (near Deneb), 1 for Sagittarius (the Lagoon Nebula).
void BM_CapaProfunda(benchmark::State& st) {
    Aplicacion();
    const Catalogos& c = Datos();
    Lienzo l(1920, 1080);
    Estado e = TodoEncendido();
    const bool cisne = st.range(1) == 0;
    FijaFechaJuliana(e, c.TablaPlanetas, cisne ? 2460880.528 : 2460850.501);
    Vector3f h = EcuatorialAHorizontal(e, cisne ? AngulosAVector(310.35 * GRADO, 45.28 * GRADO)
                                               : AngulosAVector(270.95 * GRADO, -24.38 * GRADO));
    double direccion = std::atan2(-double{h.x}, double{h.y});
    if (direccion < 0) direccion += 2 * M_PI;
    FijaVista(e, direccion, std::asin(double{h.z}));
    FijaZoom(e, static_cast<float>(st.range(0)));
    OpcionesDibujo o = Opciones();
    o.EstrellasDebiles = true;
    o.Profundas = &Profundas();
    ActualizaCielo(e, c, l, o);
    for (auto _ : st) {
        DibujaCielo(e, c, l, o);
        benchmark::DoNotOptimize(l.Imagen().constBits());
    }
    st.counters["rotulos"] = l.Rotulos().Dibujados();
}
BENCHMARK(BM_CapaProfunda)
    ->ArgsProduct({{1, 4, 15}, {0, 1}})
    ->ArgNames({"zoom", "sagitario"})
    ->Unit(benchmark::kMillisecond);

void BM_ProyeccionEstrellas(benchmark::State& st) {
    const Catalogos& c = Datos();
    Estado e = TodoEncendido();
    e.Precesion = true;
    FijaFechaJuliana(e, TablaPlanetas{}, 2454832.5);  // 2009: precession angles of about 0.0004 rad
    FijaTiempoSidereo(e, 1.0);
    GiraDireccion(e);
    AjustaEscala(e, 1024, 768);
    PreparaProyeccion(e);  // as the pass and the window do before reading object by object
    for (auto _ : st) {
        int visibles = 0;
        for (int i = 0; i < N_ESTRELLAS; ++i) visibles += EsVisible(e, ProyectaPunto(e, c.TablaEstrellas[static_cast<std::size_t>(i)].Direccion));
        benchmark::DoNotOptimize(visibles);
    }
}
BENCHMARK(BM_ProyeccionEstrellas)->Unit(benchmark::kMicrosecond);

// PNG encoding of a 1920x1080 sky, as "vedrano-cli dibuja" writes it:
// zlib's default level (quality -1) against the light level it uses (80).
void BM_CodificaPng(benchmark::State& st) {
    Aplicacion();
    Lienzo l(1920, 1080);
    Estado e = TodoEncendido();
    ActualizaCielo(e, Datos(), l);
    QByteArray bytes;
    for (auto _ : st) {
        bytes.clear();
        QBuffer b(&bytes);
        b.open(QIODevice::WriteOnly);
        QImageWriter w(&b, "png");
        w.setQuality(static_cast<int>(st.range(0)));
        w.write(l.Imagen());
    }
    st.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_CodificaPng)->Arg(-1)->Arg(80)->Unit(benchmark::kMillisecond);

}  // namespace
