// The main window driven as a user drives it: the arrow pairs' repeat loop
// and its limits, the refusal while real time runs, dialogs stopping the
// animation, the exit confirmation and the real-time clock.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QTimer>

#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "EntornoQt.h"
#include "../Ayudas.h"
#include "VentanaPrueba.h"
#include "app/base/Constantes.h"
#include "app/base/Cursores.h"
#include "app/base/Formato.h"
#include "app/base/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "dialogs/piezas/Mensajes.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/Paneles.h"
#include "ui/cielo/IndicesCielo.h"
#include "ui/controles/SubBaj.h"

using namespace vedrano;

namespace {

const Catalogos& Datos() { return pruebas::CatalogosDatos(); }

// Answers the next message box when it shows: Esc cancels a two-button
// message, Enter accepts; the text is kept for the test.
struct Contestador {
    QString texto;
    bool visto = false;
    void Prepara(int tecla) {
        QTimer::singleShot(0, [this, tecla] {
            auto* m = qobject_cast<Mensajes*>(QApplication::activeModalWidget());
            if (!m) return;
            visto = true;
            QKeyEvent ev(QEvent::KeyPress, tecla, Qt::NoModifier);
            QCoreApplication::sendEvent(m, &ev);
        });
    }
};

struct Ventana : pruebas::VentanaPrueba {
    Ventana() {
        FijaFechaJuliana(e, Datos().TablaPlanetas, 2460700.5);
        dialogos.Mensaje = [this](QWidget* p, const std::string& t, const std::string& ti, int16_t b, int16_t i) {
            return MuestraMensaje(e, k, p, t, ti, b, i);
        };
        Abre(false);
    }
    // Presses arrow pair i at x and lets the loop run `pasos` steps.
    void Pulsa(int i, int x, int pasos) {
        int siestas = 0;
        falsos.reloj.alDormir = [this, pasos, &siestas](int) {
            if (++siestas >= 2 * pasos) ventana().Sujecion = false;
        };
        k.CursorActual = cursor::ManoIndice;
        cielo->SubBajHaPulsado(i, x);
        falsos.reloj.alDormir = nullptr;
    }
    EstadoVentana& ventana() { return cielo->Contexto().ventana; }
};

}  // namespace

TEST(Cielo, DirectionWrapsFrom359To1AndBack) {
    Ventana v;
    const double paso = DOS_PI / 360;
    FijaVista(v.e, 359 * paso, v.e.Elevacion);
    v.Pulsa(flechas::Direccion, 40, 1);
    EXPECT_DOUBLE_EQ(v.e.Direccion, paso);  // never shows 0
    FijaVista(v.e, 0, v.e.Elevacion);
    v.Pulsa(flechas::Direccion, 12, 1);
    EXPECT_DOUBLE_EQ(v.e.Direccion, DOS_PI - paso);
    FijaVista(v.e, 3.0, v.e.Elevacion);
    v.Pulsa(flechas::Direccion, 40, 5);
    EXPECT_NEAR(v.e.Direccion, 3.0 + 5 * paso, 1e-12);
}

TEST(Cielo, ElevationAndZoomStopAtTheirLimits) {
    Ventana v;
    FijaVista(v.e, v.e.Direccion, MEDIO_PI - 0.001);
    v.Pulsa(flechas::Elevacion, 40, 3);
    EXPECT_EQ(v.e.Elevacion, MEDIO_PI);
    FijaVista(v.e, v.e.Direccion, 0.01);
    v.Pulsa(flechas::Elevacion, 12, 3);
    EXPECT_EQ(v.e.Elevacion, 0.0);
    FijaZoom(v.e, 14.5f);
    v.Pulsa(flechas::Zoom, 40, 4);
    EXPECT_EQ(v.e.Zoom, 15.0f);
    FijaZoom(v.e, 1.5f);
    v.Pulsa(flechas::Zoom, 12, 4);
    EXPECT_EQ(v.e.Zoom, 1.0f);
}

