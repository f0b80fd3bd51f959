// Texts of angles and times, and reading them back.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "../Ayudas.h"
#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"

using namespace vedrano;

namespace {

constexpr double kGrado = M_PI / 180;

std::string U(const std::string& cp1252) { return DesdeA1252(cp1252); }

double Dms(double g, double m, double s) { return (g + m / 60 + s / 3600) * kGrado; }

}  // namespace

TEST(TextosAngulo, SexagesimalLatitudeLongitude) {
    EXPECT_EQ(U(TextoSexagesimal(0)), "  0° 00' 00\"");
    EXPECT_EQ(U(TextoSexagesimal(2 * M_PI - 1e-9)), "  0° 00' 00\"");
    EXPECT_EQ(U(TextoSexagesimal(-Dms(5, 7, 30))), "-  5° 07' 30\"");
    EXPECT_EQ(U(TextoSexagesimal(Dms(123, 59, 59.2))), "123° 59' 59\"");  // truncated, not rounded
    EXPECT_EQ(U(TextoLatitud(Dms(40, 25, 12))), "40° 25' 12\" N");
    EXPECT_EQ(U(TextoLatitud(-Dms(33, 52, 0))), "33° 52' 00\" S");
    EXPECT_EQ(U(TextoLongitud(Dms(3, 42, 15))), "  3° 42' 15\" O");
    EXPECT_EQ(U(TextoLongitud(2 * M_PI - Dms(151, 12, 30))), "151° 12' 30\" E");
    EXPECT_EQ(U(TextoLongitud(3.1415926536)), "180° 00' 00\" O");  // pi itself is west
    EXPECT_EQ(GradosLongitud(3.1415926536), 180);
    EXPECT_EQ(GradosLongitud(2 * M_PI - Dms(151, 12, 30)), 151);  // east: the degrees written
}

TEST(TextosAngulo, HoursWithCarries) {
    EXPECT_EQ(TextoHoras(0.0f), "  0h 00m 00s");
    EXPECT_EQ(TextoHoras(static_cast<float>((6 + 45 / 60.0 + 9 / 3600.0) * 15 * kGrado)), "  6h 45m 09s");
    EXPECT_EQ(TextoHoras(static_cast<float>(2 * M_PI - 1e-6)), "  0h 00m 00s");  // 23h 59m 59.8s
    EXPECT_EQ(TextoHoras(static_cast<float>((12 + 59 / 60.0 + 59.7 / 3600) * 15 * kGrado)), " 13h 00m 00s");
}

TEST(TextosAngulo, CompassAndDegrees) {
    EXPECT_EQ(U(TextoDireccion(135 * kGrado)), "135° SE");
    EXPECT_EQ(U(TextoDireccion(10 * kGrado)), " 10° N ");
    // Every whole degree falls in its eighth of the compass.
    const char* sectores[] = {"N ", "NE", "E ", "SE", "S ", "SO", "O ", "NO"};
    for (int g = 0; g < 360; ++g) {
        int k = static_cast<int>(std::floor((g + 22.5) / 45)) % 8;
        if (std::fmod(g + 22.5, 45) == 0) continue;  // borders depend on 32-bit rounding
        EXPECT_EQ(TextoDireccion(g * kGrado).substr(5), sectores[k]) << g;
    }
    EXPECT_EQ(pruebas::ErrorDe([] { TextoDireccion(-0.5); }), 5);
    EXPECT_EQ(U(TextoGrados(45 * kGrado)), "45°");
    EXPECT_EQ(U(TextoGrados(-5 * kGrado)), "-5°");
}

TEST(TextosAngulo, ReadBackToOneSecond) {
    std::mt19937 gen(42);
    std::uniform_real_distribution<double> lon(0, 2 * M_PI), lat(-M_PI / 2 + 1e-9, M_PI / 2 - 1e-9);
    const double segundo = M_PI / 180 / 3600;
    for (int i = 0; i < 20000; ++i) {
        double l = lon(gen);
        std::string t = TextoLongitud(l);
        double diferencia = std::remainder(LeeAngulo(t) - l, 2 * M_PI);
        ASSERT_LE(std::fabs(diferencia), 1.0001 * segundo) << U(t);
        double b = lat(gen);
        t = TextoLatitud(b);
        ASSERT_LE(std::fabs(LeeAngulo(t) - b), 1.0001 * segundo) << U(t);
    }
    EXPECT_NEAR(LeeAngulo(A1252("40° 25' 12\" n")), Dms(40, 25, 12), 1e-7);  // case ignored; short constant
    EXPECT_NEAR(LeeAngulo(A1252("  5° 00' 00\" e")), 2 * M_PI - 5 * kGrado, 1e-6);
    EXPECT_EQ(LeeAngulo(""), 0.0);
}
