#include "dialogs/piezas/MarcoOpciones.h"

#include <QBoxLayout>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "config/Preferencias.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

using namespace controles;

namespace {
constexpr int ALTO_TITULO = 26, MARGEN = 10;
}

Grupo::Grupo(const std::string& tituloCp1252, QWidget* padre)
    : QWidget(padre), titulo_(Texto(tituloCp1252).trimmed()), caja_(new QVBoxLayout(this)) {
    setFont(FuenteControles());
    // Room for the caption above and the etched lines all round.
    caja_->setContentsMargins(8, 18, 8, 8);
    caja_->setSpacing(2);
}

void Grupo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    DibujaRotulo(p, rect(), titulo_);
}

Rotulo::Rotulo(const std::string& textoCp1252, QWidget* padre) : QWidget(padre), texto_(Texto(textoCp1252)) {
    setFont(FuenteControles());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Rotulo::sizeHint() const {
    const QFontMetrics fm(FuenteControles());
    return {fm.horizontalAdvance(texto_) + 2, fm.height() + 2};
}

void Rotulo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    ImprimeEtiqueta(p, 0, 0, texto_);
}

Casilla::Casilla(controles::Contexto& ctx, const std::string& textoCp1252, QWidget* padre)
    : ControlDibujado(ctx, 0, padre), texto_(Texto(textoCp1252).trimmed()) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    resize(sizeHint());
}

QSize Casilla::sizeHint() const { return {22 + QFontMetrics(FuenteControles()).horizontalAdvance(texto_) + 6, 21}; }

void Casilla::setMarcada(bool si) {
    marcada_ = si;
    update();
}

void Casilla::pinta(QPainter& p) {
    CopiaCelda(p, {1, 2}, marcada_ ? celda::INTERRUPTOR_SI : celda::INTERRUPTOR_NO);
    ImprimeEtiqueta(p, 22, 3, texto_);
}

void Casilla::mouseMoveEvent(QMouseEvent*) { cambiaCursor(cursor::ManoIndice); }

void Casilla::mouseReleaseEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton || !rect().contains(ev->position().toPoint())) return;
    if (esOpcion_ && marcada_) return;
    setMarcada(!marcada_);
    emit cambiada(marcada_);
}

void Casilla::HazOpciones(const std::vector<Casilla*>& grupo, std::function<void(int)> alElegir) {
    for (std::size_t i = 0; i < grupo.size(); ++i) {
        grupo[i]->esOpcion_ = true;
        QObject::connect(grupo[i], &Casilla::cambiada, grupo[i], [grupo, i, alElegir](bool) {
            for (std::size_t j = 0; j < grupo.size(); ++j) grupo[j]->setMarcada(j == i);
            alElegir(static_cast<int>(i));
        });
    }
}

MarcoOpciones::MarcoOpciones(ContextoDialogo& ctx, const std::string& tituloCp1252,
                             const std::string& nombreCortoCp1252, int temaAyuda)
    : QDialog(ctx.cielo, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint),
      ctx_(ctx),
      titulo_(Texto(tituloCp1252).trimmed()),
      principal_(new QVBoxLayout(this)),
      salir_(new BotonDialogo(ctx.controles, BotonDialogo::Tipo::Salir, this)),
      ayuda_(new BotonDialogo(ctx.controles, BotonDialogo::Tipo::Ayuda, this)) {
    setModal(true);
    setWindowTitle(titulo_);
    setFont(FuenteControles());
    principal_->setContentsMargins(MARGEN, ALTO_TITULO + 6, MARGEN, MARGEN);
    principal_->setSpacing(8);
    principal_->setSizeConstraint(QLayout::SetFixedSize);

    const QString nombre = Texto(nombreCortoCp1252);
    salir_->setToolTip(QStringLiteral(" Salir de %1 ").arg(nombre));
    ayuda_->setToolTip(QStringLiteral(" Ayuda sobre %1 ").arg(nombre));
    auto* botones = new QHBoxLayout;
    botones->setSpacing(8);
    botones->addStretch(1);
    botones->addWidget(ayuda_);
    botones->addWidget(salir_);
    principal_->addLayout(botones);
    connect(salir_, &BotonDialogo::pulsado, this, &QDialog::accept);
    connect(ayuda_, &BotonDialogo::pulsado, this, [this, temaAyuda] {
        if (ctx_.Ayuda) ctx_.Ayuda(temaAyuda);
    });
}

void MarcoOpciones::ponCuerpo(QLayout* cuerpo) { principal_->insertLayout(0, cuerpo); }

void MarcoOpciones::keyPressEvent(QKeyEvent* ev) {
    // Esc leaves as the leave button does; Enter must not close the form
    // while a text field is being typed in.
    if (ev->key() == Qt::Key_Escape)
        accept();
    else if (ev->key() != Qt::Key_Return && ev->key() != Qt::Key_Enter)
        QDialog::keyPressEvent(ev);
}

void MarcoOpciones::paintEvent(QPaintEvent*) {
    QPainter p(this);
    DibujaForma(p, rect(), titulo_, ALTO_TITULO, 6);
}

bool GuardaPreferencias(ContextoDialogo& ctx, const Preferencias& antes, const std::string& tituloCp1252) {
    if (ctx.e.Pref == antes) return false;
    std::string error = EscribePreferencias(ctx.e.Pref, ctx.e.ArchivoPreferencias);
    if (!error.empty()) ctx.mensajes.Mensaje(error, tituloCp1252, 1, 1);
    return true;
}

}  // namespace vedrano