TEST(Cielo, TimeArrowsStepAndAreRefusedInRealTime) {
    Ventana v;
    v.e.PasoUnidad = 8;  // one solar day
    v.e.PasoCantidad = 1;
    v.e.PasoDias = 1;
    double antes = v.e.FechaJuliana;
    // The date fields follow each step, though the sky is redrawn only at
    // the end: read them just after the first step.
    std::string trasPrimerPaso;
    int siestas = 0;
    v.falsos.reloj.alDormir = [&](int) {
        if (++siestas == 2) trasPrimerPaso = pruebas::TextoCampo<CampoInfo>(*v.cielo, "Día juliano").toStdString();
        if (siestas >= 4) v.ventana().Sujecion = false;
    };
    v.k.CursorActual = cursor::ManoIndice;
    v.cielo->SubBajHaPulsado(flechas::Tiempo, 12);  // left: backward
    v.falsos.reloj.alDormir = nullptr;
    EXPECT_DOUBLE_EQ(v.e.FechaJuliana, antes - 2);
    EXPECT_LT(v.e.PasoDias, 0);
    std::string jd = Formato(antes - 1, "#######0.000000");
    jd[jd.find('.')] = ',';  // shown with the Spanish decimal comma
    EXPECT_EQ(trasPrimerPaso, "D. J. = " + jd);

    v.e.TiempoReal = true;
    Contestador c;
    c.Prepara(Qt::Key_Return);
    antes = v.e.FechaJuliana;
    v.k.CursorActual = cursor::ManoIndice;
    emit v.cielo->SubBaj(flechas::Tiempo)->pulsado(40);
    EXPECT_TRUE(c.visto);
    EXPECT_EQ(v.e.FechaJuliana, antes);

    // A press outside the arrows' band does nothing.
    v.e.TiempoReal = false;
    v.k.CursorActual = 0;
    emit v.cielo->SubBaj(flechas::Tiempo)->pulsado(40);
    EXPECT_EQ(v.e.FechaJuliana, antes);
}

TEST(Cielo, OpeningADialogStopsTheAnimation) {
    Ventana v;
    bool corriaAlAbrir = true;
    v.dialogos.Objetos = [&](ContextoDialogo& ctx) { corriaAlAbrir = ctx.ventana.Sujecion || ctx.ventana.Enganche; };
    v.Abre(false);
    v.ventana().Sujecion = v.ventana().Enganche = true;
    v.cielo->BotonSoltado(boton::Objetos);
    EXPECT_FALSE(corriaAlAbrir);
    EXPECT_FALSE(v.ventana().Sujecion);
}

TEST(Cielo, CancellingTheExitKeepsTheProgram) {
    Ventana v;
    v.cielo->show();
    Contestador c;
    c.Prepara(Qt::Key_Escape);
    v.cielo->BotonSoltado(boton::Salir);
    EXPECT_TRUE(c.visto);
    EXPECT_EQ(v.e.RespuestaMensaje, 0);
    EXPECT_TRUE(v.cielo->isVisible());
}

TEST(Cielo, RealTimeClockAddsAMinuteEvery60Ticks) {
    Ventana v;
    v.cielo->ArrancaTiempoReal();
    EXPECT_TRUE(v.cielo->TiempoRealActivo());
    double antes = v.e.FechaJuliana;
    QString anterior = v.cielo->TextoTiempoReal();
    for (int t = 1; t <= 59; ++t) {
        v.cielo->TicTiempoReal();
        EXPECT_NE(v.cielo->TextoTiempoReal(), anterior) << t;  // the indicator blinks
        anterior = v.cielo->TextoTiempoReal();
    }
    EXPECT_EQ(v.e.FechaJuliana, antes);
    v.cielo->TicTiempoReal();
    EXPECT_DOUBLE_EQ(v.e.FechaJuliana, antes + 1.0 / 1440);
    EXPECT_EQ(v.ventana().ContadorTiempoReal, 0);
    v.cielo->ParaTiempoReal();
    EXPECT_FALSE(v.cielo->TiempoRealActivo());
    EXPECT_EQ(v.cielo->TextoTiempoReal(), QString::fromUtf8("Animación tiempo real"));
}
