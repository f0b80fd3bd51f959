// What every dialog receives from the main window: the state, the context
// of the drawn controls, the window's own interface state, the catalogues,
// how to redraw the sky, ask the user, open help, and the window to centre
// on.
#pragma once
#include <QDialog>
#include <QWidget>
#include <functional>

#include "app/estado/Estado.h"
#include "app/base/InterfazMensajes.h"
#include "catalogue/Catalogos.h"
#include "platform/qt/PantallaQt.h"
#include "ui/controles/Contexto.h"
#include "ui/formas/EstadoVentana.h"

namespace vedrano {

struct ContextoDialogo {
    Estado& e;
    controles::Contexto& controles;  // what the form's drawn controls share with the window's
    EstadoVentana& ventana;
    const Catalogos& c;
    InterfazMensajes& mensajes;
    QWidget* cielo;                            // the main window: owner and centre of every dialog
    std::function<void()> ActualizaCielo;      // full update: time, solar system, scale, view, pass
    std::function<void()> DibujaCielo;         // the pass with the values already set
    std::function<void(int)> Ayuda;            // opens the help at a topic number
    std::function<void()> ArrancaTiempoReal;   // the main window's real-time clock on
    std::function<void()> ParaTiempoReal;      // and off
    bool preferenciasDibujo = false;           // the picture's program preferences are offered (the window does)
};

// Sizes a dialog and centres it on the main window, within the screen.
inline void ColocaCentrado(QDialog& d, QWidget* cielo) {
    d.adjustSize();
    d.move(plataforma::PosicionCentrada(d.size(), cielo));
}

// Shows a dialog modally, centred on the main window.
inline int MuestraCentrado(QDialog& d, QWidget* cielo) {
    ColocaCentrado(d, cielo);
    return d.exec();
}

// The usual opening of a form: nothing changed yet, then the form shown
// modally; the form itself applies what it changes.
template <class Forma>
void AbreForma(ContextoDialogo& ctx) {
    ctx.e.Cambiado = false;
    Forma forma(ctx);
    MuestraCentrado(forma, ctx.cielo);
}

}  // namespace vedrano
