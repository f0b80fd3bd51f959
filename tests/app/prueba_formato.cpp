// Format pictures and the run-time's numeric rules.
#include <gtest/gtest.h>

#include "../Ayudas.h"
#include "app/base/Aritmetica.h"
#include "app/base/Formato.h"
#include "app/base/Texto1252.h"

using namespace vedrano;

TEST(Formato, PicturesOfTheProgram) {
    EXPECT_EQ(Formato(5, "@@@"), "  5");
    EXPECT_EQ(Formato(1024, "@@@"), "1024");
    EXPECT_EQ(Formato(640, "@@@"), "640");
    EXPECT_EQ(Formato(-4713, "@@@@@"), "-4713");
    EXPECT_EQ(Formato(1999, "@@@@@"), " 1999");
    EXPECT_EQ(Formato(5, "00"), "05");
    EXPECT_EQ(Formato(7, " 00"), " 07");
    EXPECT_EQ(Formato(123, " 00"), " 123");
    EXPECT_EQ(Formato(2000, "#####"), "2000");
    EXPECT_EQ(Formato(-44, "#####"), "-44");
    EXPECT_EQ(Formato(2.25, "##0.0"), "2.3");  // half away from zero
    EXPECT_EQ(Formato(0.04, "##0.0"), "0.0");
    EXPECT_EQ(Formato(1234.56, "#0.0"), "1234.6");
    EXPECT_EQ(Formato(99.5, "##0"), "100");
    EXPECT_EQ(Formato(2451545.0, "#######0.000000"), "2451545.000000");
    EXPECT_EQ(Formato(0.5, "#######0.000000"), "0.500000");
    EXPECT_EQ(Formato(3.0, " 0.0;-0.0"), " 3.0");
    EXPECT_EQ(Formato(-1.46, " 0.0;-0.0"), "-1.5");
    EXPECT_EQ(Formato(0.0, " 0.0;-0.0"), " 0.0");
    // Found by fuzzing: more integer digits than a fixed buffer held.
    EXPECT_EQ(Formato(1e300, "#0.0"), "1" + std::string(300, '0') + ".0");
}

TEST(Aritmetica, RoundingOverflowAndVal) {
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_THROW(CInt(32768), ErrorEjecucion);
    EXPECT_EQ(CInt(-32768), -32768);
    EXPECT_THROW(CLng(3e9), ErrorEjecucion);
    EXPECT_EQ(DivEntera(-7, 2), -3);
    EXPECT_DOUBLE_EQ(Val("  12abc"), 12);
    EXPECT_DOUBLE_EQ(Val(" 1 5"), 15);
    EXPECT_DOUBLE_EQ(Val(""), 0);
    EXPECT_DOUBLE_EQ(Val("-"), 0);
    EXPECT_DOUBLE_EQ(Val("-4713"), -4713);
    EXPECT_EQ(pruebas::ErrorDe([] { Divide(1, 0); }), 11);
}

TEST(Texto1252, RoundTripAndPositions) {
    std::string s = A1252("AÑO SIDÉR. 5° €");
    EXPECT_EQ(s.size(), 15u);
    EXPECT_EQ(DesdeA1252(s), "AÑO SIDÉR. 5° €");
    EXPECT_EQ(A1252("Bibhā"), "Bibh?");
    EXPECT_EQ(Mid("N NEE SES SOO NO", 17, 2), "");
    EXPECT_THROW(Mid("abc", 0, 1), ErrorEjecucion);
}
