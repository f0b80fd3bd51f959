#include "ui/controles/Spin.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <charconv>

#include "app/base/Cursores.h"
#include "app/base/Formato.h"
#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "platform/NumerosLocales.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

namespace {

std::optional<float> LeeNumero(const std::string& texto) {
    std::string t;
    for (char c : texto)
        if (c != ' ') t += (c == ',' ? '.' : c);
    if (!t.empty() && t[0] == '+') t.erase(0, 1);
    float v = 0;
    auto [fin, ec] = std::from_chars(t.data(), t.data() + t.size(), v);
    if (t.empty() || ec != std::errc() || fin != t.data() + t.size()) return std::nullopt;
    return v;
}

}  // namespace

Spin::Spin(Contexto& ctx, int indice, QWidget* padre) : ControlDibujado(ctx, indice, padre), campo_(new QLineEdit(this)) {
    etiqueta();
    FormatoIndice(indice);  // both tables must hold the index
    EstiloCampo(campo_);
    campo_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    campo_->setTextMargins(1, 0, 1, 0);
    campo_->setAccessibleName(etiqueta());
    connect(campo_, &QLineEdit::editingFinished, this, &Spin::aceptaTexto);
    resize(sizeHint());
    muestra();
}

QSize Spin::sizeHint() const {
    const int ancho = 7 * static_cast<int>(FormatoIndice(indice_).Formato.size()) + 12;
    return {3 + QFontMetrics(FuenteControles()).horizontalAdvance(etiqueta()) + 8 + ancho + 25, 29};
}

void Spin::resizeEvent(QResizeEvent*) {
    // The field is as wide as the picture allows, just left of the keys.
    const int ancho = 7 * static_cast<int>(FormatoIndice(indice_).Formato.size()) + 12;
    campo_->setGeometry(width() - ancho - 25, 5, ancho, 19);
}

void Spin::setValor(float v) {
    valor_ = v;
    muestra();
}

void Spin::muestra() {
    const std::string texto =
        formateador_ ? formateador_(valor_) : plataforma::NumeroLocal(Formato(valor_, FormatoIndice(indice_).Formato));
    campo_->setText(Texto(texto));
    campo_->repaint();
}

void Spin::pinta(QPainter& p) {
    DibujaRotulo(p, rect(), QString());
    DibujaFlechas(p, {width() - 22, 4}, encendida_);
    ImprimeEtiqueta(p, 3, 7, etiqueta());
}

bool Spin::sobreFlechas(QPoint p) const { return p.x() >= width() - 21 && p.y() >= 4 && p.y() <= 24; }

void Spin::mouseMoveEvent(QMouseEvent* ev) {
    if (sobreFlechas(ev->position().toPoint())) {
        cambiaCursor(cursor::ManoIndice);
    } else {
        cambiaCursor(cursor::Normal);
        ctx_.SujecionSpin = false;
    }
}

void Spin::mouseReleaseEvent(QMouseEvent*) { ctx_.SujecionSpin = false; }

void Spin::mousePressEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton || ctx_.CursorActual != cursor::ManoIndice) return;
    repite(ev->position().y() <= height() / 2);
}

bool Spin::avanza(bool subir) {
    const FormatoValor& r = FormatoIndice(indice_);
    if (!r.Ciclico && (subir ? valor_ >= r.Maximo : valor_ <= r.Minimo)) return false;
    encendida_ = subir ? 1 : -1;
    repaint();
    valor_ += (subir ? 1 : -1) * r.Paso;
    if (r.Ciclico) {
        // Past one end the value comes round to the other.
        if (valor_ > r.Maximo) valor_ = r.Minimo;
        if (valor_ < r.Minimo) valor_ = r.Maximo;
    } else {
        if (subir && valor_ > r.Maximo) valor_ = r.Maximo;
        if (!subir && valor_ < r.Minimo) valor_ = r.Minimo;
    }
    muestra();
    emit paso(valor_);
    Suena(ctx_, 1, 4);
    Espera(ctx_, 40);
    encendida_ = 0;
    repaint();
    return true;
}

void Spin::repite(bool subir) {
    QPointer<Spin> vivo(this);
    ctx_.SujecionSpin = true;
    while (ctx_.SujecionSpin && avanza(subir)) {
        Espera(ctx_, 40);
        AtiendeEventos();  // the mouse-up that ends the repeat arrives here
        if (!vivo) return;
    }
    almacena();
}

void Spin::keyPressEvent(QKeyEvent* ev) {
    if (ev->key() != Qt::Key_Up && ev->key() != Qt::Key_Down) return ControlDibujado::keyPressEvent(ev);
    if (avanza(ev->key() == Qt::Key_Up)) almacena();
}

QString Spin::valorAccesible() const { return campo_->text().trimmed(); }

void Spin::aceptaTexto() {
    const FormatoValor& r = FormatoIndice(indice_);
    const std::string texto = A1252(campo_->text().toStdString());
    std::optional<float> v = lector_ ? lector_(texto) : LeeNumero(texto);
    if (v) valor_ = std::min(std::max(*v, r.Minimo), r.Maximo);
    muestra();
    if (v) almacena();
}

void Spin::almacena() {
    AvisaValor(this);
    if (almacen_) almacen_(valor_);
    emit almacenado(valor_);
}

}  // namespace vedrano::controles
