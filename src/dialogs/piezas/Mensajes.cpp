#include "dialogs/piezas/Mensajes.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "app/base/TablasControles.h"
#include "platform/qt/PantallaQt.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Pulsador.h"

namespace vedrano {

using namespace controles;

namespace {

std::function<void(int)>& Ayuda() {
    static std::function<void(int)> ayuda;
    return ayuda;
}

constexpr int MARGEN = 14, ALTO_TITULO = 24, LADO_ICONO = 32, ANCHO_TEXTO = 380, ANCHO_BOTON = 92;

}  // namespace

void FijaAyudaMensajes(std::function<void(int)> ayuda) { Ayuda() = std::move(ayuda); }

int16_t MuestraMensaje(Estado& e, controles::Contexto& controles, QWidget* padre, const std::string& textoCp1252,
                       const std::string& tituloCp1252, int16_t botones, int16_t icono, int16_t ayuda) {
    e.BotonesMensaje = botones;
    e.IconoMensaje = icono;
    e.TemaMensaje = ayuda;
    Mensajes m(e, controles, padre, textoCp1252, tituloCp1252, botones, icono, ayuda);
    m.exec();
    return e.RespuestaMensaje;
}

Mensajes::Mensajes(Estado& e, controles::Contexto& controles, QWidget* padre, const std::string& textoCp1252,
                   const std::string& tituloCp1252, int16_t botones, int16_t icono, int16_t ayuda)
    : QDialog(padre, Qt::Dialog | Qt::FramelessWindowHint),
      e_(e),
      controles_(controles),
      texto_(Texto(textoCp1252).replace(QStringLiteral("\r\n"), QStringLiteral("\n"))),
      titulo_(Texto(tituloCp1252).trimmed()),
      botones_(botones),
      icono_(icono),
      tema_(ayuda) {
    setModal(true);
    setWindowTitle(titulo_);
    setFont(FuenteControles());

    const bool conIcono = icono_ == 1 || icono_ == 2 || icono_ == 3 || icono_ == 6;
    const QFontMetrics fm(FuenteControles());
    const QRect medida = fm.boundingRect(QRect(0, 0, ANCHO_TEXTO, 10000), Qt::TextWordWrap, texto_);
    const int izquierdaTexto = MARGEN + (conIcono ? LADO_ICONO + MARGEN : 0);
    const int altoCuerpo = std::max(conIcono ? LADO_ICONO : 0, medida.height());
    const int anchoBotones = (botones_ == 2 ? 2 * ANCHO_BOTON + MARGEN : ANCHO_BOTON) + (tema_ ? 2 * (32 + MARGEN) : 0);
    const int ancho = std::max({izquierdaTexto + medida.width() + 2 * MARGEN, anchoBotones + 2 * MARGEN,
                                fm.horizontalAdvance(titulo_) + 6 * MARGEN, 280});
    const int arribaCuerpo = ALTO_TITULO + MARGEN;
    areaTexto_ = QRect(izquierdaTexto, arribaCuerpo + std::max(0, (altoCuerpo - medida.height()) / 2),
                       ancho - izquierdaTexto - MARGEN, medida.height());
    const int filaBotones = arribaCuerpo + altoCuerpo + MARGEN + 4;
    const int alto = filaBotones + 32 + MARGEN - 4;
    setFixedSize(ancho, alto);

    aceptar_ = new Pulsador(controles_, control::Aceptar, this);
    aceptar_->setSonidoUnico(9);
    aceptar_->resize(ANCHO_BOTON, aceptar_->height());
    connect(aceptar_, &Pulsador::accionado, this, [this] { responde(-1); });
    const int yPulsador = filaBotones + (32 - aceptar_->height()) / 2;
    if (botones_ == 2) {
        cancelar_ = new Pulsador(controles_, control::Cancelar, this);
        cancelar_->setSonidoUnico(9);
        cancelar_->resize(ANCHO_BOTON, cancelar_->height());
        connect(cancelar_, &Pulsador::accionado, this, [this] { responde(0); });
        const int x0 = (ancho - 2 * ANCHO_BOTON - MARGEN) / 2;
        aceptar_->move(x0, yPulsador);
        cancelar_->move(x0 + ANCHO_BOTON + MARGEN, yPulsador);
    } else {
        aceptar_->move((ancho - ANCHO_BOTON) / 2, yPulsador);
    }
    if (tema_ != 0) {
        ayuda_ = new BotonDialogo(controles_, BotonDialogo::Tipo::Ayuda, this);
        ayuda_->move(ancho - MARGEN - 32, filaBotones);
        ayuda_->setToolTip(QStringLiteral(" Ayuda "));
        connect(ayuda_, &BotonDialogo::pulsado, this, [this] {
            if (Ayuda()) Ayuda()(tema_);
        });
    }
}

void Mensajes::showEvent(QShowEvent* ev) {
    // Centred on the window that asked while it is on the screen, or on the
    // screen itself; never placed partly off the screen.
    move(plataforma::PosicionCentrada(size(), parentWidget()));
    QDialog::showEvent(ev);
}

void Mensajes::responde(int16_t respuesta) {
    if (respondido_) return;
    respondido_ = true;
    e_.RespuestaMensaje = respuesta;
    done(respuesta != 0 ? QDialog::Accepted : QDialog::Rejected);
}

void Mensajes::keyPressEvent(QKeyEvent* ev) {
    switch (ev->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            aceptar_->pulsa();
            break;
        case Qt::Key_Escape:
            if (cancelar_)
                cancelar_->pulsa();
            else
                aceptar_->pulsa();
            break;
        default:
            QDialog::keyPressEvent(ev);
    }
}

void Mensajes::closeEvent(QCloseEvent* ev) {
    // Closing answers as Esc does: cancel when there is a cancel button.
    if (!respondido_) {
        respondido_ = true;
        e_.RespuestaMensaje = botones_ == 2 ? 0 : -1;
        setResult(botones_ == 2 ? QDialog::Rejected : QDialog::Accepted);
    }
    QDialog::closeEvent(ev);
}

void Mensajes::mousePressEvent(QMouseEvent* ev) {
    agarre_ = ev->position().y() < ALTO_TITULO ? ev->globalPosition().toPoint() - frameGeometry().topLeft() : QPoint();
}

void Mensajes::mouseMoveEvent(QMouseEvent* ev) {
    // The title bar is drawn by the box itself, so it moves the box.
    if ((ev->buttons() & Qt::LeftButton) && !agarre_.isNull()) move(ev->globalPosition().toPoint() - agarre_);
}

void Mensajes::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QRect r = rect();
    // Raised ground and embossed title, with a dark outer edge of its own.
    DibujaForma(p, r.adjusted(0, 0, -1, -1), titulo_, ALTO_TITULO, 5);
    p.setPen(QColor(0, 0, 0));
    p.drawLine(r.left(), r.bottom(), r.right(), r.bottom());
    p.drawLine(r.right(), r.top(), r.right(), r.bottom());

