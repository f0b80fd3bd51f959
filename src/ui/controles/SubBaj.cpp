#include "ui/controles/SubBaj.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include "ui/controles/Estilo.h"

namespace vedrano::controles {

SubBaj::SubBaj(Contexto& ctx, int indice, std::string rotulo, QWidget* padre)
    : ControlDibujado(ctx, indice, padre), rotulo_(std::move(rotulo)) {
    resize(sizeHint());
}

QSize SubBaj::sizeHint() const {
    const int caption = QFontMetrics(FuenteControles()).horizontalAdvance(Texto(" " + rotulo_ + "  ")) + 10;
    return {std::max(66, caption), 30};
}

void SubBaj::dibuja(int estado) {
    estado_ = estado;
    repaint();
}

void SubBaj::pinta(QPainter& p) {
    DibujaRotulo(p, rect(), Texto(rotulo_));
    const int izquierda = estado_ == 1 ? celda::FLECHA_COLUMNA_LUZ : celda::FLECHA_COLUMNA_APAGADA;
    const int derecha = estado_ == 0 ? celda::FLECHA_COLUMNA_LUZ : celda::FLECHA_COLUMNA_APAGADA;
    CopiaCelda(p, {11, 14}, QRect(izquierda, celda::FLECHA_FILA_IZQUIERDA, 17, 10));
    CopiaCelda(p, {38, 14}, QRect(derecha, celda::FLECHA_FILA_DERECHA, 17, 10));
}

void SubBaj::mousePressEvent(QMouseEvent* ev) {
    if (ev->button() == Qt::LeftButton) emit pulsado(static_cast<int>(ev->position().x()));
}

void SubBaj::mouseMoveEvent(QMouseEvent* ev) {
    const QPoint p = ev->position().toPoint();
    const bool dentro = enBanda(p);
    cambiaCursor(dentro ? cursor::ManoIndice : cursor::Normal);
    emit movido(p.x(), p.y(), dentro);
}

QString SubBaj::nombreAccesible() const { return Texto(rotulo_); }

void SubBaj::setValor(const QString& valor) {
    if (valor == valor_) return;
    valor_ = valor;
    AvisaValor(this);
}

void SubBaj::keyPressEvent(QKeyEvent* ev) {
    if (ev->key() == Qt::Key_Left) return emit tecla(-1);
    if (ev->key() == Qt::Key_Right) return emit tecla(1);
    ControlDibujado::keyPressEvent(ev);
}

void SubBaj::mouseReleaseEvent(QMouseEvent*) { emit soltado(); }

void SubBaj::leaveEvent(QEvent* ev) {
    ControlDibujado::leaveEvent(ev);
    emit movido(-1, -1, false);
}

}  // namespace vedrano::controles
