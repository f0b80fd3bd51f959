// The current instant: its refresh after every change, the time step of
// animation and real-time motion, the clock, and the date and time texts.
#pragma once

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// The refresh after any change of FechaJuliana: date texts, sidereal time
// and the Sun, and (precession on) the precession angles.
void ActualizaTiempo(Estado& e, const TablaPlanetas& planetas);

// One step of PasoCantidad units of PasoUnidad in the direction of the sign
// of PasoDias. Units 10..12 move the calendar year and keep day, month and
// time (29 February landing in a common year becomes 1 March).
void AvanzaTiempo(Estado& e, const TablaPlanetas& planetas);

// Sets FechaJuliana to the present moment, cut to whole minutes: the
// system's Universal Time made the observer's civil time (configured zone
// and summer time), then taken back by the same amount. The computer's own
// zone plays no part, wherever the computer is.
void TiempoActual(Estado& e, const TablaPlanetas& planetas);
// The same from a given local clock reading (days since 30 December 1899).
void TiempoDesdeReloj(Estado& e, const TablaPlanetas& planetas, double fechaHoraLocal);

// The observer's civil date and time (days since 30 December 1899) for a
// Universal-Time reading of the same scale: the zone and the summer hour
// added.
double RelojLocal(const Estado& e, double fechaHoraUniversal);

// Leaves the display texts of a Julian day in TextoFecha ("dd / mm / yyyyy")
// and TextoHora ("hh:mm", or with " AM"/" PM" when FormatoHora is not 1).
void TextoFechaHora(Estado& e, double jd);

// The texts of the date, time and Julian-day fields for universal (0) and
// local (1) time.
void MuestraFechas(Estado& e);

// PasoDias of the state's unit and count, with the given sign (1 or -1).
void FijaPaso(Estado& e, int signo);

}  // namespace vedrano
