// VEDRANO: the start-up sequence of the desktop program.
#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

#include "app/Arranque.h"
#include "app/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "config/LeeConfiguracion.h"
#include "config/Preferencias.h"
#include "dialogs/Mensajes.h"
#include "dialogs/MensajesVentana.h"
#include "platform/CarpetaPrograma.h"
#include "platform/qt/PantallaQt.h"
#include "ui/cielo/Cielo.h"
#include "app/gui/Dialogos.h"

using namespace vedrano;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("VEDRANO");
    QApplication::setApplicationVersion("3.2");

    Estado e;
    Catalogos c;
    QPointer<QWidget> careta = MuestraCareta(e);

    PreparaCarpetas(e, plataforma::CarpetaPrograma(argv[0]), plataforma::CarpetaSistema());
    e.ArchivoPreferencias = RutaPreferencias();
    e.Pref = LeePreferencias(e.ArchivoPreferencias);

    plataforma::PantallaQt pantalla;
    MensajesVentana inicio(e, nullptr);
    if (!CompruebaPantalla(pantalla, inicio)) return 0;  // the user chose to leave

    QApplication::setOverrideCursor(Qt::WaitCursor);
    Cielo cielo(e, c, Dialogos(e));
    FijaAyudaMensajes([&cielo](int tema) { cielo.Contexto().Ayuda(tema); });
    cielo.show();
    app.processEvents();

    CargaCatalogos(e.DirDatos, c, cielo.Mensajes());
    LeeConfiguracion(e, "Inicial.ls1", cielo.Mensajes());
    cielo.ActualizaCielo();

    QApplication::restoreOverrideCursor();
    cielo.activateWindow();
    cielo.raise();
    CierraCareta(careta, &cielo);
    // The greeting comes once the cover has gone (it stays a moment at least).
    QElapsedTimer espera;
    espera.start();
    while (careta && espera.elapsed() < 4000) {
        app.processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(10);
    }

    MuestraMensaje(e, &cielo,
                   A1252("Si   desea   consultar   una   descripción   general   de   este programa  para  conocer  "
                         "rápidamente  su  funcionamiento, pulse el botón de Ayuda."),
                   "VEDRANO 3.2", 1, 3, 1020);
    return app.exec();
}
