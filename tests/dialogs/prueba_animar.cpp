// The animation form: the unit and count that make the interval, the
// count's typed corrections, the real-time switch, and what leaving does
// to the main window's clock and the instant.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>

#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "../Ayudas.h"
#include "../ui/EntornoQt.h"
#include "ContextoPrueba.h"
#include "../ui/Falsos.h"
#include "app/base/TablasFijas.h"
#include "dialogs/Animar.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Spin.h"

using namespace vedrano;
using pruebas::Clic;
using pruebas::Raton;

namespace {

void EscribeCantidad(controles::Spin* s, const QString& texto) {
    s->campo()->setText(texto);
    pruebas::Tecla(s->campo(), Qt::Key_Return);
}

void Sal(Animar& a) { Clic(a.botonSalir(), QPoint(16, 16)); }

class FormaAnimar : public ::testing::Test, public pruebas::ContextoSolo {
protected:
    void SetUp() override {
        ctx.ArrancaTiempoReal = [this] { ++arranques; };
        ctx.ParaTiempoReal = [this] { ++paradas; };
    }
    int arranques = 0, paradas = 0;
};

TEST_F(FormaAnimar, UnidadYCantidad) {
    e.PasoUnidad = 3;
    e.PasoCantidad = 10;
    e.PasoDias = -10 * Tablas().LongUnidad[3];
    Animar a(ctx);
    for (int u = 1; u <= 12; ++u) EXPECT_EQ(a.unidad(u)->marcada(), u == 3) << u;
    EXPECT_EQ(a.unidad(10)->texto(), QString::fromUtf8("Año Solar"));

    // Ten solar years, forward until an arrow of the main window turns it.
    Clic(a.unidad(10), QPoint(5, 5));
    EXPECT_EQ(e.PasoUnidad, 10);
    EXPECT_FALSE(a.unidad(3)->marcada());
    EXPECT_DOUBLE_EQ(e.PasoDias, 10.0);
    Clic(a.unidad(4), QPoint(5, 5));
    EXPECT_DOUBLE_EQ(e.PasoDias, 300 * 0.9972695664235);

    EscribeCantidad(a.cantidad(), "5000");
    EXPECT_EQ(e.PasoCantidad, 999);
    EXPECT_EQ(a.cantidad()->campo()->text().trimmed(), "999");
    for (const char* malo : {"abc", "", "-", "-20"}) {
        EscribeCantidad(a.cantidad(), malo);
        EXPECT_EQ(e.PasoCantidad, 1) << malo;
        EXPECT_EQ(a.cantidad()->campo()->text().trimmed(), "1") << malo;
    }
    EscribeCantidad(a.cantidad(), "12 horas");
    EXPECT_EQ(e.PasoCantidad, 12);
    EXPECT_DOUBLE_EQ(e.PasoDias, 12 * 30 * 0.9972695664235);

    // The up key held for two steps.
    const QPoint arriba(a.cantidad()->width() - 10, 8);
    f.reloj.alDormir = [this](int n) {
        if (n >= 4) controles.SujecionSpin = false;  // two pauses a step
    };
    Raton(a.cantidad(), QEvent::MouseMove, arriba);
    Raton(a.cantidad(), QEvent::MouseButtonPress, arriba);
    f.reloj.alDormir = nullptr;
    EXPECT_EQ(e.PasoCantidad, 14);
    EXPECT_DOUBLE_EQ(e.PasoDias, 14 * 30 * 0.9972695664235);
}

TEST_F(FormaAnimar, SalirSinCambiosConservaElSentido) {
    e.PasoUnidad = 2;
    e.PasoCantidad = 3;
    e.PasoDias = -3.0 / 24;
    e.TiempoReal = false;
    const double jd = e.FechaJuliana;
    Animar a(ctx);
    Sal(a);
    EXPECT_DOUBLE_EQ(e.PasoDias, -3.0 / 24);
    EXPECT_EQ(paradas, 1);
    EXPECT_EQ(arranques, 0);
    EXPECT_EQ(e.FechaJuliana, jd);
    EXPECT_EQ(f.sonidos.oidos, (std::vector<int>{9}));
}

TEST_F(FormaAnimar, TiempoRealArrancaElRelojYSaltaAlPresente) {
    e.TiempoReal = false;
    ventana.ContadorTiempoReal = 37;
    FijaLugar(e, c.TablaPlanetas, {e.Longitud, e.Latitud, 1, e.HorarioVerano});
    bool terminado = false;
    // The form shown as the main window shows it, answered once it is up.
    pruebas::CuandoAparezca<Animar>([&](Animar& a) {
        // 1 January 2000, 12:00 UT: the zone adds and takes back its hour.
        a.setReloj([] { return 2451544.5 - 2415018.5 + 12.0 / 24; });
        Clic(a.tiempoReal(), QPoint(5, 5));
        EXPECT_TRUE(e.TiempoReal);
        EXPECT_EQ(ventana.ContadorTiempoReal, 0);
        Sal(a);
        terminado = true;
    });
    e.Cambiado = true;  // left over from before: the form starts it afresh
    AbreAnimar(ctx);
    ASSERT_TRUE(terminado);
    EXPECT_EQ(arranques, 1);
    EXPECT_EQ(paradas, 0);
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2451545.0);
    EXPECT_TRUE(e.Cambiado);
    EXPECT_EQ(f.sonidos.oidos, (std::vector<int>{6, 9}));
}

TEST_F(FormaAnimar, EscApagaUnaSolaVez) {
    e.TiempoReal = true;
    Animar a(ctx);
    a.show();
    Clic(a.tiempoReal(), QPoint(5, 5));
    EXPECT_FALSE(e.TiempoReal);
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&a, &esc);
    EXPECT_FALSE(a.isVisible());
    a.close();
    EXPECT_EQ(paradas, 1);
    EXPECT_EQ(arranques, 0);
}

}  // namespace
