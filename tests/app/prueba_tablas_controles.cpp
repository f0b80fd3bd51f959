// The label and value tables of the controls: their bounds, the entries
// other parts of the program rely on by number, and records that can work.
#include <gtest/gtest.h>

#include <cmath>

#include "../Ayudas.h"
#include "app/base/Formato.h"
#include "app/base/TablasControles.h"

using namespace vedrano;

namespace {

using pruebas::ErrorDe;

TEST(TablasControles, Limites) {
    EXPECT_EQ(ErrorDe([] { Etiqueta(51); }), 9);
    EXPECT_EQ(ErrorDe([] { Etiqueta(-1); }), 9);
    EXPECT_EQ(ErrorDe([] { FormatoIndice(41); }), 9);
    EXPECT_EQ(ErrorDe([] { FormatoIndice(-1); }), 9);
    EXPECT_EQ(ErrorDe([] { Etiqueta(50); }), 0);
    EXPECT_EQ(ErrorDe([] { FormatoIndice(40); }), 0);
}

TEST(TablasControles, EntradasConNumeroFijo) {
    EXPECT_EQ(Etiqueta(11), "Horario de verano");
    EXPECT_EQ(Etiqueta(14), "Movimiento en tiempo real");
    EXPECT_EQ(Etiqueta(33), "Nivel visualizar.....:");
    EXPECT_EQ(Etiqueta(34), "Ancho en mms.....:");
    EXPECT_EQ(Etiqueta(35), "Alto en mms........:");
    EXPECT_EQ(Etiqueta(36), "Factor.:");
    EXPECT_EQ(Etiqueta(41), "Fecha y Hora actuales");
    EXPECT_EQ(Etiqueta(42), "Mediod\xED" "a");
    EXPECT_EQ(Etiqueta(45), "Restaurar situaci\xF3n anterior");
    // The zoom picture of the location dialog and the main window.
    EXPECT_EQ(FormatoIndice(30).Formato, "#0.0");
    EXPECT_EQ(Formato(FormatoIndice(30).Maximo, FormatoIndice(30).Formato), "15.0");
}

TEST(TablasControles, RegistrosUtilizables) {
    // Every record steps from its minimum to its maximum in whole steps,
    // and both ends fit the field its picture sizes.
    for (int i = 0; i < NUM_FORMATOS; ++i) {
        const FormatoValor& r = FormatoIndice(i);
        ASSERT_LT(r.Minimo, r.Maximo) << i;
        ASSERT_GT(r.Paso, 0) << i;
        const double pasos = (r.Maximo - r.Minimo) / r.Paso;
        EXPECT_DOUBLE_EQ(pasos, std::round(pasos)) << i;
        for (float v : {r.Minimo, r.Maximo})
            EXPECT_LE(Formato(v, r.Formato).size(), r.Formato.size() + 1) << i;  // + a sign
    }
}

}  // namespace
