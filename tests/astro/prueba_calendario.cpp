// The calendar against the textbook algorithm (Meeus, Astronomical
// Algorithms, ch. 7), written here independently of the program's code,
// over the whole range of dates, and the deliberate quirks that are kept.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <sstream>

#include "app/base/ErrorEjecucion.h"
#include "astro/Calendario.h"
#include "app/estado/Tiempo.h"

using namespace vedrano;

namespace {

struct Fecha {
    int ano, mes, dia;  // historical year (no year 0)
};

// Julian day at 0h of a date, Julian calendar before 15 October 1582.
double JulianoDeReferencia(const Fecha& f) {
    int y = f.ano < 0 ? f.ano + 1 : f.ano;
    int m = f.mes;
    if (m <= 2) {
        y -= 1;
        m += 12;
    }
    bool gregoriano = f.ano > 1582 || (f.ano == 1582 && (f.mes > 10 || (f.mes == 10 && f.dia >= 15)));
    int b = 0;
    if (gregoriano) {
        int a = static_cast<int>(std::floor(y / 100.0));
        b = 2 - a + static_cast<int>(std::floor(a / 4.0));
    }
    return std::floor(365.25 * (y + 4716)) + std::floor(30.6001 * (m + 1)) + f.dia + b - 1524.5;
}

// The date of a Julian day's civil day.
Fecha FechaDeReferencia(double jd) {
    double z = std::floor(jd + 0.5);
    double a = z;
    if (z >= 2299161) {
        double alfa = std::floor((z - 1867216.25) / 36524.25);
        a = z + 1 + alfa - std::floor(alfa / 4);
    }
    double b = a + 1524;
    double c = std::floor((b - 122.1) / 365.25);
    double d = std::floor(365.25 * c);
    double e = std::floor((b - d) / 30.6001);
    int dia = static_cast<int>(b - d - std::floor(30.6001 * e));
    int mes = e < 14 ? static_cast<int>(e) - 1 : static_cast<int>(e) - 13;
    int ano = mes > 2 ? static_cast<int>(c) - 4716 : static_cast<int>(c) - 4715;
    if (ano < 1) ano -= 1;
    return {ano, mes, dia};
}

std::string Describe(double jd, const Estado& e) {
    std::ostringstream s;
    s.precision(12);
    s << jd << " -> " << e.FecAno << "/" << e.FecMes << "/" << e.FecDia << " " << e.FecHora << ":" << e.FecMinuto;
    return s.str();
}

}  // namespace

TEST(Calendario, EveryDayOfTheRangeBothWays) {
    Estado e;
    int fallos = 0;
    const double ultimo = 4642998.5;  // 31 December 7999, 00:00
    for (double jd = -0.5; jd <= ultimo && fallos < 5; jd += 1.0) {
        for (int minutos : {0, 17 * 60 + 41}) {
            double instante = jd + minutos / 1440.0;
            if (instante < 0) continue;  // before noon of the first day
            Fecha f = FechaDeReferencia(instante);
            double esperado = JulianoDeReferencia(f) + minutos / 1440.0;
            double jdPrograma = FechaAJuliana(ArmaCadenaFecha(f.ano, f.mes, f.dia, minutos / 60, minutos % 60));
            if (std::fabs(jdPrograma - esperado) > 1e-7) {
                ADD_FAILURE() << "FechaAJuliana " << f.ano << "/" << f.mes << "/" << f.dia << " gives "
                              << jdPrograma << " instead of " << esperado;
                ++fallos;
            }
            if (instante == 2299160.5) continue;  // the one instant read as 5 October 1582
            JulianaAFecha(e, esperado);
            if (e.FecAno != f.ano || e.FecMes != f.mes || e.FecDia != f.dia || e.FecHora != minutos / 60 ||
                e.FecMinuto != minutos % 60) {
                ADD_FAILURE() << "JulianaAFecha " << Describe(esperado, e) << " expected " << f.ano << "/"
                              << f.mes << "/" << f.dia;
                ++fallos;
            }
        }
    }
}

