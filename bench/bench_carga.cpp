// Cost of loading every catalogue file and building the lists, as start-up
// does once (target: under 10 ms).
#include <benchmark/benchmark.h>

#include <memory>

#include "catalogue/CargaCatalogos.h"

namespace {

using namespace vedrano;

struct SinAvisos : InterfazMensajes {
    int avisos = 0;
    int16_t Mensaje(const std::string&, const std::string&, int16_t, int16_t) override { return ++avisos; }
};

void BM_CargaCatalogos(benchmark::State& s) {
    SinAvisos n;
    for (auto _ : s) {
        auto c = std::make_unique<Catalogos>();
        CargaCatalogos(VEDRANO_DATOS, *c, n);
        benchmark::DoNotOptimize(c->Listas.Estrellas.data());
    }
    if (n.avisos) s.SkipWithError("los ficheros de datos dieron avisos");
}
BENCHMARK(BM_CargaCatalogos)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly(true);

}  // namespace
