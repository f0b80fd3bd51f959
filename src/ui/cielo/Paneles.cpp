#include "ui/cielo/Paneles.h"

#include <QMouseEvent>
#include <QPainter>

#include "app/base/Cursores.h"
#include "ui/cielo/IconosBotones.h"
#include "ui/controles/ControlDibujado.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

Panel::Panel(QWidget* padre, QColor fondo, QColor claro, QColor oscuro)
    : QWidget(padre), fondo_(fondo), claro_(claro), oscuro_(oscuro) {}

void Panel::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), fondo_);
    controles::DibujaBisel(p, rect(), claro_, oscuro_);
}

CampoInfo::CampoInfo(QWidget* padre) : QWidget(padre) {
    setFont(controles::FuenteControles());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    controles::InstalaAccesibilidad();
}

void CampoInfo::FijaTexto(const QString& t) {
    if (t == texto_) return;
    texto_ = t;
    update();
    controles::AvisaValor(this);
}

void CampoInfo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    int w = width() - 1, h = height() - 1;
    p.setPen(QColor(128, 128, 128));
    p.drawLine(0, 0, w, 0);
    p.drawLine(0, 0, 0, h);
    p.setPen(Qt::white);
    p.drawLine(0, h, w, h);
    p.drawLine(w, 0, w, h);
    p.setPen(Qt::black);
    p.drawText(rect().adjusted(3, 0, -2, 0), Qt::AlignVCenter | Qt::AlignLeft, texto_);
    if (hasFocus()) controles::PintaFoco(p, rect());
}

void CampoInfo::mouseReleaseEvent(QMouseEvent*) { emit pulsado(); }

void CampoInfo::keyPressEvent(QKeyEvent* ev) {
    if (controles::EsTeclaPulsar(ev->key()) && !ev->isAutoRepeat()) return emit pulsado();
    QWidget::keyPressEvent(ev);
}

BotonPanel::BotonPanel(controles::Contexto& ctx, int indice, const QString& ayuda, QWidget* padre)
    : QWidget(padre), ctx_(ctx), indice_(indice), suelto_(IconoBoton(indice, false)), hundido_(IconoBoton(indice, true)) {
    setFixedSize(48, 48);
    setToolTip(ayuda);
    setFocusPolicy(Qt::TabFocus);
    controles::InstalaAccesibilidad();
}

void BotonPanel::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawPixmap(0, 0, pulsado_ ? hundido_ : suelto_);
    if (hasFocus()) controles::PintaFoco(p, rect().adjusted(2, 2, -2, -2));
}

void BotonPanel::keyPressEvent(QKeyEvent* ev) {
    if (!controles::EsTeclaPulsar(ev->key()) || ev->isAutoRepeat()) return QWidget::keyPressEvent(ev);
    // Shown pressed for a moment, as under the mouse.
    pulsado_ = true;
    repaint();
    controles::Espera(ctx_, 80);
    pulsado_ = false;
    repaint();
    emit soltado(indice_);
}

void BotonPanel::mousePressEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton) return;
    pulsado_ = true;
    update();
}

void BotonPanel::mouseReleaseEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton) return;
    pulsado_ = false;
    repaint();
    if (rect().contains(ev->position().toPoint())) emit soltado(indice_);
}

void BotonPanel::enterEvent(QEnterEvent*) { controles::FijaCursor(ctx_, this, cursor::ManoIndice); }

void BotonPanel::leaveEvent(QEvent*) {
    if (pulsado_) {
        pulsado_ = false;
        update();
    }
    controles::FijaCursor(ctx_, this, cursor::Normal);
}

}  // namespace vedrano
