#include "dialogs/piezas/PiezasForma.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>

#include "ui/controles/Estilo.h"

namespace vedrano {

using namespace controles;

void PintaFondoForma(QWidget* forma) {
    QPainter p(forma);
    const QRect r = forma->rect();
    p.fillRect(r, GRIS_CLARO);
    p.setPen(BLANCO);
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(GRIS_OSCURO);
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
}

Relieve::Relieve(const QString& texto, QWidget* padre, QFont fuente)
    : QWidget(padre), texto_(texto), fuente_(fuente), propia_(fuente != QFont()) {
    if (!propia_) fuente_ = FuenteControles();
}

void Relieve::setTexto(const QString& texto) {
    texto_ = texto;
    updateGeometry();
    update();
}

QSize Relieve::sizeHint() const {
    QFontMetrics fm(fuente_);
    return {fm.horizontalAdvance(texto_) + 3, fm.height() + 2};
}

void Relieve::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!propia_) {
        ImprimeEtiqueta(p, 0, 0, texto_);
        return;
    }
    // The same emboss in another font.
    p.setFont(fuente_);
    const int base = QFontMetrics(fuente_).ascent();
    p.setPen(BLANCO);
    p.drawText(0, base, texto_);
    p.setPen(AZUL);
    p.drawText(1, base + 1, texto_);
}

QFont FuenteColumnas() {
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSize(9);
    f.setStyleHint(QFont::TypeWriter);
    return f;
}

void VisteLista(QListWidget* lista, const QFont& fuente) {
    lista->setFont(fuente);
    lista->setFrameShape(QFrame::Panel);
    lista->setFrameShadow(QFrame::Sunken);
    lista->setLineWidth(2);
    lista->setUniformItemSizes(true);
    lista->setSelectionMode(QAbstractItemView::SingleSelection);
    lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QPalette pal = lista->palette();
    pal.setColor(QPalette::Base, BLANCO);
    pal.setColor(QPalette::Text, Qt::black);
    pal.setColor(QPalette::Highlight, QColor(0, 0, 128));
    pal.setColor(QPalette::HighlightedText, BLANCO);
    lista->setPalette(pal);
}

void VisteCampo(QLineEdit* campo) {
    campo->setFont(FuenteControles());
    QPalette pal = campo->palette();
    pal.setColor(QPalette::Base, BLANCO);
    pal.setColor(QPalette::Text, Qt::black);
    campo->setPalette(pal);
}

}  // namespace vedrano
