// The search form tells the day of the chosen line: rising, transit and
// setting, "no sale" for a star that never rises, and the Sun's twilights.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "ContextoPrueba.h"
#include "dialogs/Buscar.h"

using namespace vedrano;

namespace {

using pruebas::Tecla;

// Category `c` from the index and `filtro` typed, which chooses the first
// line found: the text of its day.
QString DiaDe(pruebas::EntornoDialogo& d, int c, const QString& filtro) {
    Buscar b(d.ctx);
    b.show();
    b.indice()->setCurrentRow(c);
    Tecla(&b, Qt::Key_Return);
    EXPECT_EQ(b.categoria(), c);
    EXPECT_TRUE(b.textoDia().isEmpty());  // nothing chosen yet
    pruebas::Escribe(b.filtro(), filtro);
    return b.textoDia();
}

}  // namespace

TEST(BuscarDia, RisingTransitSettingNeverRisesAndTwilights) {
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
    FijaFechaJuliana(d.e, d.c.TablaPlanetas, 2460700.25);
    d.ctx.ActualizaCielo();
    const QString sirio = DiaDe(d, 3, QStringLiteral("sirio"));
    // Sirius sets before dawn and rises in the afternoon: the day's order.
    EXPECT_TRUE(sirio.startsWith(QStringLiteral("Puesta: 0"))) << sirio.toStdString();
    EXPECT_TRUE(sirio.contains(QStringLiteral("    Salida: 1"))) << sirio.toStdString();
    EXPECT_TRUE(sirio.contains(QStringLiteral("Tránsito: "))) << sirio.toStdString();
    // Achernar (declination -57) never rises at the default place (36.7 N).
    const QString achernar = DiaDe(d, 3, QStringLiteral("achernar"));
    EXPECT_TRUE(achernar.startsWith(QStringLiteral("Salida y puesta: no sale"))) << achernar.toStdString();
    const QString sol = DiaDe(d, 0, QStringLiteral("sol"));
    EXPECT_TRUE(sol.contains(QStringLiteral("Crepúsculo astronómico: empieza"))) << sol.toStdString();
}
