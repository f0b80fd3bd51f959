#include "app/base/TablasFijas.h"

#include "app/base/Texto1252.h"

namespace vedrano {

namespace {

constexpr double DIA_SIDEREO = 0.9972695664235;

// Reads the three-digit group of month m from a 36-character digit string.
int16_t Grupo(const char* cadena, int m) {
    const char* p = cadena + 3 * m - 3;
    return static_cast<int16_t>((p[0] - '0') * 100 + (p[1] - '0') * 10 + (p[2] - '0'));
}

TablasFijas Construye() {
    TablasFijas t;
    const char* comun = "000031059090120151181212243273304334";
    const char* bisiesto = "000031060091121152182213244274305335";
    for (int m = 1; m <= 12; ++m) {
        t.DiasAcum[0][m] = Grupo(comun, m);
        t.DiasAcum[1][m] = Grupo(bisiesto, m);
    }

    t.TablaPasos[0] = {0, 1.0 / 1440, 1.0 / 24, DIA_SIDEREO, 30 * DIA_SIDEREO, 365 * DIA_SIDEREO,
                       36500 * DIA_SIDEREO, 365000 * DIA_SIDEREO};
    t.TablaPasos[1] = {0, 1.0 / 1440, 1.0 / 24, 1, 30, 1, 100, 1000};
    for (int k = 0; k < 2; ++k)
        for (int c = 1; c <= 7; ++c) t.ListaPasos[k * 7 + c] = t.TablaPasos[k][c];

    // Units 1 and 2 are shared by both kinds; 3..7 sidereal, 8..12 solar.
    t.LongUnidad = {0,
                    1.0 / 1440,
                    1.0 / 24,
                    DIA_SIDEREO,
                    30 * DIA_SIDEREO,
                    365 * DIA_SIDEREO,
                    36500 * DIA_SIDEREO,
                    365000 * DIA_SIDEREO,
                    1.0,
                    30.0,
                    1.0,
                    100.0,
                    1000.0};

    const char* singular[13] = {"",
                                " MINUTO",
                                " HORA",
                                " DIA SIDÉR.",
                                " MES SIDÉR.",
                                " AÑO SIDÉR.",
                                " SIGLO SID.",
                                " MILENIO SID.",
                                " DIA SOLAR",
                                " MES SOLAR",
                                " AÑO SOLAR",
                                " SIGLO SOLAR",
                                " MILENIO SOL."};
    const char* plural[13] = {"",
                              " MINUTOS",
                              " HORAS",
                              " DIAS SID.",
                              " MESES SID.",
                              " AÑOS SID.",
                              " SIGLOS SID.",
                              " MILEN. SID.",
                              " DIAS SOL.",
                              " MESES SOL.",
                              " AÑOS SOL.",
                              " SIGLOS SOL.",
                              " MILEN. SOL."};
    for (int u = 0; u <= 12; ++u) {
        t.NomUnidad[u] = A1252(singular[u]);
        t.NomUnidades[u] = A1252(plural[u]);
    }
    return t;
}

}  // namespace

const TablasFijas& Tablas() {
    static const TablasFijas tablas = Construye();
    return tablas;
}

}  // namespace vedrano
