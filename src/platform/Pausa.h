// The one pause of the controls, scaled by the speed setting, and the clock
// and sleep it is measured with (replaceable, so that tests can measure the
// durations it asks for without waiting them).
#pragma once
#include <cstdint>

namespace vedrano::plataforma {

class RelojPausa {
public:
    virtual ~RelojPausa() = default;
    virtual unsigned long Milisegundos() = 0;
    virtual void Duerme(unsigned long milisegundos) = 0;
};

// The system's millisecond counter and a real sleep.
RelojPausa& RelojSistema();
// Makes every pause use `reloj`; nullptr goes back to the system's.
void FijaRelojPausa(RelojPausa* reloj);

// 1.5 ^ ((100 - s) / 50) to four decimals, squared (again to four
// decimals) when above 1: the slow settings are slowed further. A speed
// outside 0..100 counts as the nearer end.
double FactorVelocidad(int16_t velocidad);

// Waits until the clock has passed `milisegundos` x the speed factor.
// No window event runs meanwhile, and the processor is left idle.
void Retardo(int16_t velocidad, double milisegundos);

}  // namespace vedrano::plataforma
