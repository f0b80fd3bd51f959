#include "ui/controles/ControlDibujado.h"

#include <QCoreApplication>
#include <QPainter>

#include "app/base/Cursores.h"
#include "app/base/TablasControles.h"
#include "platform/Pausa.h"
#include "platform/Sonido.h"
#include "platform/qt/Cursores.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

void FijaCursor(Estado& e, QWidget* w, int16_t numero) {
    if (numero == cursor::Normal)
        w->unsetCursor();
    else
        w->setCursor(plataforma::CursorNumero(numero));
    e.CursorActual = numero;
}

void Suena(const Estado& e, int modo, int numero) { plataforma::TocaSonido(e.Sonido, modo, numero); }

void Espera(const Estado& e, double milisegundos) { plataforma::Retardo(e.Velocidad, milisegundos); }

void AtiendeEventos() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

ControlDibujado::ControlDibujado(Estado& e, int indice, QWidget* padre)
    : QWidget(padre), e_(e), indice_(indice) {
    setFont(FuenteControles());
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus);
    InstalaAccesibilidad();
}

void ControlDibujado::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), GRIS_CLARO);
    pinta(p);
    if (hasFocus()) PintaFoco(p, rect());
}

QString ControlDibujado::nombreAccesible() const {
    const QString t = toolTip().trimmed();
    return t.isEmpty() ? etiqueta() : t;
}

void ControlDibujado::leaveEvent(QEvent*) { cambiaCursor(0); }

QString ControlDibujado::etiqueta() const {
    return rotulo_.isEmpty() ? Texto(Etiqueta(indice_)).trimmed() : rotulo_;
}

void ControlDibujado::cambiaCursor(int16_t numero) {
    if (e_.CursorActual != numero) fijaCursor(numero);
}

}  // namespace vedrano::controles
