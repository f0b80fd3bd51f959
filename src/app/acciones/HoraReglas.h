// The rules of the date and time form that do not depend on its widgets:
// each typed field corrected to the nearest allowed value, the instant
// rebuilt from the corrected fields, today's noon and midnight, and one
// press of a step key. Texts are Windows-1252.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "app/estado/Estado.h"

namespace vedrano {

// The range of instants the program accepts: 1 January 4713 BC 00:00 to
// 31 December 7999 AD 23:59, Universal Time.
double JulianaMinima();
double JulianaMaxima();
double AjustaAlRango(double jd);

// A year as typed: empty reads 0, a lone "-" reads -1, anything else is
// read as a number and held within -4713..7999; the text is right-aligned
// in five places.
struct AnoCorregido {
    int16_t ano;
    std::string texto;
};
AnoCorregido CorrigeAno(std::string_view texto);

// A month as typed, held within 1..12, two digits.
struct NumeroCorregido {
    int16_t valor;
    std::string texto;
};
NumeroCorregido CorrigeMes(std::string_view texto);

// A day held within 1..31 and then within the length of the month: above
// 29 in February is 29, and 29 is 28 in a common year; above 30 in April,
// June, September and November is 30. Two digits.
NumeroCorregido CorrigeDia(double dia, int mes, int ano);
NumeroCorregido CorrigeDia(std::string_view texto, int mes, int ano);

// A time "hh:mm" as typed. In 24-hour format the hours are held within
// 0..23; in AM/PM format within 0..11, and the suffix that starts with "P"
// means PM, any other (or none) AM. Minutes within 0..59. A text without a
// separator of three or four digits reads as hours and minutes ("1530").
struct HoraCorregida {
    int16_t hora;    // as shown: 0..11 in AM/PM format
    int16_t minuto;
    bool pm;
    std::string texto;  // "hh:mm", or "hh:mm AM" / "hh:mm PM"
    int16_t horaDelDia() const { return static_cast<int16_t>(pm ? hora + 12 : hora); }
};
HoraCorregida CorrigeHora(std::string_view texto, bool formato24);

// The Universal-Time Julian day of a civil date and time; `local` takes
// them as the observer's local time (zone and summer time of the state).
// The result is held within the accepted range.
double JulianaDeCampos(const Estado& e, bool local, int ano, int mes, int dia, int hora, int minuto);

// A Julian day as typed ("2451545,5" or "2451545.5"); nothing when the text
// holds no number. Held within the accepted range.
bool LeeJuliana(std::string_view texto, double& jd);

// Today's noon and midnight (00:00) of the observer's local civil time, as
// Universal-Time Julian days, from a local clock reading in days since
// 30 December 1899.
double JulianaMediodia(const Estado& e, double fechaHoraLocal);
double JulianaMedianoche(const Estado& e, double fechaHoraLocal);

// One press of step key `tecla` (0 minute .. 6 millennium) in `sentido`
// (+1 or -1), sidereal (`tipo` 0) or solar (1) steps. In solar kind the
// year, century and millennium keys move the calendar year and step over
// the missing year 0; every other step adds its length in days. The result
// is held within the accepted range. Uses the broken-down fields of `e` as
// scratch.
double PasoTeclaHora(Estado& e, double jd, int tecla, int tipo, int sentido);

}  // namespace vedrano
