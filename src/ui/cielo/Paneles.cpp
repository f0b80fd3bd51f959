#include "ui/cielo/Paneles.h"

#include <QMouseEvent>
#include <QPainter>

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
}

void CampoInfo::FijaTexto(const QString& t) {
    if (t == texto_) return;
    texto_ = t;
    update();
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
}

void CampoInfo::mouseReleaseEvent(QMouseEvent*) { emit pulsado(); }

BotonPanel::BotonPanel(Estado& e, int indice, const QString& ayuda, QWidget* padre)
    : QWidget(padre), e_(e), indice_(indice), suelto_(IconoBoton(indice, false)), hundido_(IconoBoton(indice, true)) {
    setFixedSize(48, 48);
    setToolTip(ayuda);
}

void BotonPanel::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawPixmap(0, 0, pulsado_ ? hundido_ : suelto_);
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

void BotonPanel::enterEvent(QEnterEvent*) { controles::FijaCursor(e_, this, 21); }

void BotonPanel::leaveEvent(QEvent*) {
    if (pulsado_) {
        pulsado_ = false;
        update();
    }
    controles::FijaCursor(e_, this, 0);
}

}  // namespace vedrano
