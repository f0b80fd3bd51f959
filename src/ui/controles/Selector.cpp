#include "ui/controles/Selector.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include "app/base/ErrorEjecucion.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

namespace {
constexpr int MARGEN = 6, ARRIBA_CARA = 16;
}

Selector::Selector(Contexto& ctx, int indice, std::vector<std::string> opciones, QWidget* padre)
    : ControlDibujado(ctx, indice, padre), opciones_(std::move(opciones)) {
    etiqueta();
    if (opciones_.empty()) throw ErrorEjecucion(ErrSubindice);
    resize(sizeHint());
}

void Selector::setEleccion(int eleccion) {
    eleccion_ = (eleccion >= 1 && eleccion <= static_cast<int>(opciones_.size())) ? eleccion : 1;
    repaint();
}

QSize Selector::sizeHint() const {
    QFontMetrics fm(FuenteControles());
    int ancho = fm.horizontalAdvance(QStringLiteral(" ") + etiqueta() + QStringLiteral("  ")) + 12;
    for (const auto& o : opciones_) ancho = std::max(ancho, fm.horizontalAdvance(Texto(o)) + 2 * MARGEN + 24);
    return {ancho, ARRIBA_CARA + celda::CARA_ALTO + 6};
}

void Selector::pinta(QPainter& p) {
    DibujaRotulo(p, rect(), etiqueta());
    const int ancho = width() - 2 * MARGEN;
    p.save();
    p.translate(MARGEN, ARRIBA_CARA);
    p.setClipRect(0, 0, ancho, celda::CARA_ALTO);
    DibujaCara(p, ancho, false);
    const QString texto = Texto(opciones_[static_cast<std::size_t>(eleccion_ - 1)]);
    ImprimeEtiqueta(p, (ancho - QFontMetrics(FuenteControles()).horizontalAdvance(texto)) / 2 - 1, 5, texto);
    p.restore();
}

void Selector::mouseMoveEvent(QMouseEvent*) { cambiaCursor(cursor::ManoIndice); }

void Selector::mouseReleaseEvent(QMouseEvent* ev) {
    if (!rect().contains(ev->position().toPoint())) return;
    if (ev->button() == Qt::LeftButton)
        avanza(1);
    else if (ev->button() == Qt::RightButton)
        avanza(-1);
}

void Selector::keyPressEvent(QKeyEvent* ev) {
    const int k = ev->key();
    if (EsTeclaPulsar(k) || k == Qt::Key_Right || k == Qt::Key_Down) return avanza(1);
    if (k == Qt::Key_Left || k == Qt::Key_Up) return avanza(-1);
    ControlDibujado::keyPressEvent(ev);
}

void Selector::avanza(int sentido) {
    const int n = static_cast<int>(opciones_.size());
    eleccion_ = sentido > 0 ? eleccion_ % n + 1 : (eleccion_ + n - 2) % n + 1;
    Suena(ctx_, 1, 6);
    repaint();
    AvisaValor(this);
    emit eleccionCambiada(eleccion_);
}

QString Selector::valorAccesible() const { return Texto(opciones_[static_cast<std::size_t>(eleccion_ - 1)]).trimmed(); }

}  // namespace vedrano::controles
