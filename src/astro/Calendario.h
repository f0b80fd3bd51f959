// Calendar and Julian day: leap years, the compact 13-character date text,
// and the conversions between it and the Julian day (Universal Time).
// Years are historical (no year 0; -1 is 1 BC); Julian calendar up to
// 4 October 1582, Gregorian from 15 October 1582.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace vedrano {

// EsBisiesto
//   Given:   ano  a historical year
//   Returns: true for a leap year: BC years when (ano - 3) is divisible by
//            4, the Julian rule up to 1582, the Gregorian rule from 1583 on
//            (the Gregorian rule starts with the year, not with 15 October).
bool EsBisiesto(int16_t ano);

// FechaAJuliana
//   Given:   cadena  a compact date text: day (characters 1-2), month
//                    (3-4), year (5-9), hour (10-11), minute (12-13)
//   Returns: its Julian day. Years above 7999 are pinned to 7999. Raises
//            ErrorEjecucion 9 for a month outside 0..12 and 6 for a field
//            beyond 16 bits.
//   Follows: whole years by the Julian rule from 4713 BC, the months of the
//            year by the table of days before each month, and a Gregorian
//            correction from 15 October 1582; the result is the standard
//            Julian day (Meeus, Astronomical Algorithms, ch. 7) over the
//            whole range of dates.
double FechaAJuliana(std::string_view cadena);

// A calendar instant broken into its fields: the historical year, month
// 1..12, day 1..31, hour 0..23 (24 half a minute before midnight), minute
// and the fraction of the day since midnight.
struct FechaCalendario {
    int16_t Ano = 0, Mes = 0, Dia = 0, Hora = 0, Minuto = 0;
    double Fraccion = 0;
};

// JulianaAFecha
//   Given:   jd  a Julian day (Universal Time)
//   Returns: its calendar date and time. The minute is rounded, halves to
//            even, with no carry into the date: half a minute before
//            midnight reads as hour 24. Strictly after 2299160.5 the
//            Gregorian calendar holds, so that instant itself reads as
//            5 October 1582. Raises ErrorEjecucion 6 outside the 16-bit
//            fields.
//   Follows: the whole years counted with the Julian rule and corrected
//            century by century, as FechaAJuliana.
FechaCalendario JulianaAFecha(double jd);

// ArmaCadenaFecha
//   Given:   the fields of a date and time (year, month, day, hour, minute)
//   Returns: its compact date text: "@@" day, "@@" month, "@@@@@" year,
//            "@@" hour, "@@" minute, each right-aligned in its places.
std::string ArmaCadenaFecha(int ano, int mes, int dia, int hora, int minuto);
std::string ArmaCadenaFecha(const FechaCalendario& f);

}  // namespace vedrano
