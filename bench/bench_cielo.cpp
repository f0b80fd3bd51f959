// The full rendering pass at 1024x768 with every layer on and all stars,
// the projection of all the stars alone, and the PNG encoding of a picture.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImageWriter>

#include "catalogue/CargaCatalogos.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

namespace {

using namespace vedrano;

class Mudo : public Notificador {
public:
    void Avisa(const std::string&, const std::string&) override {}
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
    e.Zoom = 1;
    e.Elevacion = 1.2;
    e.FechaJuliana = 2460700.4;  // a January night
    return e;
}

// Argument 0: the classic model; 1: the precise one.
void BM_PasadaCompleta(benchmark::State& st) {
    Aplicacion();
    const Catalogos& c = Datos();
    Lienzo l(1024, 768);
    Estado e = TodoEncendido();
    e.Pref.PrecisionAlta = st.range(0) != 0;
    ActualizaCielo(e, c, l);
    for (auto _ : st) {
        DibujaCielo(e, c, l);
        benchmark::DoNotOptimize(l.Imagen().constBits());
    }
}
BENCHMARK(BM_PasadaCompleta)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_ProyeccionEstrellas(benchmark::State& st) {
    const Catalogos& c = Datos();
    Estado e = TodoEncendido();
    e.Precesion = true;
    e.PrecZeta = 0.001, e.PrecZ = 0.001, e.PrecTheta = 0.0009;
    e.TiempoSidereo = 1.0;
    GiraDireccion(e);
    AjustaEscala(e, 1024, 768);
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
