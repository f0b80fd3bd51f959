#include "ui/cielo/VistaCielo.h"

#include <QMouseEvent>
#include <QPainter>

#include "app/ErrorEjecucion.h"
#include "app/Texto1252.h"
#include "sky/DibujaCielo.h"

namespace vedrano {

VistaCielo::VistaCielo(Estado& e, const Catalogos& c, InterfazMensajes& m, QWidget* padre)
    : QWidget(padre), e_(e), c_(c), m_(m), lienzo_(640, 480) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
}

void VistaCielo::ActualizaCielo() {
    listo_ = true;
    Protegido([this] { vedrano::ActualizaCielo(e_, c_, lienzo_); });
}

void VistaCielo::DibujaCielo() {
    if (!listo_) return;  // nothing is drawn before the catalogues and the configuration are in
    Protegido([this] {
        AjustaEscalaLienzo(e_, lienzo_);
        vedrano::DibujaCielo(e_, c_, lienzo_);
    });
}

void VistaCielo::Protegido(const std::function<void()>& pasada) {
    // An arithmetic fault ends the pass with its run-time error: it is told
    // once, and the window goes on with what was drawn.
    try {
        pasada();
    } catch (const ErrorEjecucion& err) {
        if (!avisado_) {
            avisado_ = true;
            m_.Mensaje("ERROR CIE" + std::to_string(err.numero()) + A1252(": no se ha podido dibujar el cielo completo."),
                       "VEDRANO", 1, 1);
        }
    }
    update();
    emit Dibujado();
}

QPointF VistaCielo::AUsuario(const QPointF& pixel) const {
    return {e_.EscalaIzquierda + pixel.x() * e_.EscalaAncho / lienzo_.Ancho(),
            e_.EscalaSuperior + pixel.y() * e_.EscalaAlto / lienzo_.Alto()};
}

void VistaCielo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawImage(0, 0, lienzo_.Imagen());
    if (e_.MarcaVisible) {
        // The mark is drawn over the picture and disappears when drawn again.
        p.setPen(QPen(QColor(255, 80, 80), 1.5));
        const double r = 6;
        p.drawEllipse(marca_, r, r);
        p.drawLine(marca_ - QPointF(r + 4, 0), marca_ - QPointF(r - 2, 0));
        p.drawLine(marca_ + QPointF(r - 2, 0), marca_ + QPointF(r + 4, 0));
        p.drawLine(marca_ - QPointF(0, r + 4), marca_ - QPointF(0, r - 2));
        p.drawLine(marca_ + QPointF(0, r - 2), marca_ + QPointF(0, r + 4));
    }
}

void VistaCielo::resizeEvent(QResizeEvent*) {
    if (width() < 16 || height() < 16) return;
    lienzo_.Redimensiona(width(), height());
    DibujaCielo();
}

void VistaCielo::mouseMoveEvent(QMouseEvent* ev) {
    if (!e_.PanelCursor) return;
    QPointF u = AUsuario(ev->position());
    emit CursorMovido(InformeCursor(e_, static_cast<float>(u.x()), static_cast<float>(u.y())));
}

void VistaCielo::mousePressEvent(QMouseEvent*) { e_.ClickArmado = true; }

void VistaCielo::mouseReleaseEvent(QMouseEvent* ev) {
    if (!e_.ClickArmado) return;
    e_.ClickArmado = false;
    if (ev->button() == Qt::RightButton) {
        if (e_.Marcar) DibujaMarca(ev->position());
        return;
    }
    if (ev->button() != Qt::LeftButton) return;
    QPointF u = AUsuario(ev->position());
    if (CentraPunto(e_, c_.TablaPlanetas, m_, static_cast<float>(u.x()), static_cast<float>(u.y()))) {
        DibujaCielo();
        emit VistaCentrada();
    }
}

void VistaCielo::DibujaMarca(const QPointF& pixel) {
    // One mark at a time: a new one replaces the old.
    marca_ = pixel;
    e_.MarcaVisible = true;
    update();
}

}  // namespace vedrano
