#include "ui/controles/Interruptor.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include "ui/controles/Estilo.h"

namespace vedrano::controles {

Interruptor::Interruptor(Contexto& ctx, int indice, QWidget* padre) : ControlDibujado(ctx, indice, padre) {
    etiqueta();  // an index outside the table fails here, not at the first paint
    resize(sizeHint());
}

Interruptor::Interruptor(Contexto& ctx, const QString& rotulo, QWidget* padre) : ControlDibujado(ctx, -1, padre) {
    rotulo_ = rotulo;
    resize(sizeHint());
}

void Interruptor::setEncendido(bool si) {
    encendido_ = si;
    repaint();
}

QSize Interruptor::sizeHint() const {
    return {24 + QFontMetrics(FuenteControles()).horizontalAdvance(etiqueta()) + 10, 23};
}

void Interruptor::pinta(QPainter& p) {
    DibujaRotulo(p, rect(), QString());
    CopiaCelda(p, {4, 3}, encendido_ ? celda::INTERRUPTOR_SI : celda::INTERRUPTOR_NO);
    ImprimeEtiqueta(p, 24, 4, etiqueta());
}

void Interruptor::mouseMoveEvent(QMouseEvent*) { cambiaCursor(cursor::ManoIndice); }

void Interruptor::mouseReleaseEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton || !rect().contains(ev->position().toPoint())) return;
    cambia();
}

void Interruptor::keyPressEvent(QKeyEvent* ev) {
    if (!EsTeclaPulsar(ev->key())) return ControlDibujado::keyPressEvent(ev);
    cambia();
}

void Interruptor::cambia() {
    setEncendido(!encendido_);
    AvisaValor(this);
    emit cambiado(encendido_);
}

}  // namespace vedrano::controles
