// The search form's lists: the general index, the list of a category with
// its column header and legend, the lines found across every list, and the
// rows that keep the whole form on the screen.
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>

#include "dialogs/Buscar.h"
#include "dialogs/TextosBuscar.h"
#include "dialogs/piezas/FiltroLista.h"
#include "dialogs/piezas/PiezasForma.h"
#include "app/acciones/ObjetivoBusqueda.h"
#include "platform/qt/PantallaQt.h"
#include "sky/apunta/DiaObjeto.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Pulsador.h"

namespace vedrano {

namespace {

constexpr int FILAS_VISIBLES = 18, FILAS_MINIMAS = 5;
// Width of the category column of the lines found across the lists.
constexpr int ANCHO_CATEGORIA = 23;

QString DesdeUtf8(const char* t) { return QString::fromUtf8(t); }

}  // namespace

void Buscar::muestraDia() {
    // The rising, transit and setting of the chosen line for the date and
    // place of the sky, in one line under the list.
    QListWidget* l = categoria_ < 0 ? nullptr : listas_[static_cast<std::size_t>(categoria_)];
    ObjetoDelDia o;
    if (!l || !ObjetoDeLista(ctx_.c, categoria_, l->currentRow(), o)) {
        dia_->hide();
        return;
    }
    std::string texto;
    for (const std::string& linea : TextosDia(HallaDia(ctx_.e, ctx_.c.TablaPlanetas, o)))
        texto += (texto.empty() ? "" : "   ") + linea;
    dia_->setText(controles::Texto(texto));
    dia_->show();
}

QListWidget* Buscar::listaVisible() const {
    if (categoria_ >= 0) return listas_[static_cast<std::size_t>(categoria_)];
    return hallados_->isHidden() ? indice_ : hallados_;
}

void Buscar::muestraIndice() {
    for (QListWidget* l : listas_) l->hide();
    hallados_->hide();
    categoria_ = -1;
    titulo_->setTexto(DesdeUtf8(TITULO_INDICE));
    titulo_->setToolTip({});
    volver_->hide();
    cabecera_->hide();
    leyenda_->hide();
    dia_->hide();
    permiteBuscar(true);
    indice_->setCurrentRow(-1);
    indice_->clearSelection();
    filtro_->blockSignals(true);
    filtro_->clear();
    filtro_->blockSignals(false);
    FiltraLista(indice_, {});
    indice_->show();
    ajustaAPantalla();
}

void Buscar::muestraHallados(const QString& filtro) {
    // Typed while the index is shown: the lines of every list that answer,
    // each with its category.
    hallados_->clear();
    if (filtro.trimmed().isEmpty()) {
        hallados_->hide();
        indice_->show();
        cabecera_->hide();
        return;
    }
    std::vector<const QListWidget*> listas(listas_.begin(), listas_.end());
    for (const Hallazgo& h : BuscaEnListas(listas, filtro)) {
        const QString categoria = indice_->item(h.lista)->text();
        auto* item = new QListWidgetItem(categoria.leftJustified(ANCHO_CATEGORIA) +
                                             listas_[static_cast<std::size_t>(h.lista)]->item(h.fila)->text(),
                                         hallados_);
        item->setData(Qt::UserRole, QPoint(h.lista, h.fila));
    }
    cabecera_->setText(DesdeUtf8(CABECERA_HALLADOS));
    cabecera_->show();
    indice_->hide();
    hallados_->show();
    hallados_->setCurrentRow(hallados_->count() > 0 ? 0 : -1);
}

void Buscar::ajustaAPantalla() {
    // The lists give up rows, down to a few, when the form with its header
    // and legend would not fit the screen (a large scale factor).
    const int fila = QFontMetrics(FuenteColumnas()).height();
    auto filas = [this, fila](int n) {
        for (QListWidget* l : listas_) l->setMinimumHeight(fila * n);
        for (QListWidget* l : {indice_, hallados_}) l->setMinimumHeight(fila * n);
        layout()->invalidate();
    };
    filas(FILAS_VISIBLES);
    const QRect area = plataforma::AreaVentanas(isVisible() ? this : parentWidget());
    const int sobra = layout()->totalMinimumSize().height() - area.height();
    if (sobra > 0) filas(std::max(FILAS_MINIMAS, FILAS_VISIBLES - (sobra + fila - 1) / fila));
    if (isVisible() && !area.contains(frameGeometry())) {
        adjustSize();
        move(plataforma::PosicionCentrada(size(), parentWidget()));
    }
}

void Buscar::abreHallado() {
    QListWidgetItem* item = hallados_->currentItem();
    if (!item || hallados_->isHidden()) return;
    const QPoint donde = item->data(Qt::UserRole).toPoint();
    eligeCategoria(donde.x(), donde.y());
}

void Buscar::permiteBuscar(bool si) {
    buscar_->setEnabled(si);
    buscar_->setToolTip(DesdeUtf8(si ? AYUDA_BUSCAR : AYUDA_SOLO_CONSULTA));
}

void Buscar::eligeCategoria(int categoria, int fila) {
    if (categoria < 0 || categoria >= 12) return;
    const TextosCategoria& t = TEXTOS_CATEGORIAS[static_cast<std::size_t>(categoria)];
    indice_->hide();
    hallados_->hide();
    for (QListWidget* l : listas_) l->hide();
    categoria_ = categoria;
    titulo_->setTexto(indice_->item(categoria)->text());
    titulo_->setToolTip(DesdeUtf8(AYUDA_VOLVER));
    volver_->show();
    permiteBuscar(CategoriaCentrable(categoria));
    cabecera_->setText(DesdeUtf8(t.cabecera));
    cabecera_->show();
    QStringList lineas;
    for (const char* l : t.leyenda) lineas << DesdeUtf8(l);
    leyenda_->setText(lineas.join('\n'));
    leyenda_->setVisible(!lineas.isEmpty());
    filtro_->blockSignals(true);
    filtro_->clear();
    filtro_->blockSignals(false);
    QListWidget* l = listas_[static_cast<std::size_t>(categoria)];
    FiltraLista(l, {});
    if (fila >= 0 && fila < l->count()) {
        l->setCurrentRow(fila);
        l->scrollToItem(l->currentItem(), QAbstractItemView::PositionAtCenter);
    }
    l->show();
    muestraDia();
    ajustaAPantalla();
    filtro_->setFocus();
}

}  // namespace vedrano
