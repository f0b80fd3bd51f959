// The computer's clock, read through the operating system.
#pragma once

namespace vedrano::plataforma {

// The local civil date and time as days since 30 December 1899 00:00, with
// the time of day as the fraction.
double FechaHoraLocal();

// A millisecond counter for pauses and timings (wraps as the system's does).
unsigned long Milisegundos();

}  // namespace vedrano::plataforma
