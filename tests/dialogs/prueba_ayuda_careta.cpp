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
#include "dialogs/Ayuda.h"
#include "dialogs/Careta.h"
#include "ui/controles/BotonDialogo.h"

using namespace vedrano;

namespace {

QString Recurso(const QString& url) { return QString(url).replace(QStringLiteral("qrc:"), QStringLiteral(":")); }

TEST(Ayuda, CadaTemaYCadaEnlaceLlevanAUnaPagina) {
    pruebas::AseguraAplicacion();
    const int temas[] = {tema::INDICE, tema::GENERAL, tema::CIELO, tema::CARGAGUAR, tema::PERSONAL, tema::LOCALI,
                         tema::HORA, tema::OBJETOS, tema::BUSCAR, tema::IMPRESOR, tema::ANIMAR};
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

TEST(Ayuda, VentanaAbreElTemaYSeCierra) {
    pruebas::AseguraAplicacion();
    pruebas::Falsos f;
    Estado e;
    e.Velocidad = 100;
    QString titulo;
    auto* t = new QTimer;
    t->setInterval(5);
    QObject::connect(t, &QTimer::timeout, [t, &titulo] {
        if (auto* v = qobject_cast<VentanaAyuda*>(QApplication::activeModalWidget())) {
            t->stop();
            t->deleteLater();
            titulo = v->visor()->documentTitle();
            auto* salir = v->findChild<controles::BotonDialogo*>();
            pruebas::Clic(salir, QPoint(16, 16));
        }
    });
    t->start();
    MuestraAyuda(e, nullptr, tema::GENERAL);
    EXPECT_EQ(titulo, QString::fromUtf8("Descripción general de VEDRANO"));
}

TEST(Careta, SeCierraTrasSuTiempoMinimoCuandoLaVentanaPrincipalEstaLista) {
    pruebas::AseguraAplicacion();
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
