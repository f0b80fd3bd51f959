// The batch calculator, run as users run it: the real executable reading a
// batch on standard input.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "../Ayudas.h"

namespace {

// The batch's answers, one a line; the run ends with `codigo`.
std::vector<std::string> Ejecuta(const std::string& lote, const std::string& datos, int codigo = 0) {
    auto entrada = std::filesystem::temp_directory_path() / ("vedrano_lote_" + std::to_string(::getpid()));
    std::ofstream(entrada) << lote;
    pruebas::Ejecucion e = pruebas::EjecutaCli("calcula --datos '" + datos + "'", entrada.string());
    std::filesystem::remove(entrada);
    EXPECT_EQ(e.codigo, codigo);
    return e.Lineas();
}

std::vector<double> Numeros(const std::string& linea) {
    std::istringstream s(linea);
    std::vector<double> v;
    double x;
    while (s >> x) v.push_back(x);
    return v;
}

double Grados(double rad) { return rad * 180 / M_PI; }

std::string Imprime(double v) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.17g", v);
    return buf;
}

}  // namespace

TEST(Calcula, EveryOperationInOneBatch) {
    const std::string lote =
        "# a comment and a blank line give no output\n"
        "\n"
        "EsBisiesto 1900\n"
        "EsBisiesto -5\n"
        "FechaAJuliana \" 1 1 200012 0\"\n"
        "ArmaCadenaFecha -4713 12 31 9 5\n"
        "JulianaAFecha 2299160.5\n"
        "TextoFechaHora 2451545 0\n"
        "AvanzaTiempo 2451545 3 1 1\n"
        "HallaTiempoSidereo 2451545 0 0 0\n"
        "HallaSol 2451545\n"
        "HallaSolAparente 2451545\n"
        "HallaPlaneta 5 2451545\n"
        "HallaLuna 2451545 0\n"
        "HallaPrecesion 2451544.72\n"
        "AplicaPrecesion 2488070 0 0 1\n"
        "EcuatorialAHorizontal 0 0.7 0 1 0\n"
        "ArcoTangente 1 -1\n"
        "AngulosAVector 1 0.5\n"
        "VectorAAngulos 0 1 0\n"
        "EclipticaAEcuatorial 1.5707963268\n"
        "TextoSexagesimal -0.0894\n"
        "TextoLatitud -0.5\n"
        "TextoLongitud 6.1\n"
        "TextoHoras 6.283185\n"
        "TextoDireccion 2.35619449\n"
        "TextoGrados 0.78539816\n"
        "LeeAngulo \"40\xC2\xB0 25' 12\"\" N\"\n"
        "ProyectaPunto 0 0.7 3.1415926536 0.7 0 0 1\n"
        "PuntoACielo 0 0.7 3.1415926536 0.7 0 0\n"
        "PuntoACielo 0 0.7 3.1415926536 0.7 0.9 0.9\n"
        "Umbral 3 1\n"
        "ArcoTangente 1 0\n"
        "Inventada 1 2\n"
        "EsBisiesto\n"
        "FechaAJuliana 12\n"
        "LeeAngulo \"sin cerrar\n"
        "EsBisiesto 40000\n"
        "TextoDireccion -1\n"
        "HallaPlaneta 12 2451545\n";
    std::vector<std::string> r = Ejecuta(lote, VEDRANO_DATOS);
    ASSERT_EQ(r.size(), 38u);
    EXPECT_EQ(r[0], "0");
    EXPECT_EQ(r[1], "-1");
    EXPECT_EQ(r[2], "2451545");
    EXPECT_EQ(r[3], "\"3112-4713 9 5\"");
    EXPECT_EQ(r[4], "1582 10 5 0 0 0");
    EXPECT_EQ(r[5], "\"01 / 01 /  2000\" \"00:00 PM\"");
    EXPECT_EQ(r[6], Imprime(2451545.0 + 0.9972695664235));

    // Greenwich sidereal time at 2000-01-01 12h UT is 18h 41m 50.5s (280.46 deg).
    auto ts = Numeros(r[7]);
    ASSERT_EQ(ts.size(), 1u);
    EXPECT_NEAR(Grados(ts[0]), 280.4606, 0.05);
    // The Sun's true longitude that day is 280.37 deg; the Earth's is opposite.
    auto sol = Numeros(r[8]);
    ASSERT_EQ(sol.size(), 8u);
    EXPECT_NEAR(Grados(sol[0]) + 180, 280.37, 0.05);
    auto aparente = Numeros(r[9]);
    ASSERT_EQ(aparente.size(), 5u);
    EXPECT_NEAR(Grados(aparente[0]), 281.29, 0.1);  // 18h 45.2m
    EXPECT_NEAR(Grados(aparente[1]), -23.03, 0.05);
    // Jupiter on 2000-01-01: RA 1h 35.4m, Dec +8.6 (Astronomical Almanac 2000).
    auto jupiter = Numeros(r[10]);
    ASSERT_EQ(jupiter.size(), 3u);
    EXPECT_NEAR(Grados(jupiter[1]), 23.85, 1.0);
    EXPECT_NEAR(Grados(jupiter[2]), 8.6, 1.0);
    EXPECT_EQ(Numeros(r[11]).size(), 2u);
    for (double a : Numeros(r[12])) EXPECT_NEAR(a, 0, 1e-7);
    // A century of precession moves the equinox point by 1.4 deg in RA.
    auto prec = Numeros(r[13]);
    ASSERT_EQ(prec.size(), 3u);
    EXPECT_NEAR(Grados(std::atan2(-prec[0], prec[2])), 1.281, 0.01);
    auto polo = Numeros(r[14]);
    ASSERT_EQ(polo.size(), 3u);
    EXPECT_NEAR(polo[1], std::cos(0.7), 1e-6);
    EXPECT_NEAR(polo[2], std::sin(0.7), 1e-6);
    EXPECT_EQ(r[15], Imprime(std::atan(-1.0) + 3.1415926536));
    auto v = Numeros(r[16]);
    ASSERT_EQ(v.size(), 3u);
    EXPECT_NEAR(v[0], -std::sin(1) * std::cos(0.5), 1e-7);
    EXPECT_EQ(r[17], "0 0");  // at the pole nothing is written
    auto solsticio = Numeros(r[18]);
    EXPECT_NEAR(solsticio[1], std::asin(0.3976818), 1e-9);
    EXPECT_EQ(r[19], "\"-  5\xC2\xB0 07' 20\"\"\"");
    EXPECT_EQ(r[20], "\"28\xC2\xB0 38' 52\"\" S\"");
    EXPECT_EQ(r[21], "\" 10\xC2\xB0 29' 44\"\" E\"");
    EXPECT_EQ(r[22], "\"  0h 00m 00s\"");
    EXPECT_EQ(r[23], "\"135\xC2\xB0 SE\"");
    EXPECT_EQ(r[24], "\"45\xC2\xB0\"");
    EXPECT_NEAR(Numeros(r[25]).at(0), (40 + 25 / 60.0 + 12 / 3600.0) * M_PI / 180, 1e-7);
    // The equator's south point stands 0.17 rad above a view at 0.7 rad elevation.
    auto centro = Numeros(r[26]);
    ASSERT_EQ(centro.size(), 3u);
    EXPECT_NEAR(centro[0], 0, 1e-6);
    EXPECT_NEAR(centro[1], std::sin(M_PI / 2 - 0.7 - 0.7), 1e-6);
    // The exact centre of a view due south: altitude and azimuth are written,
    // then the right ascension's arc cosine meets c = -1 and gives the 99 mark.
    auto cielo = Numeros(r[27]);
    ASSERT_EQ(cielo.size(), 4u);
    EXPECT_EQ(cielo[0], 99);
    EXPECT_NEAR(cielo[2], 0.7, 1e-6);
    EXPECT_NEAR(cielo[3], M_PI, 1e-6);
    EXPECT_EQ(r[28], "99 99 0 0");
    double esquina = std::pow(3.4666667 / 6, 2) + std::pow(2.6 / 6, 2);
    EXPECT_NEAR(Numeros(r[29]).at(0), std::sqrt(1 - esquina), 1e-6);
    EXPECT_EQ(r[30], "ERROR 11");
    for (int i : {31, 32, 33, 34}) EXPECT_EQ(r[i].rfind("ERROR sintaxis: ", 0), 0u) << r[i];
    EXPECT_EQ(r[35], "ERROR 6");
    EXPECT_EQ(r[36], "ERROR 5");
    EXPECT_EQ(r[37], "ERROR 9");
}

// The run as a whole still ends with code 1.
TEST(Calcula, MissingDataFolderOnlyStopsTheOperationsThatNeedIt) {
    std::vector<std::string> r = Ejecuta("HallaSol 2451545\nEsBisiesto 2000\nHallaPlaneta 4 2451545\n",
                                         "/nonexistent/vedrano/", 1);
    ASSERT_EQ(r.size(), 3u);
    EXPECT_EQ(r[0], "ERROR 53");
    EXPECT_EQ(r[1], "-1");
    EXPECT_EQ(r[2], "ERROR 53");
}
