#include "ui/controles/BotonDialogo.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/controles/Estilo.h"

namespace vedrano::controles {

BotonDialogo::BotonDialogo(Contexto& ctx, Tipo tipo, QWidget* padre)
    : ControlDibujado(ctx, 0, padre), tipo_(tipo) {
    setFixedSize(32, 32);
}

void BotonDialogo::pinta(QPainter& p) {
    const int x = celda::BOTON_X0 + celda::BOTON_PASO * static_cast<int>(tipo_);
    CopiaCelda(p, {0, 0}, QRect(x, abajo_ ? celda::BOTON_PULSADO_Y : 0, celda::BOTON_LADO, celda::BOTON_LADO));
    // Out of use: the picture shows through a veil of the ground's grey.
    if (!isEnabled()) p.fillRect(rect(), QColor(192, 192, 192, 170));
}

void BotonDialogo::mousePressEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton) return;
    abajo_ = true;
    repaint();
}

void BotonDialogo::mouseMoveEvent(QMouseEvent*) { cambiaCursor(cursor::ManoIndice); }

void BotonDialogo::mouseReleaseEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton) return;
    abajo_ = false;
    repaint();
    if (!rect().contains(ev->position().toPoint())) return;
    if (tipo_ != Tipo::Ayuda) Suena(ctx_, 0, 9);
    emit pulsado();
}

void BotonDialogo::keyPressEvent(QKeyEvent* ev) {
    if (!EsTeclaPulsar(ev->key()) || ev->isAutoRepeat()) return ControlDibujado::keyPressEvent(ev);
    acciona();
}

void BotonDialogo::acciona() {
    abajo_ = true;
    repaint();
    Espera(ctx_, 80);
    abajo_ = false;
    repaint();
    if (tipo_ != Tipo::Ayuda) Suena(ctx_, 0, 9);
    emit pulsado();
}

QString BotonDialogo::nombreAccesible() const {
    const QString t = toolTip().trimmed();
    if (!t.isEmpty()) return t;
    switch (tipo_) {
        case Tipo::Salir: return QStringLiteral("Salir");
        case Tipo::Ayuda: return QStringLiteral("Ayuda");
        default: return QStringLiteral("Aceptar");
    }
}

}  // namespace vedrano::controles
