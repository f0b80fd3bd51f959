#include "ui/cielo/VistaCielo.h"

#include <QApplication>
#include <cmath>
#include <QMouseEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include "app/acciones/Centrado.h"
#include "app/base/Cursores.h"
#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "platform/qt/Cursores.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

VistaCielo::VistaCielo(Estado& e, const Catalogos& c, InterfazMensajes& m, QWidget* padre)
    : QWidget(padre), e_(e), c_(c), m_(m), lienzo_(640, 480) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
}

void VistaCielo::ActualizaCielo() {
    listo_ = true;
    Protegido([this] { vedrano::ActualizaCielo(e_, c_, lienzo_, PreparaOpciones()); });
}

void VistaCielo::DibujaCielo() {
    if (!listo_) return;  // nothing is drawn before the catalogues and the configuration are in
    Protegido([this] {
        AjustaEscalaLienzo(e_, lienzo_);
        vedrano::DibujaCielo(e_, c_, lienzo_, PreparaOpciones());
    });
}

const OpcionesDibujo& VistaCielo::PreparaOpciones() {
    opciones_.TodosLosRotulos = e_.Pref.TodosLosRotulos;
    opciones_.EstrellasDebiles = e_.Pref.EstrellasDebiles;
    if (opciones_.EstrellasDebiles && !profundasProbadas_) {
        // Mapped, not read: opening costs only the file's zone table.
        profundasProbadas_ = true;
        std::string mensaje;
        if (profundas_.Abre(e_.DirDatos + "VDRDATP.DAT", mensaje))
            opciones_.Profundas = &profundas_;
        else
            m_.Mensaje(A1252(mensaje), A1252("Estrellas débiles"), 1, 1);
    }
    return opciones_;
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

ObjetoSenalado VistaCielo::ObjetoEn(const QPointF& pixel) const {
    if (!listo_ || lienzo_.Ancho() <= 0) return {};
    constexpr double ALCANCE = 7;  // pixels
    const QPointF u = AUsuario(pixel);
    const float radio = static_cast<float>(ALCANCE * std::fabs(e_.EscalaAncho) / lienzo_.Ancho());
    // Each object then costs its products only (a const state would work
    // out any stale rotation again for every object).
    PreparaProyeccion(e_);
    return ObjetoBajo(e_, c_, static_cast<float>(u.x()), static_cast<float>(u.y()), radio);
}

bool VistaCielo::event(QEvent* ev) {
    if (ev->type() != QEvent::ToolTip) return QWidget::event(ev);
    auto* ayuda = static_cast<QHelpEvent*>(ev);
    const ObjetoSenalado o = ObjetoEn(ayuda->pos());
    if (o.clase == ClaseObjeto::Ninguno) {
        QToolTip::hideText();
        ev->ignore();
        return true;
    }
    QStringList lineas;
    for (const std::string& l : DescribeObjeto(e_, c_, o)) lineas << QString::fromUtf8(DesdeA1252(l));
    QToolTip::showText(ayuda->globalPos(), lineas.join('\n'), this);
    return true;
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
    // At the screen's device pixel ratio: sharp stars and labels on hi-DPI.
    lienzo_.Redimensiona(width(), height(), devicePixelRatioF());
    DibujaCielo();
}

void VistaCielo::InformaCursor(const QPointF& pixel) {
    if (!e_.PanelCursor) return;
    QPointF u = AUsuario(pixel);
    emit CursorMovido(InformeCursor(e_, static_cast<float>(u.x()), static_cast<float>(u.y())));
}

void VistaCielo::VistaMovida() {
    DibujaCielo();
    emit VistaGirada();
}

void VistaCielo::mouseMoveEvent(QMouseEvent* ev) {
    if (agarrado_ && (ev->buttons() & Qt::LeftButton)) {
        if (!arrastrando_ &&
            (ev->position() - presion_).manhattanLength() >= QApplication::startDragDistance()) {
            // Past the drag distance the press is no longer a click.
            arrastrando_ = true;
            clickArmado_ = false;
            setCursor(plataforma::CursorNumero(cursor::ManoCerrada));
        }
        if (arrastrando_) {
            QPointF u = AUsuario(ev->position());
            if (LlevaPunto(e_, agarre_, static_cast<float>(u.x()), static_cast<float>(u.y()))) VistaMovida();
        }
    }
    InformaCursor(ev->position());
}

void VistaCielo::mousePressEvent(QMouseEvent* ev) {
    clickArmado_ = true;
    arrastrando_ = false;
    agarrado_ = false;
    if (ev->button() != Qt::LeftButton) return;
    presion_ = ev->position();
    QPointF u = AUsuario(presion_);
    agarrado_ = HorizonteEn(e_, static_cast<float>(u.x()), static_cast<float>(u.y()), agarre_);
}

void VistaCielo::mouseReleaseEvent(QMouseEvent* ev) {
    if (arrastrando_) setCursor(Qt::CrossCursor);
    agarrado_ = arrastrando_ = false;
    if (!clickArmado_) return;
    clickArmado_ = false;
    if (ev->button() == Qt::RightButton) {
        if (e_.Marcar) DibujaMarca(ev->position());
        return;
    }
    if (ev->button() != Qt::LeftButton) return;
    if (ev->modifiers() & Qt::ControlModifier) {
        // Ctrl asks what the object is; the plain click keeps centring.
        const ObjetoSenalado o = ObjetoEn(ev->position());
        if (o.clase != ClaseObjeto::Ninguno) emit ObjetoPedido(o);
        return;
    }
    QPointF u = AUsuario(ev->position());
    if (CentraPunto(e_, c_.TablaPlanetas, m_, static_cast<float>(u.x()), static_cast<float>(u.y()))) {
        DibujaCielo();
        emit VistaCentrada();
    }
}

void VistaCielo::wheelEvent(QWheelEvent* ev) {
    // One notch (15 degrees of the wheel) is one zoom step of the arrows;
    // touch pads send smaller parts that add up.
    restoRueda_ += ev->angleDelta().y();
    const int pasos = restoRueda_ / 120;
    restoRueda_ -= pasos * 120;
    ev->accept();
    if (pasos == 0 || !listo_) return;
    const float zoom = ZoomTrasPasos(e_.Zoom, pasos);
    if (zoom == e_.Zoom) return;
    const QPointF pixel = ev->position();
    QPointF u = AUsuario(pixel);
    PuntoHorizonte bajo;
    const bool fijo = HorizonteEn(e_, static_cast<float>(u.x()), static_cast<float>(u.y()), bajo);
    FijaZoom(e_, zoom);
    AjustaEscalaLienzo(e_, lienzo_);
    if (fijo) {
        // The place under the pointer stays under it.
        u = AUsuario(pixel);
        LlevaPunto(e_, bajo, static_cast<float>(u.x()), static_cast<float>(u.y()));
    }
    VistaMovida();
    InformaCursor(pixel);
}

void VistaCielo::DibujaMarca(const QPointF& pixel) {
    // One mark at a time: a new one replaces the old.
    marca_ = pixel;
    e_.MarcaVisible = true;
    update();
}

}  // namespace vedrano
