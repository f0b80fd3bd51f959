#include "ui/controles/Potenciometro.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "app/base/Cursores.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

namespace {
constexpr int PISTA_X = 5, PISTA_Y = 15, MANDO_Y = 17, MANDO_ANCHO = 13;
}

Potenciometro::Potenciometro(Contexto& ctx, int indice, QWidget* padre) : ControlDibujado(ctx, indice, padre) {
    etiqueta();
    resize(sizeHint());
}

void Potenciometro::setPosicion(int posicion) {
    posicion_ = std::clamp(posicion, 0, 100);
    repaint();
}

QRect Potenciometro::mando() const { return {posicion_ + 8, MANDO_Y, MANDO_ANCHO, celda::MANDO.height()}; }

void Potenciometro::pinta(QPainter& p) {
    DibujaRotulo(p, rect(), etiqueta());
    CopiaCelda(p, {PISTA_X, PISTA_Y}, celda::PISTA);
    // The 11-pixel cell widened to 13, with its edges drawn again.
    const QRect m = mando();
    p.drawPixmap(QRectF(m), MapaControles(), CeldaEnMapa(celda::MANDO));
    p.setPen(BLANCO);
    p.drawLine(m.left(), m.top(), m.right(), m.top());
    p.drawLine(m.left(), m.top(), m.left(), m.bottom());
    p.setPen(GRIS_OSCURO);
    p.drawLine(m.left() + 1, m.bottom(), m.right(), m.bottom());
    p.drawLine(m.right(), m.top() + 1, m.right(), m.bottom());
}

void Potenciometro::mueve(int posicion) {
    posicion = std::clamp(posicion, 0, 100);
    if (posicion == posicion_) return;
    setPosicion(posicion);
    AvisaValor(this);
    emit posicionCambiada(posicion_);
}

void Potenciometro::mousePressEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton) return;
    const QPoint p = ev->position().toPoint();
    if (mando().contains(p)) {
        fijaCursor(cursor::ManoCerrada);
        xInicial_ = p.x();
        posicionInicial_ = posicion_;
    } else if (p.y() >= PISTA_Y && p.y() < PISTA_Y + celda::PISTA.height()) {
        mueve(posicion_ + (p.x() < mando().left() ? -10 : 10));
    }
}

void Potenciometro::mouseMoveEvent(QMouseEvent* ev) {
    const QPoint p = ev->position().toPoint();
    if (ctx_.CursorActual == cursor::ManoCerrada) {
        mueve(posicionInicial_ + p.x() - xInicial_);
        return;
    }
    cambiaCursor(mando().contains(p) ? cursor::ManoAbierta : cursor::Normal);
}

void Potenciometro::keyPressEvent(QKeyEvent* ev) {
    switch (ev->key()) {
        case Qt::Key_Left: case Qt::Key_Down: return mueve(posicion_ - 1);
        case Qt::Key_Right: case Qt::Key_Up: return mueve(posicion_ + 1);
        case Qt::Key_PageDown: return mueve(posicion_ - 10);
        case Qt::Key_PageUp: return mueve(posicion_ + 10);
        case Qt::Key_Home: return mueve(0);
        case Qt::Key_End: return mueve(100);
        default: ControlDibujado::keyPressEvent(ev);
    }
}

void Potenciometro::mouseReleaseEvent(QMouseEvent* ev) {
    if (ctx_.CursorActual == cursor::ManoCerrada)
        fijaCursor(mando().contains(ev->position().toPoint()) ? cursor::ManoAbierta : cursor::Normal);
}

}  // namespace vedrano::controles
