// The main window's repeat loops: the five arrow pairs and the real-time
// clock.
#include "app/base/Constantes.h"
#include "app/base/Cursores.h"
#include "app/base/Texto1252.h"
#include "astro/Planetas.h"
#include "sky/proyeccion/SistemaSolar.h"
#include "app/estado/Tiempo.h"
#include "sky/proyeccion/Proyeccion.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/IndicesCielo.h"
#include "ui/cielo/Paneles.h"
#include "ui/cielo/VistaCielo.h"
#include "ui/controles/ControlDibujado.h"
#include "ui/controles/SubBaj.h"

namespace vedrano {

namespace {

constexpr double PASO_GRADO = DOS_PI / 360;

}  // namespace

void Cielo::SubBajMovido(int i, bool enBanda) {
    controles::SubBaj* s = subbaj_[static_cast<std::size_t>(i)];
    if (enBanda) {
        if (controles_.CursorActual != cursor::ManoIndice) controles::FijaCursor(controles_, s, cursor::ManoIndice);
        return;
    }
    if (controles_.CursorActual != cursor::Normal) controles::FijaCursor(controles_, s, cursor::Normal);
    if (!ventana_.Enganche) ventana_.Sujecion = false;
}

void Cielo::SubBajPresionado(int i, int x) {
    // Only a press inside the arrows' band counts.
    if (controles_.CursorActual != cursor::ManoIndice) return;
    if (RechazaTiempoReal(i)) return;
    SubBajHaPulsado(i, x);
}

bool Cielo::RechazaTiempoReal(int i) {
    if ((i != 4 && i != 5) || !e_.TiempoReal) return false;
    mensajes_.Mensaje(A1252("En este momento,  la imagen  en  pantalla se esta animando en tiempo real,  por tanto,  "
                            "no  puede utilizar  los  botones  de Fecha y Hora o los de Animación del Panel de "
                            "Control."),
                      "Animando en Tiempo Real", 1, 2);
    return true;
}

void Cielo::PasoTecla(int i, int signo) {
    // A key is a short press: one step of the pair, lit and heard as a
    // step of the repeat, then the sky redrawn as after a release.
    if (RechazaTiempoReal(i)) return;
    if (i == flechas::Animacion) {
        SubBajHaPulsado(flechas::Animacion, signo < 0 ? 12 : 35);
        return;
    }
    if (i == flechas::Tiempo && ((signo < 0 && e_.PasoDias > 0) || (signo > 0 && e_.PasoDias < 0))) e_.PasoDias = -e_.PasoDias;
    controles::SubBaj* s = subbaj_[static_cast<std::size_t>(i)];
    s->dibuja(signo < 0 ? 1 : 0);
    controles::Suena(controles_, 1, 4);
    PasoVista(i, signo);
    s->dibuja(-1);
    if (i == flechas::Zoom) RecalculaCuerpos();
    if (i == flechas::Zoom || i == flechas::Tiempo) vista_->ActualizaCielo();
}

void Cielo::PasoVista(int i, int signo) {
    switch (i) {
        case flechas::Direccion: {  // direction: from 359 degrees upward the next is 1, never 0
            double d = e_.Direccion + signo * PASO_GRADO;
            if (d < 0)
                d = DOS_PI - PASO_GRADO;
            else if (d >= DOS_PI)
                d = PASO_GRADO;
            FijaVista(e_, d, e_.Elevacion);
            vista_->DibujaCielo();
            break;
        }
        case flechas::Elevacion: {
            double a = e_.Elevacion + signo * PASO_GRADO;
            if (a < 0) a = 0;
            if (a > MEDIO_PI) a = MEDIO_PI;
            FijaVista(e_, e_.Direccion, a);
            vista_->DibujaCielo();
            break;
        }
        case flechas::Zoom: {
            float z = e_.Zoom + static_cast<float>(signo * 0.5);
            if (z < 1.0f) z = 1.0f;
            if (z > 15.0f) z = 15.0f;
            FijaZoom(e_, z);
            vista_->DibujaCielo();
            break;
        }
        case flechas::Tiempo:
            AvanzaTiempo(e_, c_.TablaPlanetas);
            break;
        case flechas::Animacion:
            controles::Espera(controles_, 60);
            ventana_.Enganche = true;
            AvanzaTiempo(e_, c_.TablaPlanetas);
            vista_->DibujaCielo();
            break;
        default: break;
    }
    RefrescaCampos();
}

void Cielo::SubBajHaPulsado(int i, int x) {
    if (i == flechas::Animacion) {
        // A second press on the animation arrows stops a running animation.
        ventana_.Sujecion = !ventana_.Sujecion;
        ventana_.Enganche = ventana_.Sujecion;
        controles::Suena(controles_, 1, 4);
    } else {
        ventana_.Sujecion = true;
        ventana_.Enganche = false;
    }
    const int lado = x < 33 ? 1 : 0;
    const int signo = lado == 1 ? -1 : 1;
    if ((i == flechas::Tiempo || i == flechas::Animacion) && ((lado == 1 && e_.PasoDias > 0) || (lado == 0 && e_.PasoDias < 0)))
        e_.PasoDias = -e_.PasoDias;
    controles::SubBaj* s = subbaj_[static_cast<std::size_t>(i)];
    while (ventana_.Sujecion) {
        s->dibuja(lado);
        if (!ventana_.Enganche) controles::Suena(controles_, 1, 4);
        controles::Espera(controles_, 40);
        PasoVista(i, signo);
        s->dibuja(-1);
        controles::Espera(controles_, 40);
        controles::AtiendeEventos();
    }
    if (i == flechas::Zoom) RecalculaCuerpos();
    vista_->ActualizaCielo();
}

void Cielo::RecalculaCuerpos() {
    HallaSistemaSolar(e_, c_.TablaPlanetas);
}

void Cielo::TicTiempoReal() {
    ++ventana_.ContadorTiempoReal;
    tiempoReal_->FijaTexto(tiempoReal_->Texto().isEmpty() ? QStringLiteral("Animando tiempo real") : QString());
    if (ventana_.ContadorTiempoReal >= 60) {
        ventana_.RedibujoPermitido = false;
        FijaFechaJuliana(e_, c_.TablaPlanetas, e_.FechaJuliana + 1.0 / 1440.0);
        ventana_.RedibujoPermitido = true;
        vista_->ActualizaCielo();
        ventana_.ContadorTiempoReal = 0;
    }
}

void Cielo::ArrancaTiempoReal() {
    tiempoReal_->FijaTexto(QString());
    ventana_.ContadorTiempoReal = 0;
    reloj_.start();
}

void Cielo::ParaTiempoReal() {
    reloj_.stop();
    tiempoReal_->FijaTexto(QString::fromUtf8("Animación tiempo real"));
}

QString Cielo::TextoTiempoReal() const { return tiempoReal_->Texto(); }

}  // namespace vedrano
