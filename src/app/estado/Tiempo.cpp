#include "app/estado/Tiempo.h"

#include "app/base/Aritmetica.h"
#include "app/base/Formato.h"
#include "app/base/TablasFijas.h"
#include "app/estado/Astros.h"
#include "app/estado/Rotaciones.h"
#include "astro/Calendario.h"
#include "astro/PrecisionAlta.h"

namespace vedrano {

namespace {

double Adelanto(const Estado& e) { return e.HorarioVerano ? 1.0 / 24.0 : 0.0; }

}  // namespace

void ActualizaLugar(Estado& e, const TablaPlanetas& planetas) {
    MuestraFechas(e);
    HallaTiempoSidereo(e, planetas);
    // The precise model turns the sky by the apparent sidereal time; the
    // classic Sun of the table stays as it was computed.
    if (e.Pref.PrecisionAlta) e.TiempoSidereo.Fija(LlaveEstado{}, TiempoSidereoAparente(e.FechaJuliana, e.Longitud));
}

void ActualizaTiempo(Estado& e, const TablaPlanetas& planetas) {
    ActualizaLugar(e, planetas);
    if (e.Precesion) HallaPrecesion(e);
}

void FijaFechaJuliana(Estado& e, const TablaPlanetas& planetas, double jd) {
    e.FechaJuliana.Fija(LlaveEstado{}, jd);
    ActualizaTiempo(e, planetas);
}

void FijaLugar(Estado& e, const TablaPlanetas& planetas, const Observador& o) {
    e.Longitud.Fija(LlaveEstado{}, o.Longitud);
    e.Latitud.Fija(LlaveEstado{}, o.Latitud);
    e.ZonaHoraria.Fija(LlaveEstado{}, o.ZonaHoraria);
    e.HorarioVerano.Fija(LlaveEstado{}, o.HorarioVerano);
    ActualizaLugar(e, planetas);
}

void FijaPaso(Estado& e, int signo) {
    if (e.PasoUnidad < 0 || e.PasoUnidad > 12) throw ErrorEjecucion(ErrSubindice);
    e.PasoDias = signo * (e.PasoCantidad * Tablas().LongUnidad[static_cast<std::size_t>(e.PasoUnidad)]);
}

void AvanzaTiempo(Estado& e, const TablaPlanetas& planetas) {
    e.TiempoCambiado = false;
    double jd = e.FechaJuliana;
    if (e.PasoUnidad >= 1 && e.PasoUnidad <= 9) {
        jd = e.FechaJuliana + e.PasoDias;
    } else if (e.PasoUnidad >= 10 && e.PasoUnidad <= 12) {
        JulianaAFecha(e, e.FechaJuliana);
        double s = e.PasoCantidad * Tablas().LongUnidad[static_cast<std::size_t>(e.PasoUnidad)];
        if (e.PasoDias < 0) s = -s;
        // Plain arithmetic on the historical year: a result of 0 reads as 1 AD.
        e.FecAno = A16(e.FecAno + int64_t{CInt(s)});
        jd = FechaAJuliana(ArmaCadenaFecha(e));
    }
    FijaFechaJuliana(e, planetas, jd);
    e.TiempoCambiado = true;
}

void TiempoDesdeReloj(Estado& e, const TablaPlanetas& planetas, double fechaHoraLocal) {
    JulianaAFecha(e, (fechaHoraLocal + 2415018.5) - e.ZonaHoraria / 24.0 - Adelanto(e));
    FijaFechaJuliana(e, planetas, FechaAJuliana(ArmaCadenaFecha(e)));
}

double RelojLocal(const Estado& e, double fechaHoraUniversal) {
    return fechaHoraUniversal + e.ZonaHoraria / 24.0 + Adelanto(e);
}

void JulianaAFecha(Estado& e, double jd) {
    FechaCalendario f = JulianaAFecha(jd);
    e.FecAno = f.Ano;
    e.FecMes = f.Mes;
    e.FecDia = f.Dia;
    e.FecHora = f.Hora;
    e.FecMinuto = f.Minuto;
    e.FecFraccion = f.Fraccion;
}

std::string ArmaCadenaFecha(const Estado& e) {
    return ArmaCadenaFecha(e.FecAno, e.FecMes, e.FecDia, e.FecHora, e.FecMinuto);
}

void TextoFechaHora(Estado& e, double jd) {
    JulianaAFecha(e, jd);
    e.TextoFecha = Formato(e.FecDia, "00") + " / " + Formato(e.FecMes, "00") + " / " + Formato(e.FecAno, "@@@@@");
    if (e.FormatoHora == 1) {
        e.TextoHora = Formato(e.FecHora, "00") + ":" + Formato(e.FecMinuto, "00");
        return;
    }
    int hora = e.FecHora;
    const char* sufijo = " AM";
    if (hora > 11) {
        hora -= 12;
        sufijo = " PM";
    }
    e.TextoHora = Formato(hora, "00") + ":" + Formato(e.FecMinuto, "00") + sufijo;
}

void MuestraFechas(Estado& e) {
    for (int k = 0; k < 2; ++k) {
        double jd = k == 0 ? e.FechaJuliana : e.FechaJuliana + Adelanto(e) + e.ZonaHoraria / 24.0;
        TextoFechaHora(e, jd);
        CamposFecha& f = e.Fechas[static_cast<std::size_t>(k)];
        f.Hora = e.TextoHora;
        f.Dia = Formato(e.FecDia, "00");
        f.Mes = Formato(e.FecMes, "00");
        f.Ano = Formato(e.FecAno, "#####");
    }
    e.TextoDiaJuliano = Formato(e.FechaJuliana, "#######0.000000");
    e.CampoHorarioVerano = e.HorarioVerano;
}

}  // namespace vedrano
