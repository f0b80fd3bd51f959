// The message box answered the ways a user can: each button of both sets,
// Esc, closing, and the help button with its topic.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <functional>

#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "dialogs/Careta.h"
#include "dialogs/piezas/Mensajes.h"
#include "dialogs/piezas/MensajesVentana.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Pulsador.h"

using namespace vedrano;

namespace {

void CuandoAparezca(std::function<void(Mensajes&)> accion) { pruebas::CuandoAparezca<Mensajes>(accion); }
using pruebas::Pulsa;

using pruebas::Tecla;

class Mensaje : public ::testing::Test {
protected:
    void SetUp() override { e.Velocidad = 100; }
    Estado e;
    controles::Contexto controles{e.Sonido, e.Velocidad};
    pruebas::Falsos f;
    const std::string texto = "Primera l\xEDnea\r\nSegunda l\xEDnea";
};

TEST_F(Mensaje, BotonesDeLosDosJuegos) {
    e.RespuestaMensaje = 0;
    CuandoAparezca([](Mensajes& m) {
        EXPECT_EQ(m.botonCancelar(), nullptr);
        Pulsa(m.botonAceptar());
    });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Aviso", 1, 2), -1);
    EXPECT_EQ(e.RespuestaMensaje, -1);

    CuandoAparezca([](Mensajes& m) { Pulsa(m.botonCancelar()); });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Pregunta", 2, 6), 0);
    EXPECT_EQ(e.RespuestaMensaje, 0);

    CuandoAparezca([](Mensajes& m) { Pulsa(m.botonAceptar()); });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Pregunta", 2, 6), -1);
}

TEST_F(Mensaje, EscYCerrarCancelanSoloSiHayCancelar) {
    e.RespuestaMensaje = 0;
    CuandoAparezca([](Mensajes& m) { Tecla(&m, Qt::Key_Escape); });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Aviso", 1, 1), -1);

    CuandoAparezca([](Mensajes& m) { Tecla(&m, Qt::Key_Escape); });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Pregunta", 2, 3), 0);

    e.RespuestaMensaje = -1;
    CuandoAparezca([](Mensajes& m) { m.close(); });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Pregunta", 2, 3), 0);

    CuandoAparezca([](Mensajes& m) { Tecla(&m, Qt::Key_Return); });
    EXPECT_EQ(MuestraMensaje(e, controles, nullptr, texto, "Pregunta", 2, 3), -1);
}

TEST_F(Mensaje, AyudaConSuTemaYAdaptador) {
    int tema = 0;
    FijaAyudaMensajes([&](int t) { tema = t; });
    CuandoAparezca([](Mensajes& m) {
        ASSERT_NE(m.botonAyuda(), nullptr);
        Pulsa(m.botonAyuda());
        Pulsa(m.botonAceptar());
    });
    MuestraMensaje(e, controles, nullptr, texto, "VEDRANO 3.2", 1, 3, 1020);
    EXPECT_EQ(tema, 1020);
    EXPECT_EQ(e.BotonesMensaje, 1);  // the state keeps what the last message asked
    EXPECT_EQ(e.IconoMensaje, 3);
    EXPECT_EQ(e.TemaMensaje, 1020);
    FijaAyudaMensajes(nullptr);

    // The configuration side hears the answer through the adapter.
    MensajesVentana v(e, controles, nullptr);
    CuandoAparezca([](Mensajes& m) { Pulsa(m.botonCancelar()); });
    EXPECT_EQ(v.Mensaje(texto, "Guardar configuraci\xF3n", 2, 2), 0);
}

// The cover is kept on top: a message shown under it would leave the
// program waiting for an answer nobody can see. It goes before the message
// appears, whoever asks.
TEST_F(Mensaje, LaCaretaSeVaAntesDeCualquierMensaje) {
    QPointer<QWidget> careta = AbreCareta(e);
    ASSERT_TRUE(careta && careta->isVisible());
    bool caretaVisible = true;
    CuandoAparezca([&](Mensajes& m) {
        caretaVisible = careta && careta->isVisible();
        Tecla(&m, Qt::Key_Return);
    });
    MuestraMensaje(e, controles, nullptr, texto, "ERROR", 1, 1);
    EXPECT_FALSE(caretaVisible);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(careta.isNull());
}

// Centred on the window that asks while it is on the screen; before it is
// (the start-up), on the screen, and never partly off it.
TEST_F(Mensaje, CentradoEnLaVentanaOEnLaPantalla) {
    const QRect util = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget ventana;
    ventana.setGeometry(util.left() + 40, util.top() + 30, 300, 200);
    QPoint centro;
    auto mira = [&](Mensajes& m) {
        centro = m.frameGeometry().center();
        EXPECT_TRUE(util.contains(m.frameGeometry())) << "off the screen";
        Tecla(&m, Qt::Key_Return);
    };
    CuandoAparezca(mira);
    MuestraMensaje(e, controles, &ventana, texto, "Aviso", 1, 2);
    EXPECT_LE((centro - util.center()).manhattanLength(), 2);

    ventana.show();
    ventana.move(util.left() + util.width() / 2 - 100, util.top() + util.height() / 2 - 50);
    CuandoAparezca(mira);
    MuestraMensaje(e, controles, &ventana, texto, "Aviso", 1, 2);
    EXPECT_LE((centro - ventana.frameGeometry().center()).manhattanLength(), 2);
}

}  // namespace
