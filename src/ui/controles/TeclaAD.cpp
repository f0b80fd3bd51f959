#include "ui/controles/TeclaAD.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include "app/base/Cursores.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

TeclaAD::TeclaAD(Contexto& ctx, int indice, std::string etiqueta, QWidget* padre)
    : ControlDibujado(ctx, indice, padre), texto_(std::move(etiqueta)) {
    resize(sizeHint());
}

QSize TeclaAD::sizeHint() const {
    return {std::max(40, QFontMetrics(FuenteControles()).horizontalAdvance(Texto(texto_)) + 10), 44};
}

void TeclaAD::pinta(QPainter& p) {
    DibujaRotulo(p, rect(), QString());
    DibujaFlechas(p, origenFlechas(), encendida_);
    const QString t = Texto(texto_);
    ImprimeEtiqueta(p, (width() - QFontMetrics(FuenteControles()).horizontalAdvance(t)) / 2 - 1, 27, t);
}

bool TeclaAD::sobreFlechas(QPoint p) const {
    const QPoint o = origenFlechas();
    return p.x() >= o.x() && p.x() < o.x() + 17 && p.y() >= o.y() && p.y() <= o.y() + 20;
}

void TeclaAD::mouseMoveEvent(QMouseEvent* ev) {
    if (sobreFlechas(ev->position().toPoint())) {
        cambiaCursor(cursor::ManoIndice);
    } else {
        cambiaCursor(cursor::Normal);
        ctx_.SujecionSpin = false;
    }
}

void TeclaAD::mouseReleaseEvent(QMouseEvent*) { ctx_.SujecionSpin = false; }

void TeclaAD::keyPressEvent(QKeyEvent* ev) {
    const int sentido = ev->key() == Qt::Key_Up ? 1 : ev->key() == Qt::Key_Down ? -1 : 0;
    if (sentido == 0) return ControlDibujado::keyPressEvent(ev);
    QPointer<TeclaAD> vivo(this);
    emit pulsada(sentido);
    Suena(ctx_, 1, 4);
    if (paso_) paso_(sentido);
    if (vivo) emit soltada();
}

void TeclaAD::mousePressEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton || ctx_.CursorActual != cursor::ManoIndice) return;
    const int sentido = ev->position().y() <= origenFlechas().y() + 10 ? 1 : -1;
    QPointer<TeclaAD> vivo(this);
    ctx_.SujecionSpin = true;
    emit pulsada(sentido);
    while (vivo && ctx_.SujecionSpin) {
        encendida_ = sentido;
        repaint();
        Suena(ctx_, 1, 4);
        if (paso_) paso_(sentido);
        Espera(ctx_, 40);
        encendida_ = 0;
        repaint();
        AtiendeEventos();
    }
    if (vivo) emit soltada();
}

}  // namespace vedrano::controles
