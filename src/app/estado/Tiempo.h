// The current instant over the state: the refresh after every change, the
// time step of animation and real-time motion, the setting from a clock
// reading, the broken-down calendar fields and the date and time texts.
#pragma once

#include "app/estado/Estado.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

// The refresh after any change of FechaJuliana: date texts, sidereal time
// and the Sun, and (precession on) the precession angles.
void ActualizaTiempo(Estado& e, const TablaPlanetas& planetas);

// The refresh after a change of place (or of its zone): the date texts and
// the sidereal time with the Sun, by the model in use. FijaLugar runs it.
void ActualizaLugar(Estado& e, const TablaPlanetas& planetas);

// Sets the instant and runs the refresh (ActualizaTiempo). FechaJuliana is
// written only here (app/estado/Fijado.h).
void FijaFechaJuliana(Estado& e, const TablaPlanetas& planetas, double jd);

// Sets the place, its zone and summer time (ObservadorDe gives the present
// ones to change one of them) and runs ActualizaLugar. Longitud, Latitud,
// ZonaHoraria and HorarioVerano are written only here.
void FijaLugar(Estado& e, const TablaPlanetas& planetas, const Observador& o);

// One step of PasoCantidad units of PasoUnidad in the direction of the sign
// of PasoDias. Units 10..12 move the calendar year and keep day, month and
// time (29 February landing in a common year becomes 1 March).
void AvanzaTiempo(Estado& e, const TablaPlanetas& planetas);

// Sets FechaJuliana from a local clock reading (days since 30 December
// 1899, the observer's civil time), cut to whole minutes, and refreshes.
void TiempoDesdeReloj(Estado& e, const TablaPlanetas& planetas, double fechaHoraLocal);

// The observer's civil date and time (days since 30 December 1899) for a
// Universal-Time reading of the same scale: the zone and the summer hour
// added.
double RelojLocal(const Estado& e, double fechaHoraUniversal);

// Breaks a Julian day into FecAno, FecMes, FecDia, FecHora, FecMinuto and
// FecFraccion of the state (scratch fields: whichever day was broken last).
void JulianaAFecha(Estado& e, double jd);

// The compact date text of the state's broken-down fields.
std::string ArmaCadenaFecha(const Estado& e);

// Leaves the display texts of a Julian day in TextoFecha ("dd / mm / yyyyy")
// and TextoHora ("hh:mm", or with " AM"/" PM" when FormatoHora is not 1).
void TextoFechaHora(Estado& e, double jd);

// The texts of the date, time and Julian-day fields for universal (0) and
// local (1) time.
void MuestraFechas(Estado& e);

// PasoDias of the state's unit and count, with the given sign (1 or -1).
void FijaPaso(Estado& e, int signo);

}  // namespace vedrano
