#include "astro/Calendario.h"

#include "app/base/Aritmetica.h"
#include "app/base/Formato.h"
#include "app/base/TablasFijas.h"
#include "app/base/Texto1252.h"

namespace vedrano {

namespace {

int16_t DiasAntesDeMes(int fila, int mes) {
    if (mes < 0 || mes > 12) throw ErrorEjecucion(ErrSubindice);
    return Tablas().DiasAcum[static_cast<std::size_t>(fila)][static_cast<std::size_t>(mes)];
}

// The Gregorian correction in days for a year from 1582 on; the whole years
// are counted with the Julian rule and this absorbs the difference.
int64_t CorreccionGregoriana(int64_t y) {
    int64_t c = (DivEntera(y - 1, 100) - 16) - DivEntera(y - 1600, 400) + 10;
    if (y % 400 == 0 && y >= 2000) c += 1;
    return c;
}

}  // namespace

bool EsBisiesto(int16_t ano) {
    if (ano < 1) return (ano - 3) % 4 == 0;
    if (ano <= 1582) return ano % 4 == 0;
    return ano % 4 == 0 && (ano % 100 != 0 || ano % 400 == 0);
}

double FechaAJuliana(std::string_view cadena) {
    auto campo = [&](std::size_t desde, std::size_t largo) {
        return CInt(Val(desde < cadena.size() ? cadena.substr(desde, largo) : std::string_view{}));
    };
    int16_t Y = campo(4, 5);
    int16_t M = campo(2, 2);
    int16_t D = campo(0, 2);
    int16_t h = campo(9, 2);
    int16_t mi = campo(11, 2);
    if (Y > 7999) Y = 7999;

    int32_t A = A32(int64_t{Y} + 4712);
    if (Y < 1) A = A32(int64_t{A} + 1);  // closes the gap of the missing year 0
    int32_t L = (A % 4 != 0) ? 1 : 0;

    double clave = Y + M / 100.0 + D / 10000.0;
    int64_t C = 0;
    if (clave >= 1582.1015) {
        C = CorreccionGregoriana(Y);
        if (Y < 1601) C += 1;
    }
    int B = EsBisiesto(Y) ? 1 : 0;
    int32_t dias = A32(365 * int64_t{A} + DivEntera(A, 4) + DiasAntesDeMes(B, M) + (D - 1));
    double jd = static_cast<double>(dias);
    jd = jd + h / 24.0;
    jd = jd + mi / 1440.0;
    jd = jd - static_cast<double>(C);
    jd = jd + L;
    jd = jd - 0.5;
    return jd;
}

FechaCalendario JulianaAFecha(double jd) {
    FechaCalendario f;
    double F = jd - Int(jd) + 0.5;
    if (F >= 1) F = F - 1;
    f.Fraccion = F;
    int16_t hora = CInt(Int(F * 24));
    int16_t minuto = CInt((F - hora / 24.0) * 1440);
    if (minuto == 60) {
        // No carry into the date: half a minute before midnight reads 24:00.
        minuto = 0;
        hora = A16(hora + 1);
    }
    f.Hora = hora;
    f.Minuto = minuto;

    int32_t N = CLng(Int(jd + 1.5));
    int16_t mes = 12, dia = 31;
    int32_t q = static_cast<int32_t>(DivEntera(N, 1461));
    int16_t r = A16(int64_t{N} - 1461 * int64_t{q});
    int16_t k = A16(DivEntera(r - 1, 365));
    int16_t Y = A16(4 * int64_t{q} + k - 4712);
    int16_t d = A16(r - 365 * int64_t{k});
    if (k > 0) d = A16(d - 1);

    if (jd > 2299160.5) {
        int B = EsBisiesto(Y) ? 1 : 0;
        int64_t c = CorreccionGregoriana(Y);
        d = A16(d + c);
        if (Y < 1601) d = A16(d + 1);
        if (d >= 365 + B) {
            d = A16(d - (365 + B));
            Y = A16(Y + 1);
        }
    }
    if (Y < 1) Y = A16(Y - 1);  // astronomical to historical year

    if (jd != 0 && d == 0) {
        // Day 0 is the last day of the previous year.
        Y = A16(Y - 1);
        if (Y == 0) Y = -1;
        f.Ano = Y;
        f.Mes = mes;
        f.Dia = dia;
        return f;
    }
    int B = EsBisiesto(Y) ? 1 : 0;
    const auto& acum = Tablas().DiasAcum[static_cast<std::size_t>(B)];
    for (int m = 2; m <= 12; ++m) {
        if (acum[static_cast<std::size_t>(m)] >= d) {
            mes = static_cast<int16_t>(m - 1);
            break;
        }
    }
    dia = A16(d - acum[static_cast<std::size_t>(mes)]);
    f.Ano = Y;
    f.Mes = mes;
    f.Dia = dia;
    return f;
}

std::string ArmaCadenaFecha(int ano, int mes, int dia, int hora, int minuto) {
    return Formato(dia, "@@") + Formato(mes, "@@") + Formato(ano, "@@@@@") + Formato(hora, "@@") +
           Formato(minuto, "@@");
}

std::string ArmaCadenaFecha(const FechaCalendario& f) {
    return ArmaCadenaFecha(f.Ano, f.Mes, f.Dia, f.Hora, f.Minuto);
}

}  // namespace vedrano
