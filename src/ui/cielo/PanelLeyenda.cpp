#include "ui/cielo/PanelLeyenda.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "app/base/Texto1252.h"
#include "sky/Lienzo.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

namespace {

// The sixteen-character legend labels of the object categories.
const char* const ROTULOS[27] = {
    "Estrellas  M. -1", "Estrellas  M. 0 ", "Estrellas  M. 1 ", "Estrellas  M. 2 ", "Estrellas  M. 3 ",
    "Estrellas  M. 4 ", "Estrellas  M. 5 ", "Estrellas  M. 6 ", "Estrellas  M. 7 ", "Estre. Variables",
    "Estre. Múltiples", "Estre. Vari/Múlt", "Galaxias  M. 1  ", "Galaxias  M. 2  ", "Galaxias  M. 3  ",
    "Galaxias  M. 4  ", "Neb.Planet. M. 1", "Neb.Planet. M. 2", "Neb.Difusas M. 1", "Neb.Difusas M. 2",
    "Cúm.Abiert. M. 1", "Cúm.Abiert. M. 2", "Cúm.Globul. M. 1", "Cúm.Globul. M. 2", "Quásars         ",
    "Púlsars         ", "Agujeros Negros "};

}  // namespace

PanelLeyenda::PanelLeyenda(const Estado& e, QWidget* padre) : QWidget(padre), e_(e) {
    setFont(controles::FuenteControles());
}

void PanelLeyenda::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::black);
    p.setRenderHint(QPainter::Antialiasing);
    // Symbols at the size they have at zoom 2 on the default picture.
    const double escala = 180.0;
    // A taller panel spreads the lines a little and keeps them centred; a
    // short one (a large scale on a small screen) closes them up.
    const int linea = std::clamp((height() - 8) / 27, ALTO_LINEA_MINIMO, ALTO_LINEA * 3 / 2);
    const int arriba = std::max(4, (height() - 27 * linea) / 2);
    for (int i = 0; i < 27; ++i) {
        int y = arriba + i * linea;
        QPointF c(12, y + linea / 2.0);
        p.setPen(Qt::NoPen);
        if (i <= 8) {  // star dots by magnitude
            double ancho = std::nearbyint((7 - (i - 1)) * 0.07 * e_.Zoom + 1);
            p.setBrush(ColorVB(e_.ColoresEstrellas[0]));
            p.drawEllipse(c, ancho / 2 + 0.3, ancho / 2 + 0.3);
        } else if (i <= 11) {  // variable, multiple, both
            p.setBrush(ColorVB(e_.ColoresEstrellas[static_cast<std::size_t>(i - 8)]));
            p.drawEllipse(c, 2, 2);
        } else {
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(Qt::white, 1));
            if (i <= 15) {  // galaxies: ellipses of aspect 0.6
                double r = 0.0015 * (7 - (i - 11)) * escala;
                p.drawEllipse(c, r, r * 0.6);
            } else if (i <= 19) {  // nebulae: boxes
                double r = 0.0015 * (4 - (i <= 17 ? i - 15 : i - 17)) * escala;
                p.setPen(ColorVB(0xC0C0C0));
                p.drawRect(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r));
            } else if (i <= 23) {  // clusters: circle with a stroke
                double r = 0.003 * (3 - (i <= 21 ? i - 19 : i - 21)) * escala / 1.6;
                p.setPen(i <= 21 ? ColorVB(0x8000) : ColorVB(0xC0C0C0));
                p.drawEllipse(c, r, r);
                p.drawLine(QPointF(c.x() - r, c.y()), QPointF(c.x() + r, c.y()));
            } else {  // quasars, pulsars: two quarter sectors; black holes: half disc
                QRectF caja(c.x() - 5, c.y() - 5, 10, 10);
                if (i < 26) {
                    p.drawPie(caja, 0, 90 * 16);
                    p.drawPie(caja, 180 * 16, 90 * 16);
                } else {
                    p.drawPie(caja, 180 * 16, 180 * 16);
                }
            }
        }
        p.setPen(QColor(220, 220, 220));
        p.drawText(QRect(26, y, width() - 28, linea), Qt::AlignVCenter | Qt::AlignLeft,
                   QString::fromUtf8(ROTULOS[i]));
    }
}

}  // namespace vedrano