TEST(Calendario, RandomInstantsRoundToTheMinute) {
    Estado e;
    std::mt19937_64 gen(20261123);
    std::uniform_real_distribution<double> dias(0.0, 4642999.0);
    std::uniform_int_distribution<int> segundos(0, 58);
    int fallos = 0;
    for (int i = 0; i < 200000 && fallos < 5; ++i) {
        double minutoEntero = std::floor(dias(gen) * 1440) / 1440;
        int s = segundos(gen);
        if (s == 29 || s == 30) continue;  // keep clear of the rounding tie
        double jd = minutoEntero + s / 86400.0;
        double z = std::floor(minutoEntero + 0.5);
        long minutoDelDia = std::lround((minutoEntero + 0.5 - z) * 1440);
        if (s > 30) ++minutoDelDia;  // rounds up; 24:00 stays on the same day
        Fecha f = FechaDeReferencia(minutoEntero);
        JulianaAFecha(e, jd);
        if (jd == 2299160.5) continue;
        if (e.FecAno != f.ano || e.FecMes != f.mes || e.FecDia != f.dia || e.FecHora != minutoDelDia / 60 ||
            e.FecMinuto != minutoDelDia % 60) {
            ADD_FAILURE() << Describe(jd, e) << " expected " << f.ano << "/" << f.mes << "/" << f.dia << " "
                          << minutoDelDia / 60 << ":" << minutoDelDia % 60;
            ++fallos;
        }
    }
}

TEST(Calendario, DeliberateQuirksAndLeapYears) {
    Estado e;
    EXPECT_EQ(FechaAJuliana(ArmaCadenaFecha(-4713, 1, 1, 12, 0)), 0.0);
    EXPECT_EQ(FechaAJuliana(ArmaCadenaFecha(2000, 1, 1, 12, 0)), 2451545.0);
    EXPECT_NEAR(FechaAJuliana(ArmaCadenaFecha(7999, 12, 31, 23, 59)), 4642999.499305556, 1e-9);
    EXPECT_EQ(ArmaCadenaFecha(2000, 1, 1, 12, 0), " 1 1 200012 0");
    EXPECT_EQ(ArmaCadenaFecha(-4713, 12, 31, 9, 5), "3112-4713 9 5");
    // Years above 7999 are pinned into 7999.
    EXPECT_EQ(FechaAJuliana(ArmaCadenaFecha(9000, 3, 1, 0, 0)), FechaAJuliana(ArmaCadenaFecha(7999, 3, 1, 0, 0)));
    // 31 February rolls into March.
    EXPECT_EQ(FechaAJuliana(ArmaCadenaFecha(2023, 2, 31, 0, 0)), FechaAJuliana(ArmaCadenaFecha(2023, 3, 3, 0, 0)));
    EXPECT_THROW(FechaAJuliana(ArmaCadenaFecha(2023, 13, 1, 0, 0)), ErrorEjecucion);

    JulianaAFecha(e, 2451545.4999);  // half a minute before midnight: 24:00 of the same day
    EXPECT_EQ(e.FecDia, 1);
    EXPECT_EQ(e.FecHora, 24);
    EXPECT_EQ(e.FecMinuto, 0);
    JulianaAFecha(e, 2299160.5);  // strict comparison: reads as 5 October 1582
    EXPECT_EQ(e.FecMes, 10);
    EXPECT_EQ(e.FecDia, 5);
    JulianaAFecha(e, 2299160.5 + 1.0 / 1440);
    EXPECT_EQ(e.FecDia, 15);
    EXPECT_EQ(e.FecMinuto, 1);

    for (int16_t y : {1600, 2000, 2400, 1500, 1100, 4, -1, -5, -4713}) EXPECT_TRUE(EsBisiesto(y)) << y;
    for (int16_t y : {1700, 1800, 1900, 2100, 1, -2, -4}) EXPECT_FALSE(EsBisiesto(y)) << y;
}

