// Calendar and Julian day: leap years, the compact 13-character date text,
// and the conversions between it and the Julian day (Universal Time).
// Years are historical (no year 0; -1 is 1 BC); Julian calendar up to
// 4 October 1582, Gregorian from 15 October 1582.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "app/estado/Estado.h"

namespace vedrano {

// True for a leap year: BC years when (ano - 3) is divisible by 4, the
// Julian rule up to 1582, the Gregorian rule from 1583 on.
bool EsBisiesto(int16_t ano);

// Julian day of a compact date text: day (characters 1-2), month (3-4),
// year (5-9), hour (10-11), minute (12-13). Years above 7999 are pinned to
// 7999. Raises ErrorEjecucion 9 for a month outside 0..12 and 6 for a field
// beyond 16 bits.
double FechaAJuliana(std::string_view cadena);

// Breaks a Julian day into FecAno, FecMes, FecDia, FecHora, FecMinuto and
// FecFraccion of the state. Half a minute before midnight reads as hour 24.
void JulianaAFecha(Estado& e, double jd);

// The compact date text of the state's broken-down fields.
std::string ArmaCadenaFecha(const Estado& e);

// The compact date text of explicit fields ("@@", "@@", "@@@@@", "@@", "@@").
std::string ArmaCadenaFecha(int ano, int mes, int dia, int hora, int minuto);

}  // namespace vedrano
