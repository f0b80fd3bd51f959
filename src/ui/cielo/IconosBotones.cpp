#include "ui/cielo/IconosBotones.h"
#include "ui/cielo/IndicesCielo.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "app/base/Constantes.h"

namespace vedrano {

namespace {

void Configuraciones(QPainter& p) {  // a folder with a disk
    p.setBrush(QColor(240, 200, 90));
    p.drawRect(10, 16, 28, 20);
    p.drawRect(10, 12, 12, 5);
    p.setBrush(QColor(60, 80, 160));
    p.drawRect(22, 22, 16, 16);
    p.setBrush(QColor(220, 220, 220));
    p.drawRect(26, 22, 8, 6);
}

void Personalizar(QPainter& p) {  // three sliders
    for (int i = 0; i < 3; ++i) {
        int x = 14 + i * 10;
        p.setPen(QPen(QColor(40, 40, 40), 2));
        p.drawLine(x, 11, x, 37);
        p.setPen(QPen(Qt::black, 1));
        p.setBrush(QColor(230, 230, 230));
        int y = (i == 0 ? 16 : i == 1 ? 28 : 21);
        p.drawRect(x - 4, y - 3, 8, 6);
    }
}

void Localizacion(QPainter& p) {  // a globe
    p.setBrush(QColor(70, 130, 220));
    p.drawEllipse(QPointF(24, 24), 14, 14);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(230, 240, 255), 1));
    p.drawEllipse(QPointF(24, 24), 6, 14);
    p.drawLine(10, 24, 38, 24);
    p.drawLine(12, 17, 36, 17);
    p.drawLine(12, 31, 36, 31);
}

void FechaHora(QPainter& p) {  // a clock
    p.setBrush(QColor(250, 250, 240));
    p.drawEllipse(QPointF(24, 24), 14, 14);
    p.setPen(QPen(Qt::black, 2.5));
    p.drawLine(24, 24, 24, 14);
    p.drawLine(24, 24, 31, 28);
}

void Objetos(QPainter& p) {  // a star and a galaxy
    QPainterPath estrella;
    for (int k = 0; k < 10; ++k) {
        double r = k % 2 ? 4 : 10, a = -PI_COMPLETO / 2 + k * PI_COMPLETO / 5;
        QPointF q(18 + r * std::cos(a), 18 + r * std::sin(a));
        k ? estrella.lineTo(q) : estrella.moveTo(q);
    }
    estrella.closeSubpath();
    p.setBrush(QColor(255, 230, 80));
    p.drawPath(estrella);
    p.setBrush(QColor(200, 200, 255));
    p.save();
    p.translate(31, 31);
    p.rotate(-30);
    p.drawEllipse(QPointF(0, 0), 10, 4);
    p.restore();
}

void Buscar(QPainter& p) {  // a magnifying glass
    p.setBrush(QColor(200, 230, 255));
    p.drawEllipse(QPointF(21, 21), 10, 10);
    p.setPen(QPen(QColor(90, 60, 30), 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(28, 28, 37, 37);
}

void Imprimir(QPainter& p) {  // a printer
    p.setBrush(Qt::white);
    p.drawRect(16, 9, 16, 12);
    p.setBrush(QColor(170, 170, 170));
    p.drawRect(10, 20, 28, 13);
    p.setBrush(Qt::white);
    p.drawRect(15, 29, 18, 10);
}

void Ayuda(QPainter& p) {  // a question mark
    p.setBrush(QColor(60, 120, 200));
    p.drawEllipse(QPointF(24, 24), 14, 14);
    QFont f("DejaVu Sans", 18, QFont::Bold);
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRectF(10, 10, 28, 28), Qt::AlignCenter, "?");
}

void Salir(QPainter& p) {  // an open door
    p.setBrush(QColor(120, 80, 40));
    p.drawRect(14, 9, 20, 30);
    p.setBrush(QColor(30, 30, 30));
    p.drawRect(18, 12, 13, 27);
    p.setBrush(QColor(170, 110, 60));
    QPolygonF hoja({QPointF(18, 12), QPointF(27, 15), QPointF(27, 41), QPointF(18, 39)});
    p.drawPolygon(hoja);
}

}  // namespace

QPixmap IconoBoton(int indice, bool pulsado) {
    QPixmap px(48, 48);
    px.fill(QColor(192, 192, 192));
    QPainter p(&px);
    // Raised (or sunken when pressed) bevel of the classic look.
    QColor claro = pulsado ? QColor(128, 128, 128) : Qt::white, oscuro = pulsado ? Qt::white : QColor(128, 128, 128);
    p.setPen(claro);
    p.drawLine(0, 0, 47, 0);
    p.drawLine(0, 0, 0, 47);
    p.setPen(oscuro);
    p.drawLine(0, 47, 47, 47);
    p.drawLine(47, 0, 47, 47);
    p.setPen(QColor(64, 64, 64));
    if (!pulsado) {
        p.drawLine(1, 46, 46, 46);
        p.drawLine(46, 1, 46, 46);
    }
    p.setRenderHint(QPainter::Antialiasing);
    if (pulsado) p.translate(1, 1);
    p.setPen(QPen(Qt::black, 1));
    switch (indice) {
        case boton::Configuraciones: Configuraciones(p); break;
        case boton::Personalizar: Personalizar(p); break;
        case boton::Localizacion: Localizacion(p); break;
        case boton::FechaHora: FechaHora(p); break;
        case boton::Objetos: Objetos(p); break;
        case boton::Buscar: Buscar(p); break;
        case boton::Imprimir: Imprimir(p); break;
        case boton::Ayuda: Ayuda(p); break;
        default: Salir(p); break;
    }
    return px;
}

}  // namespace vedrano