TEST(Tiempo, StepsAndYearArithmetic) {
    TablaPlanetas vacia{};
    Estado e;
    auto paso = [&](int a, int m, int d, int unidad, int cantidad, int signo) {
        FijaFechaJuliana(e, vacia, FechaAJuliana(ArmaCadenaFecha(a, m, d, 12, 0)));
        e.PasoUnidad = static_cast<int16_t>(unidad);
        e.PasoCantidad = static_cast<int16_t>(cantidad);
        FijaPaso(e, signo);
        AvanzaTiempo(e, vacia);
        EXPECT_TRUE(e.TiempoCambiado);
        JulianaAFecha(e, e.FechaJuliana);
    };
    paso(2000, 1, 1, 10, 1, -1);
    EXPECT_EQ(e.FecAno, 1999);
    EXPECT_EQ(e.FecMes, 1);
    EXPECT_EQ(e.FecHora, 12);
    paso(2000, 2, 29, 10, 1, -1);  // 29 February into a common year
    EXPECT_EQ(e.FecAno, 1999);
    EXPECT_EQ(e.FecMes, 3);
    EXPECT_EQ(e.FecDia, 1);
    paso(1, 6, 1, 10, 1, -1);  // 1 AD minus one year: 0 reads as 1 AD
    EXPECT_EQ(e.FecAno, 1);
    paso(50, 6, 1, 11, 1, -1);  // one year short across the missing year 0
    EXPECT_EQ(e.FecAno, -50);
    paso(-1, 6, 1, 10, 2, 1);
    EXPECT_EQ(e.FecAno, 1);

    FijaFechaJuliana(e, vacia, 2451545.0);
    e.PasoUnidad = 3;
    e.PasoCantidad = 1;
    FijaPaso(e, 1);
    AvanzaTiempo(e, vacia);
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2451545.0 + 0.9972695664235);
}

TEST(Tiempo, DisplayTextsAndClock) {
    TablaPlanetas vacia{};
    Estado e;
    e.FormatoHora = 1;
    TextoFechaHora(e, FechaAJuliana(ArmaCadenaFecha(1999, 3, 5, 17, 5)));
    EXPECT_EQ(e.TextoFecha, "05 / 03 /  1999");
    EXPECT_EQ(e.TextoHora, "17:05");
    TextoFechaHora(e, 0.0);
    EXPECT_EQ(e.TextoFecha, "01 / 01 / -4713");
    e.FormatoHora = 0;
    TextoFechaHora(e, FechaAJuliana(ArmaCadenaFecha(2020, 5, 5, 12, 30)));
    EXPECT_EQ(e.TextoHora, "00:30 PM");
    TextoFechaHora(e, FechaAJuliana(ArmaCadenaFecha(2020, 5, 5, 0, 45)));
    EXPECT_EQ(e.TextoHora, "00:45 AM");

    // Local fields: zone +1 with summer time is two hours ahead.
    e.FormatoHora = 1;
    FijaLugar(e, vacia, {e.Longitud, e.Latitud, 1, true});
    FijaFechaJuliana(e, vacia, FechaAJuliana(ArmaCadenaFecha(2024, 7, 31, 23, 10)));
    MuestraFechas(e);
    EXPECT_EQ(e.Fechas[0].Hora, "23:10");
    EXPECT_EQ(e.Fechas[1].Hora, "01:10");
    EXPECT_EQ(e.Fechas[1].Dia, "01");
    EXPECT_EQ(e.Fechas[1].Mes, "08");
    EXPECT_EQ(e.Fechas[1].Ano, "2024");
    EXPECT_EQ(e.TextoDiaJuliano, "2460523.465278");

    // A clock reading of 1 January 2000 14:00:40 local, zone +2: 12:01 UT.
    FijaLugar(e, vacia, {e.Longitud, e.Latitud, 2, false});
    TiempoDesdeReloj(e, vacia, 36526.0 + (14 * 3600 + 40) / 86400.0);
    EXPECT_NEAR(e.FechaJuliana, 2451545.0 + 1.0 / 1440, 1e-9);
}
