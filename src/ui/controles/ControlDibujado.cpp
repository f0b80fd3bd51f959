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

void FijaCursor(Contexto& ctx, QWidget* w, int16_t numero) {
    if (numero == cursor::Normal)
        w->unsetCursor();
    else
        w->setCursor(plataforma::CursorNumero(numero));
    ctx.CursorActual = numero;
}

void Suena(const Contexto& ctx, int modo, int numero) { plataforma::TocaSonido(ctx.Sonido, modo, numero); }

void Espera(const Contexto& ctx, double milisegundos) { plataforma::Retardo(ctx.Velocidad, milisegundos); }

void AtiendeEventos() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

ControlDibujado::ControlDibujado(Contexto& ctx, int indice, QWidget* padre)
    : QWidget(padre), ctx_(ctx), indice_(indice) {
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

void ControlDibujado::leaveEvent(QEvent*) { cambiaCursor(cursor::Normal); }

QString ControlDibujado::etiqueta() const {
    return rotulo_.isEmpty() ? Texto(Etiqueta(indice_)).trimmed() : rotulo_;
}

void ControlDibujado::cambiaCursor(int16_t numero) {
    if (ctx_.CursorActual != numero) fijaCursor(numero);
}

}  // namespace vedrano::controles
