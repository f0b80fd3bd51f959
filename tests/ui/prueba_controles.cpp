// The custom-drawn controls driven with real mouse events: the spin field's
// repeat (limits, wrap, sounds, pauses, the release that ends it), the
// speed-scaled pause, the switch and the push button.
#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <chrono>

#include "app/base/TablasControles.h"
#include "EntornoQt.h"
#include "Falsos.h"
#include "../Ayudas.h"
#include "app/base/ErrorEjecucion.h"
#include "platform/Pausa.h"
#include "platform/Sonido.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/Spin.h"

using namespace vedrano;
using namespace vedrano::controles;
using pruebas::Raton;

namespace {

class Controles : public ::testing::Test {
protected:
    void SetUp() override {
        // A repeat that missed its limit ends here instead of running on.
        f.reloj.alDormir = [this](int n) {
            if (n >= 40) k.SujecionSpin = false;
        };
    }
    // Points the mouse at the keys (which gives cursor 21) and presses a half.
    void PulsaSpin(Spin& s, bool arriba) {
        const QPoint p(s.width() - 10, arriba ? 8 : 20);
        Raton(&s, QEvent::MouseMove, p);
        Raton(&s, QEvent::MouseButtonPress, p);
    }
    bool sonido = true;
    int16_t velocidad = 100;
    Contexto k{sonido, velocidad};
    pruebas::Falsos f;
};

TEST_F(Controles, PausaSegunVelocidad) {
    EXPECT_DOUBLE_EQ(plataforma::FactorVelocidad(100), 1.0);
    EXPECT_DOUBLE_EQ(plataforma::FactorVelocidad(50), 2.25);
    EXPECT_DOUBLE_EQ(plataforma::FactorVelocidad(0), 5.0625);
    // 1.5^0.02 = 1.00814 -> 1.0081, squared 1.01626 -> 1.0163.
    EXPECT_DOUBLE_EQ(plataforma::FactorVelocidad(99), 1.0163);

    // The pause ends on the first millisecond past start + ms x f.
    unsigned long antes = f.reloj.ahora;
    plataforma::Retardo(100, 40);
    EXPECT_EQ(f.reloj.ahora - antes, 41u);
    antes = f.reloj.ahora;
    plataforma::Retardo(0, 40);
    EXPECT_EQ(f.reloj.ahora - antes, 203u);  // 40 x 5.0625 = 202.5
}

TEST_F(Controles, SpinEnElMaximoSinVueltaNoSeMueve) {
    Spin s(k, control::FactorAnimacion, nullptr);  // animation count, 1..999, no wrap
    s.setValor(999);
    float guardado = -1;
    s.setAlmacen([&](float v) { guardado = v; });
    PulsaSpin(s, true);
    EXPECT_EQ(s.valor(), 999.0f);
    EXPECT_TRUE(f.sonidos.oidos.empty());
    EXPECT_EQ(f.reloj.siestas, 0);
    EXPECT_EQ(guardado, 999.0f);  // the unchanged value is still stored
}

TEST_F(Controles, SpinAvanzaHastaElLimiteConSonidoYPausas) {
    Spin s(k, control::Zoom, nullptr);  // zoom, 1..15 by 0.5
    s.setValor(14);
    std::vector<float> pasos;
    QObject::connect(&s, &Spin::paso, [&](float v) { pasos.push_back(v); });
    float guardado = -1;
    s.setAlmacen([&](float v) { guardado = v; });
    const unsigned long antes = f.reloj.ahora;
    PulsaSpin(s, true);  // held: only the limit ends it
    EXPECT_EQ(pasos, (std::vector<float>{14.5f, 15.0f}));
    EXPECT_EQ(guardado, 15.0f);
    EXPECT_EQ(s.campo()->text(), QStringLiteral("15,0"));
    EXPECT_EQ(f.sonidos.oidos, (std::vector<int>{4, 4}));
    EXPECT_EQ(f.reloj.ahora - antes, 2u * 2u * 41u);  // two pauses of 40 ms a step

    // The same two steps down at speed 0 take about 5.06 times as long,
    // and with the sound off they are silent.
    velocidad = 0;
    sonido = false;
    f.sonidos.oidos.clear();
    s.setValor(1.5f);
    const unsigned long antes0 = f.reloj.ahora;
    Raton(&s, QEvent::MouseButtonPress, QPoint(s.width() - 10, 20));
    EXPECT_EQ(s.valor(), 1.0f);
    EXPECT_TRUE(f.sonidos.oidos.empty());
    EXPECT_EQ(f.reloj.ahora - antes0, 2u * 203u);
}

TEST_F(Controles, SpinConVueltaYSoltarElRaton) {
    Spin s(k, control::Direccion, nullptr);  // direction, 0..359, wraps
    s.setValor(1);
    // Let go of the hold after three steps (two pauses a step).
    f.reloj.alDormir = [&](int n) {
        if (n == 6) k.SujecionSpin = false;
    };
    PulsaSpin(s, false);
    EXPECT_EQ(s.valor(), 358.0f);  // 1, 0, 359, 358

    // The mouse-up reaches the loop when it lets events run.
    f.reloj.alDormir = [this](int n) {
        if (n >= 40) k.SujecionSpin = false;
    };
    s.setValor(5);
    QMouseEvent suelta(QEvent::MouseButtonRelease, QPointF(s.width() - 10, 8), QPointF(), Qt::LeftButton,
                       Qt::NoButton, Qt::NoModifier);
    QCoreApplication::postEvent(&s, suelta.clone());
    PulsaSpin(s, true);
    EXPECT_EQ(s.valor(), 6.0f);
    EXPECT_FALSE(k.SujecionSpin);

    // Pressed away from the keys (cursor not the pointing hand): nothing.
    Raton(&s, QEvent::MouseMove, QPoint(3, 3));
    EXPECT_EQ(k.CursorActual, 0);
    Raton(&s, QEvent::MouseButtonPress, QPoint(3, 3));
    EXPECT_EQ(s.valor(), 6.0f);
}

TEST_F(Controles, SpinTextoEscrito) {
    Spin s(k, control::FactorAnimacion, nullptr);
    float guardado = -1;
    s.setAlmacen([&](float v) { guardado = v; });
    s.campo()->setText(QStringLiteral("5000"));
    emit s.campo()->editingFinished();
    EXPECT_EQ(guardado, 999.0f);
    EXPECT_EQ(s.campo()->text(), QStringLiteral("999"));
    guardado = -1;
    s.campo()->setText(QStringLiteral("abc"));
    emit s.campo()->editingFinished();
    EXPECT_EQ(guardado, -1.0f);  // refused: nothing stored, the old text back
    EXPECT_EQ(s.campo()->text(), QStringLiteral("999"));
}

TEST_F(Controles, InterruptorCambiaConCadaClic) {
    Interruptor i(k, 9, nullptr);
    std::vector<bool> avisos;
    QObject::connect(&i, &Interruptor::cambiado, [&](bool v) { avisos.push_back(v); });
    pruebas::Clic(&i, QPoint(10, 10));
    pruebas::Clic(&i, QPoint(10, 10));
    EXPECT_EQ(avisos, (std::vector<bool>{true, false}));
    // The on cell is what is drawn at (4, 3).
    i.setEncendido(true);
    const QImage imagen = i.grab().toImage();
    const QImage celda = MapaControles().toImage().copy(celda::INTERRUPTOR_SI);
    EXPECT_EQ(imagen.copy(4, 3, 17, 17).convertToFormat(QImage::Format_RGB32),
              celda.convertToFormat(QImage::Format_RGB32));
}

TEST_F(Controles, PulsadorBajaYSubeAntesDeActuar) {
    Pulsador b(k, 41, nullptr);
    b.resize(200, 23);
    int acciones = 0;
    QObject::connect(&b, &Pulsador::accionado, [&] {
        ++acciones;
        EXPECT_EQ(f.sonidos.oidos, (std::vector<int>{6, 7}));
    });
    const unsigned long antes = f.reloj.ahora;
    pruebas::Clic(&b, QPoint(50, 10));
    EXPECT_EQ(acciones, 1);
    EXPECT_EQ(f.reloj.ahora - antes, 211u);
    EXPECT_EQ(b.filaCara(), 46);
    // Released outside the button: no action.
    Raton(&b, QEvent::MouseButtonRelease, QPoint(250, 10));
    EXPECT_EQ(acciones, 1);
}

TEST_F(Controles, CaraDelPulsadorEstiradaOCortada) {
    const QImage mapa = MapaControles().toImage().convertToFormat(QImage::Format_RGB32);
    auto columna = [](const QImage& im, int x, int y0) {
        std::vector<QRgb> c;
        for (int y = 0; y < 23; ++y) c.push_back(im.pixel(x, y0 + y));
        return c;
    };
    for (int ancho : {300, 131, 90}) {
        Pulsador b(k, 0, nullptr);  // the centred label stays clear of the edges
        b.resize(ancho, 23);
        const QImage im = b.grab().toImage().convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(columna(im, ancho - 2, 0), columna(mapa, 129, 46)) << ancho;
        EXPECT_EQ(columna(im, ancho - 1, 0), columna(mapa, 130, 46)) << ancho;
        EXPECT_EQ(columna(im, 0, 0), columna(mapa, 0, 46)) << ancho;
        if (ancho > 131) {
            EXPECT_EQ(columna(im, ancho - 3, 0), columna(mapa, 127, 46));
        }
    }
}

TEST_F(Controles, SinDispositivoDeSonidoNoFallaNiEspera) {
    plataforma::FijaReproductor(nullptr);  // the system's own player
    const auto t0 = std::chrono::steady_clock::now();
    for (int n : {4, 6, 7, 9}) plataforma::TocaSonido(true, 0, n);
    QCoreApplication::processEvents();
    EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(2));
}

TEST_F(Controles, IndiceFueraDeLasTablas) {
    EXPECT_EQ(pruebas::ErrorDe([&] { Spin s(k, NUM_FORMATOS, nullptr); }), 9);
}

}  // namespace
