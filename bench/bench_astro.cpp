// Cost of the conversions that run per star or per redraw.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "app/estado/Astros.h"
#include "app/estado/Estado.h"
#include "app/estado/Rotaciones.h"
#include "app/estado/Tiempo.h"
#include "astro/Calendario.h"
#include "astro/Coordenadas.h"
#include "astro/Precesion.h"
#include "astro/PrecisionAlta.h"
#include "app/base/TextosAngulo.h"

namespace {

using namespace vedrano;

void BM_FechaAJuliana(benchmark::State& s) {
    std::vector<std::string> fechas;
    for (int y : {-4713, -500, 1, 1582, 1999, 2024, 7999})
        for (int m = 1; m <= 12; m += 5) fechas.push_back(ArmaCadenaFecha(y, m, 17, 13, 45));
    std::size_t i = 0;
    for (auto _ : s) {
        benchmark::DoNotOptimize(FechaAJuliana(fechas[i]));
        i = (i + 1) % fechas.size();
    }
}
BENCHMARK(BM_FechaAJuliana);

void BM_JulianaAFecha(benchmark::State& s) {
    Estado e;
    double jd = 2451545.25;
    for (auto _ : s) {
        JulianaAFecha(e, jd);
        benchmark::DoNotOptimize(e.FecDia);
        jd += 37.3;
        if (jd > 4.6e6) jd = 1000.5;
    }
}
BENCHMARK(BM_JulianaAFecha);

void BM_PrecesionYHorizonte(benchmark::State& s) {
    Estado e;
    FijaFechaJuliana(e, TablaPlanetas{}, 2460000.5);  // the refresh needs no elements here
    e.Precesion = true;
    HallaPrecesion(e);
    FijaTiempoSidereo(e, 1.234);
    PreparaPrecesion(e);  // per star, the cached rotations only
    PreparaHorizonte(e);
    std::mt19937 gen(7);
    std::uniform_real_distribution<double> ua(0, 6.283), ud(-1.5, 1.5);
    std::vector<Vector3f> estrellas;
    for (int i = 0; i < 4096; ++i) estrellas.push_back(AngulosAVector(ua(gen), ud(gen)));
    std::size_t i = 0;
    for (auto _ : s) {
        Vector3f v = estrellas[i];
        AplicaPrecesion(e, v);
        Vector3f h = EcuatorialAHorizontal(e, v);
        benchmark::DoNotOptimize(h);
        i = (i + 1) & 4095;
    }
}
BENCHMARK(BM_PrecesionYHorizonte);

void BM_TextoHoras(benchmark::State& s) {
    float ar = 0.0f;
    for (auto _ : s) {
        benchmark::DoNotOptimize(TextoHoras(ar));
        ar += 0.01f;
        if (ar > 6.28f) ar = 0.0f;
    }
}
BENCHMARK(BM_TextoHoras);

// The precise model's solar system for one redraw: the apparent sidereal
// time, the instant's Earth and rotation to the date, the eight planets and
// Pluto, the Sun and the topocentric Moon, at a new instant each time.
void BM_SistemaSolarPreciso(benchmark::State& s) {
    double jd = 2460700.4;
    for (auto _ : s) {
        jd += 0.01;
        double tsl = TiempoSidereoAparente(jd, 0.08);
        InstantePreciso instante = PreparaInstante(jd);
        for (int cuerpo = 1; cuerpo <= 11; ++cuerpo) {
            if (cuerpo == 3) continue;
            LugarPreciso l = LugarAparente(cuerpo, instante);
            if (cuerpo == 11) l = Topocentrico(l, 0.64, tsl);
            benchmark::DoNotOptimize(l);
        }
    }
}
BENCHMARK(BM_SistemaSolarPreciso)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