    dibujaIcono(p, QRect(MARGEN, ALTO_TITULO + MARGEN, LADO_ICONO, LADO_ICONO));
    p.setFont(FuenteControles());
    p.setPen(QColor(0, 0, 0));
    p.drawText(areaTexto_, Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, texto_);
}

void Mensajes::dibujaIcono(QPainter& p, QRect a) const {
    if (!(icono_ == 1 || icono_ == 2 || icono_ == 3 || icono_ == 6)) return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF c = QRectF(a).adjusted(1, 1, -1, -1);
    QFont signo = FuenteControles();
    signo.setPixelSize(22);
    signo.setBold(true);
    p.setFont(signo);
    if (icono_ == 6) {
        QPainterPath triangulo;
        triangulo.moveTo(c.center().x(), c.top());
        triangulo.lineTo(c.right(), c.bottom());
        triangulo.lineTo(c.left(), c.bottom());
        triangulo.closeSubpath();
        p.setPen(QPen(QColor(0, 0, 0), 1.5));
        p.setBrush(QColor(255, 220, 0));
        p.drawPath(triangulo);
        p.setPen(QColor(0, 0, 0));
        p.drawText(c.adjusted(0, 6, 0, 0), Qt::AlignCenter, QStringLiteral("!"));
    } else {
        const QColor fondo = icono_ == 1 ? QColor(200, 0, 0) : QColor(0, 0, 200);
        p.setPen(QPen(fondo.darker(150), 1.5));
        p.setBrush(fondo);
        p.drawEllipse(c);
        p.setPen(QPen(BLANCO, 3.5, Qt::SolidLine, Qt::RoundCap));
        if (icono_ == 1) {
            const QPointF m = c.center();
            p.drawLine(m + QPointF(-7, -7), m + QPointF(7, 7));
            p.drawLine(m + QPointF(-7, 7), m + QPointF(7, -7));
        } else {
            p.drawText(c, Qt::AlignCenter, icono_ == 2 ? QStringLiteral("i") : QStringLiteral("?"));
        }
    }
    p.restore();
}

}  // namespace vedrano
