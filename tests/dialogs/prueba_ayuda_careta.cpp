// The help pages behind every topic and every link, the help window, and
// the cover going away once the main window is active.
#include <gtest/gtest.h>

#include <QFile>
#include <QPointer>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTimer>

#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "app/estado/Estado.h"
#include "dialogs/piezas/Ayuda.h"
#include "dialogs/Careta.h"
#include "ui/controles/BotonDialogo.h"

using namespace vedrano;

namespace {

QString Recurso(const QString& url) { return QString(url).replace(QStringLiteral("qrc:"), QStringLiteral(":")); }

TEST(Ayuda, CadaTemaYCadaEnlaceLlevanAUnaPagina) {
    const int temas[] = {tema::INDICE, tema::GENERAL, tema::CIELO, tema::CARGAGUAR, tema::PERSONAL, tema::LOCALI,
                         tema::HORA, tema::OBJETOS, tema::BUSCAR, tema::IMPRESOR, tema::ANIMAR,
                         tema::TECLADO, tema::ORDENES, tema::ARCHIVOS};
    QStringList vistas;
    for (int t : temas) {
        const QString pagina = PaginaAyuda(t);
        EXPECT_FALSE(vistas.contains(pagina)) << t;
        vistas << pagina;
        QFile f(Recurso(pagina));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << pagina.toStdString();
        const QString html = QString::fromUtf8(f.readAll());
        EXPECT_TRUE(html.contains(QStringLiteral("lang=\"es\"")));
        static const QRegularExpression enlace(QStringLiteral("href=\"([^\"]+)\""));
        for (auto it = enlace.globalMatch(html); it.hasNext();) {
            const QString destino = it.next().captured(1);
            EXPECT_TRUE(QFile::exists(QStringLiteral(":/ayuda/") + destino))
                << pagina.toStdString() << " -> " << destino.toStdString();
        }
    }
    EXPECT_EQ(PaginaAyuda(0), PaginaAyuda(tema::INDICE));
    EXPECT_EQ(PaginaAyuda(4711), PaginaAyuda(tema::INDICE));
}

// The help stays open beside the sky without blocking it; one window
// serves every topic; while a form is open it belongs to the form (the
// only window the user can reach then) and comes back when the form closes.
TEST(Ayuda, VentanaNoModalUnaParaTodosLosTemas) {
    pruebas::Falsos f;
    bool sonido = false;
    int16_t velocidad = 100;
    controles::Contexto controles{sonido, velocidad};
    QWidget cielo;
    cielo.resize(800, 600);
    cielo.show();
    VentanaAyuda* v = MuestraAyuda(controles, &cielo, tema::GENERAL);
    ASSERT_NE(v, nullptr);
    EXPECT_TRUE(v->isVisible());
    EXPECT_FALSE(v->isModal());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(v->visor()->documentTitle(), QString::fromUtf8("Descripción general de VEDRANO"));
    EXPECT_EQ(MuestraAyuda(controles, &cielo, tema::TECLADO), v);
    EXPECT_EQ(v->visor()->documentTitle(), QStringLiteral("Teclado"));

    QDialog forma(&cielo);
    forma.setModal(true);
    forma.show();
    ASSERT_EQ(QApplication::activeModalWidget(), &forma);
    EXPECT_EQ(MuestraAyuda(controles, &cielo, tema::BUSCAR), v);
    EXPECT_EQ(v->parentWidget(), &forma);
    forma.accept();
    EXPECT_EQ(v->parentWidget(), &cielo);
    EXPECT_TRUE(v->isVisible());

    pruebas::Clic(v->findChild<controles::BotonDialogo*>(), QPoint(16, 16));
    EXPECT_FALSE(v->isVisible());
    delete v;
}

TEST(Careta, SeCierraTrasSuTiempoMinimoCuandoLaVentanaPrincipalEstaLista) {
    Estado e;
    e.Velocidad = 100;
    QPointer<Careta> careta = AbreCareta(e);
    ASSERT_TRUE(careta->isVisible());
    // Still there while the main window is being built.
    QElapsedTimer reloj;
    reloj.start();
    while (reloj.elapsed() < 300) QCoreApplication::processEvents();
    ASSERT_FALSE(careta.isNull());
    QWidget cielo;
    cielo.show();
    careta->cierraCuandoListo(&cielo);
    reloj.restart();
    while (careta && reloj.elapsed() < 5000) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_TRUE(careta.isNull());
    // Not before it has been seen for its minimum time (0.8 s at full speed).
    EXPECT_GE(reloj.elapsed(), 400);
}

}  // namespace
