// The computer's clock, read through the operating system.
#pragma once

namespace vedrano::plataforma {

// Universal Time as days since 30 December 1899 00:00, with the time of
// day as the fraction. The program adds the observer's zone itself, so the
// computer may keep any zone of its own.
double FechaHoraUniversal();

// A millisecond counter for pauses and timings (wraps as the system's does).
unsigned long Milisegundos();

}  // namespace vedrano::plataforma
