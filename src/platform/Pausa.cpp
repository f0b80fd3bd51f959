#include "platform/Pausa.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

#include "platform/Reloj.h"

namespace vedrano::plataforma {

namespace {

class RelojReal : public RelojPausa {
public:
    unsigned long Milisegundos() override { return plataforma::Milisegundos(); }
    void Duerme(unsigned long ms) override { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }
};

RelojPausa* relojActual = nullptr;

// Four decimals as the currency type keeps them: halves go to the even digit.
double CuatroDecimales(double x) { return std::nearbyint(x * 10000.0) / 10000.0; }

// The start of the pause under way; 0 when none is (as the original kept it).
unsigned long inicio = 0;
bool hayInicio = false;

}  // namespace

RelojPausa& RelojSistema() {
    static RelojReal reloj;
    return reloj;
}

void FijaRelojPausa(RelojPausa* reloj) { relojActual = reloj; }

double FactorVelocidad(int16_t velocidad) {
    // The slider runs from 0 to 100; beyond it, the factor would grow past
    // any pause (−400 waits minutes, −32768 overflows every duration).
    velocidad = std::clamp<int16_t>(velocidad, 0, 100);
    double f = CuatroDecimales(std::pow(1.5, (100.0 - velocidad) / 50.0));
    if (f > 1) f = CuatroDecimales(f * f);
    return f;
}

void Retardo(int16_t velocidad, double milisegundos) {
    RelojPausa& reloj = relojActual ? *relojActual : RelojSistema();
    double f = FactorVelocidad(velocidad);
    if (!hayInicio) {
        inicio = reloj.Milisegundos();
        hayInicio = true;
    }
    const double fin = static_cast<double>(inicio) + milisegundos * f;
    for (;;) {
        double ahora = static_cast<double>(reloj.Milisegundos());
        if (ahora > fin) break;
        // Sleep to just past the end instead of spinning.
        reloj.Duerme(static_cast<unsigned long>(std::floor(fin - ahora)) + 1);
    }
    hayInicio = false;
}

}  // namespace vedrano::plataforma
