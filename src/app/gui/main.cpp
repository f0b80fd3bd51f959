// VEDRANO: the start-up sequence of the desktop program.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QIcon>
#include <QThread>
#include <QTimer>
#include <functional>
#include <filesystem>
#include <iostream>

#include "app/acciones/Arranque.h"
#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "cli/Argumentos.h"
#include "config/EscrituraSegura.h"
#include "config/LeeConfiguracion.h"
#include "config/Preferencias.h"
#include "dialogs/piezas/Mensajes.h"
#include "dialogs/piezas/MensajesVentana.h"
#include "platform/CarpetaPrograma.h"
#include "platform/qt/Idioma.h"
#include "platform/qt/PantallaQt.h"
#include "ui/cielo/Cielo.h"
#include "app/gui/Dialogos.h"

using namespace vedrano;

namespace {

// The last trap of the window program. Run-time errors are trapped where
// they arise; one that still reaches the event loop is told with its number
// (once the event is over) and the program goes on, never aborts.
class Aplicacion : public QApplication {
public:
    using QApplication::QApplication;
    std::function<void(int)> avisa;
    bool notify(QObject* receptor, QEvent* evento) override {
        try {
            return QApplication::notify(receptor, evento);
        } catch (const ErrorEjecucion& error) {
            std::cerr << "VEDRANO: ERROR " << error.numero() << "\n";
            if (avisa) QTimer::singleShot(0, this, [this, n = error.numero()] { avisa(n); });
            return false;
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    Aplicacion app(argc, argv);
    QApplication::setApplicationName("VEDRANO");
    QApplication::setApplicationVersion("3.2");
    QGuiApplication::setDesktopFileName(QStringLiteral("es.vedrano.Vedrano"));
    QIcon icono;
    for (int lado : {16, 24, 32, 48, 64, 128, 256}) icono.addFile(QStringLiteral(":/icono/%1x%1.png").arg(lado));
    QApplication::setWindowIcon(icono);
    plataforma::PonEspanol();  // without Qt's translations, its own dialogs stay in English
    AnalisisCli orden = AnalizaArgumentosVentana(QApplication::arguments());
    if (orden.terminar) {
        std::cout << orden.salida << std::flush;
        std::cerr << orden.error;
        return orden.codigo;
    }
    // A configuration named on the command line (a file manager opening it)
    // is read from where it is, in place of the working folder's
    // "Inicial.ls1"; saving still goes to the working folder.
    namespace fs = std::filesystem;
    const fs::path inicial = QFile::encodeName(orden.opciones.config).toStdString();
    std::error_code ec;
    if (!inicial.empty() && !fs::is_regular_file(inicial, ec)) {
        std::cerr << "vedrano: no existe el archivo de configuración " << inicial.string() << "\n";
        return 1;
    }

    Estado e;
    // The drawn controls' pointer and hold flags, shared by the start-up's
    // messages and the main window.
    controles::Contexto controles{e.Sonido, e.Velocidad};
    Catalogos c;
    QPointer<QWidget> careta = MuestraCareta(e);

    PreparaCarpetas(e, plataforma::CarpetaPrograma(argv[0]), plataforma::CarpetaSistema());
    LimpiaTemporales(e.DirArchivo);  // what a save cut short by a crash left behind
    e.ArchivoPreferencias = RutaPreferencias();
    e.Pref = LeePreferencias(e.ArchivoPreferencias);

    plataforma::PantallaQt pantalla;
    MensajesVentana inicio(e, controles, nullptr);
    if (!CompruebaPantalla(pantalla, inicio)) return 0;  // the user chose to leave

    QApplication::setOverrideCursor(Qt::WaitCursor);
    Cielo cielo(e, controles, c, Dialogos(e, controles));
    app.avisa = [&](int numero) {
        MuestraMensaje(e, controles, &cielo, "ERROR " + std::to_string(numero), "VEDRANO", 1, 1);
    };
    FijaAyudaMensajes([&cielo](int tema) { cielo.Contexto().Ayuda(tema); });
    cielo.show();
    app.processEvents();

    CargaCatalogos(e.DirDatos, c, cielo.Mensajes());
    if (inicial.empty()) {
        LeeConfiguracion(e, "Inicial.ls1", cielo.Mensajes());
    } else {
        const std::string trabajo = e.DirArchivo;
        e.DirArchivo = fs::absolute(inicial, ec).parent_path().string() + "/";
        LeeConfiguracion(e, inicial.filename().string(), cielo.Mensajes());
        e.DirArchivo = trabajo;
    }
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

    MuestraMensaje(e, controles, &cielo,
                   A1252("Si   desea   consultar   una   descripción   general   de   este programa  para  conocer  "
                         "rápidamente  su  funcionamiento, pulse el botón de Ayuda."),
                   "VEDRANO 3.2", 1, 3, 1020);
    return app.exec();
}
