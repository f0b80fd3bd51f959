// The text form of single items: the classic number texts, both spellings of
// numbers on reading, and the faults of items that are not what they should be.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "../Ayudas.h"
#include "config/CodigoItems.h"

using namespace vedrano;

namespace {

ItemLeido Item(const std::string& texto, bool comillas = false) { return {texto, comillas}; }

using pruebas::ErrorDe;

}  // namespace

TEST(CodigoItems, NumerosEnLaFormaClasica) {
    EXPECT_EQ(TextoDouble(2482294.0), "2482294");
    EXPECT_EQ(TextoDouble(0.5), "0.5");
    EXPECT_EQ(TextoDouble(-0.25), "-0.25");
    EXPECT_EQ(TextoDouble(0.0829029977321625), "0.0829029977321625");
    EXPECT_EQ(TextoDouble(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(TextoDouble(0.0001), "0.0001");
    EXPECT_EQ(TextoDouble(0.00001), "1E-05");
    EXPECT_EQ(TextoDouble(1.5e20), "1.5E+20");
    EXPECT_EQ(TextoDouble(123456789012345.0), "123456789012345");
    EXPECT_EQ(TextoDouble(1234567890123456.0), "1.23456789012346E+15");
    EXPECT_EQ(TextoDouble(0.0), "0");
    EXPECT_EQ(TextoSingle(2.0f), "2");
    EXPECT_EQ(TextoSingle(0.1f), "0.1");
    EXPECT_EQ(TextoSingle(1.0f / 3.0f), "0.3333333");
    EXPECT_EQ(TextoSingle(12345678.0f), "1.234568E+07");
    EXPECT_EQ(TextoEntero(-32768), "-32768");
    EXPECT_EQ(TextoBooleano(true), "#TRUE#");
    EXPECT_EQ(TextoBooleano(false), "#FALSE#");
    EXPECT_EQ(TextoCadena("Dijo \"hola\"\r\n"), "\"Dijo \"\"hola\"\"  \"");
}

TEST(CodigoItems, LecturaDeNumerosConYSinCeroInicial) {
    EXPECT_EQ(LeeDouble(Item(".5")), 0.5);
    EXPECT_EQ(LeeDouble(Item("-.5")), -0.5);
    EXPECT_EQ(LeeDouble(Item("+0.5")), 0.5);
    EXPECT_EQ(LeeDouble(Item("1E+3")), 1000.0);
    EXPECT_EQ(LeeDouble(Item("1D-2")), 0.01);
    EXPECT_EQ(LeeSingle(Item("2")), 2.0f);
    EXPECT_EQ(LeeEntero(Item("2.5")), 2);  // half to even, as the run-time stores it
    EXPECT_EQ(LeeEntero(Item("3.5")), 4);
    EXPECT_EQ(LeeEntero(Item("-32768")), -32768);
    EXPECT_TRUE(LeeBooleano(Item("#true#")));
    EXPECT_FALSE(LeeBooleano(Item("#FALSE#")));
    EXPECT_TRUE(LeeBooleano(Item("-1")));
    EXPECT_FALSE(LeeBooleano(Item("0")));
    EXPECT_EQ(LeeDouble(Item("1E-400")), 0.0);

    for (const char* malo : {"", "abc", "12abc", "1.2.3", "1E", "--1", "#TRUE#", "inf", "nan", "0x10"})
        EXPECT_EQ(ErrorDe([&] { LeeDouble(Item(malo)); }), 13) << malo;
    EXPECT_EQ(ErrorDe([] { LeeDouble(Item("5", true)); }), 13);
    EXPECT_EQ(ErrorDe([] { LeeBooleano(Item("VERDADERO")); }), 13);
    EXPECT_EQ(ErrorDe([] { LeeDouble(Item("1E+400")); }), 6);
    EXPECT_EQ(ErrorDe([] { LeeSingle(Item("1E+39")); }), 6);
    EXPECT_EQ(ErrorDe([] { LeeEntero(Item("32768")); }), 6);
}

TEST(CodigoItems, PartirLineaRespetaLasComillas) {
    auto items = PartirLinea(" 1 , \"a, \"\"b\"\"\" ,#TRUE#,");
    ASSERT_EQ(items.size(), 4u);
    EXPECT_EQ(items[0].texto, "1");
    EXPECT_EQ(items[1].texto, "a, \"b\"");
    EXPECT_TRUE(items[1].entrecomillado);
    EXPECT_EQ(items[2].texto, "#TRUE#");
    EXPECT_EQ(items[3].texto, "");
    EXPECT_EQ(ErrorDe([] { PartirLinea("\"sin cerrar, 1"); }), 13);
    EXPECT_EQ(ErrorDe([] { PartirLinea("\"a\"b,1"); }), 13);
}

// Writing what was read gives the same text again, and the value read is
// the nearest one to what was written, for numbers of every size.
TEST(CodigoItems, EscribirLeerEscribirEsEstable) {
    std::mt19937_64 azar(12345);
    std::uniform_real_distribution<double> mantisa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponente(-30, 30);
    for (int i = 0; i < 20000; ++i) {
        double x = mantisa(azar) * std::pow(10.0, exponente(azar));
        std::string t = TextoDouble(x);
        double y = LeeDouble(Item(t));
        EXPECT_LE(std::fabs(y - x), std::fabs(x) * 1e-14) << t;
        EXPECT_EQ(TextoDouble(y), t);

        float f = static_cast<float>(x);
        std::string ts = TextoSingle(f);
        float g = LeeSingle(Item(ts));
        EXPECT_LE(std::fabs(g - f), std::fabs(f) * 1e-6f) << ts;
        EXPECT_EQ(TextoSingle(g), ts);
    }
}

// Every finite number written is read back, the largest of each type too
// (fifteen digits would round the largest Double up past it).
TEST(CodigoItems, LosExtremosDeCadaTipoSeLeenDeVuelta) {
    for (double x : {std::numeric_limits<double>::max(), -std::numeric_limits<double>::max(), 1.79769313486231e308})
        EXPECT_EQ(LeeDouble(Item(TextoDouble(x))), x) << TextoDouble(x);
    EXPECT_EQ(TextoDouble(1.7976931348623157e308), "1.7976931348623157E+308");
    for (float f : {std::numeric_limits<float>::max(), -std::numeric_limits<float>::max()})
        EXPECT_LE(std::fabs(LeeSingle(Item(TextoSingle(f))) - f), std::fabs(f) * 1e-6f) << TextoSingle(f);
}
