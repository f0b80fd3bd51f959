#include "ui/controles/Pulsador.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include "ui/controles/Estilo.h"

namespace vedrano::controles {

Pulsador::Pulsador(Contexto& ctx, int indice, QWidget* padre) : ControlDibujado(ctx, indice, padre) {
    etiqueta();
    resize(sizeHint());
}

Pulsador::Pulsador(Contexto& ctx, const QString& rotulo, QWidget* padre)
    : ControlDibujado(ctx, 0, padre), rotulo_(rotulo) {
    resize(sizeHint());
}

QSize Pulsador::sizeHint() const {
    return {std::max(80, QFontMetrics(FuenteControles()).horizontalAdvance(rotulo()) + 24), celda::CARA_ALTO};
}

void Pulsador::dibuja(bool pulsado, bool conSonido) {
    pulsado_ = pulsado;
    repaint();
    if (conSonido && sonidoUnico_ == 0) Suena(ctx_, 0, pulsado ? 6 : 7);
    if (pulsado) Espera(ctx_, 210);
}

void Pulsador::pinta(QPainter& p) {
    DibujaCara(p, width(), pulsado_);
    const QString texto = rotulo();
    const int ancho = QFontMetrics(FuenteControles()).horizontalAdvance(texto);
    // A pressed face moves its label with it.
    const int d = pulsado_ ? 1 : 0;
    const int sitio = width() - 8;
    if (ancho <= sitio) {
        ImprimeEtiqueta(p, (width() - ancho) / 2 - 1 + d, 5 + d, texto);
        return;
    }
    // A label wider than its face is narrowed to fit rather than cut.
    p.save();
    p.translate(4 + d, 0);
    p.scale(static_cast<double>(sitio) / ancho, 1.0);
    ImprimeEtiqueta(p, 0, 5 + d, texto);
    p.restore();
}

void Pulsador::pulsa() {
    QPointer<Pulsador> vivo(this);
    dibuja(true, true);
    dibuja(false, true);
    if (sonidoUnico_ != 0) Suena(ctx_, 0, sonidoUnico_);
    if (vivo) emit accionado();
}

void Pulsador::mouseMoveEvent(QMouseEvent*) { cambiaCursor(cursor::ManoIndice); }

void Pulsador::mouseReleaseEvent(QMouseEvent* ev) {
    if (ev->button() == Qt::LeftButton && rect().contains(ev->position().toPoint())) pulsa();
}

void Pulsador::keyPressEvent(QKeyEvent* ev) {
    if (EsTeclaPulsar(ev->key()) && !ev->isAutoRepeat()) return pulsa();
    ControlDibujado::keyPressEvent(ev);
}

}  // namespace vedrano::controles
