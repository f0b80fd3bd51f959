#include "app/acciones/HoraReglas.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Formato.h"
#include "app/base/TablasFijas.h"
#include "app/estado/Tiempo.h"
#include "astro/Calendario.h"

namespace vedrano {

namespace {

constexpr double DIA_CERO_SISTEMA = 2415018.5;  // Julian day of 30 December 1899 00:00

// A typed number held within [minimo, maximo] and rounded half to even, so
// that huge texts never reach a 16-bit conversion.
int16_t Acota(double v, int minimo, int maximo) {
    v = std::clamp(v, double(minimo), double(maximo));
    return CInt(v);
}

std::string_view Recorta(std::string_view t) {
    while (!t.empty() && (t.front() == ' ' || t.front() == '\t')) t.remove_prefix(1);
    while (!t.empty() && (t.back() == ' ' || t.back() == '\t')) t.remove_suffix(1);
    return t;
}

// Local civil time back to Universal Time. The zone and the summer hour are
// taken off one after the other, as the date texts add them back, so that
// a local midnight reads back as 00:00 and not as 24:00 of the day before.
double AUniversal(const Estado& e, double jdLocal) {
    return jdLocal - e.ZonaHoraria / 24.0 - (e.HorarioVerano ? 1.0 / 24.0 : 0.0);
}

}  // namespace

double JulianaMinima() { return -0.5; }

double JulianaMaxima() {
    static const double maxima = FechaAJuliana(ArmaCadenaFecha(7999, 12, 31, 23, 59));
    return maxima;
}

double AjustaAlRango(double jd) { return std::clamp(jd, JulianaMinima(), JulianaMaxima()); }

AnoCorregido CorrigeAno(std::string_view texto) {
    const std::string_view t = Recorta(texto);
    int16_t ano = 0;
    if (t == "-")
        ano = -1;
    else if (!t.empty())
        ano = Acota(Val(t), -4713, 7999);
    // CStr, not "#####": a year 0 must still show its digit.
    return {ano, FormatoTexto(CStr(ano), "@@@@@")};
}

NumeroCorregido CorrigeMes(std::string_view texto) {
    const int16_t mes = Acota(Val(texto), 1, 12);
    return {mes, Formato(mes, "00")};
}

NumeroCorregido CorrigeDia(double dia, int mes, int ano) {
    int16_t d = Acota(dia, 1, 31);
    if (mes == 2) {
        if (d > 29) d = 29;
        if (d == 29 && !EsBisiesto(static_cast<int16_t>(ano))) d = 28;
    } else if ((mes == 4 || mes == 6 || mes == 9 || mes == 11) && d > 30) {
        d = 30;
    }
    return {d, Formato(d, "00")};
}

NumeroCorregido CorrigeDia(std::string_view texto, int mes, int ano) { return CorrigeDia(Val(texto), mes, ano); }

HoraCorregida CorrigeHora(std::string_view texto, bool formato24) {
    const std::size_t sep = texto.find_first_of(":.");
    double horas = 0, minutos = 0;
    std::string_view resto;  // where the AM/PM suffix is looked for
    if (sep != std::string_view::npos) {
        horas = Val(texto.substr(0, sep));
        resto = texto.substr(sep + 1);
        minutos = Val(resto);
    } else {
        std::string cifras;
        std::size_t i = 0;
        while (i < texto.size() && texto[i] == ' ') ++i;
        while (i < texto.size() && std::isdigit(static_cast<unsigned char>(texto[i]))) cifras += texto[i++];
        if (cifras.size() == 3 || cifras.size() == 4) {
            // "930" or "1530": hours and minutes typed together.
            horas = Val(std::string_view(cifras).substr(0, cifras.size() - 2));
            minutos = Val(std::string_view(cifras).substr(cifras.size() - 2));
        } else {
            horas = Val(texto);
        }
        resto = texto.substr(i);
    }
    HoraCorregida h{};
    h.hora = Acota(horas, 0, formato24 ? 23 : 11);
    h.minuto = Acota(minutos, 0, 59);
    h.texto = Formato(h.hora, "00") + ":" + Formato(h.minuto, "00");
    if (formato24) return h;
    const auto letra = std::find_if(resto.begin(), resto.end(),
                                    [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; });
    h.pm = letra != resto.end() && (*letra == 'P' || *letra == 'p');
    h.texto += h.pm ? " PM" : " AM";
    return h;
}

double JulianaDeCampos(const Estado& e, bool local, int ano, int mes, int dia, int hora, int minuto) {
    double jd = FechaAJuliana(ArmaCadenaFecha(ano, mes, dia, hora, minuto));
    if (local) jd = AUniversal(e, jd);
    return AjustaAlRango(jd);
}

bool LeeJuliana(std::string_view texto, double& jd) {
    std::string t(texto);
    std::replace(t.begin(), t.end(), ',', '.');
    if (std::none_of(t.begin(), t.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }))
        return false;
    jd = AjustaAlRango(Val(t));
    return true;
}

double JulianaMediodia(const Estado& e, double fechaHoraLocal) {
    double x = std::floor(fechaHoraLocal) + DIA_CERO_SISTEMA;
    if (x != std::floor(x)) x = std::floor(x) + 1;
    return AUniversal(e, x);
}

double JulianaMedianoche(const Estado& e, double fechaHoraLocal) {
    double x = std::floor(fechaHoraLocal) + DIA_CERO_SISTEMA;
    if (x - std::floor(x) < 0.5) x = x + 1;
    x = std::floor(x) + 0.5;
    return AUniversal(e, x);
}

double PasoTeclaHora(Estado& e, double jd, int tecla, int tipo, int sentido) {
    if (tecla < 0 || tecla > 6 || tipo < 0 || tipo > 1) throw ErrorEjecucion(ErrSubindice);
    const double paso = Tablas().TablaPasos[static_cast<std::size_t>(tipo)][static_cast<std::size_t>(tecla + 1)];
    if (tipo == 1 && tecla >= 4) {
        // Calendar years: day, month and time are kept; there is no year 0.
        JulianaAFecha(e, jd);
        int ano = e.FecAno + sentido * static_cast<int>(paso);
        if (ano == 0) ano = sentido;
        ano = std::clamp(ano, -4713, 7999);
        return AjustaAlRango(FechaAJuliana(ArmaCadenaFecha(ano, e.FecMes, e.FecDia, e.FecHora, e.FecMinuto)));
    }
    return AjustaAlRango(jd + sentido * paso);
}

}  // namespace vedrano
