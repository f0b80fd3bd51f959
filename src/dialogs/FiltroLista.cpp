#include "dialogs/FiltroLista.h"

#include <QListWidget>

namespace vedrano {

QString PliegaTexto(const QString& texto) {
    const QString descompuesto = texto.normalized(QString::NormalizationForm_D);
    QString r;
    r.reserve(descompuesto.size());
    for (QChar c : descompuesto)
        if (c.category() != QChar::Mark_NonSpacing) r += c.toLower();
    return r;
}

void FiltraLista(QListWidget* lista, const QString& filtro) {
    const QString buscado = PliegaTexto(filtro.trimmed());
    QListWidgetItem* primera = nullptr;
    for (int i = 0; i < lista->count(); ++i) {
        QListWidgetItem* linea = lista->item(i);
        const bool entra = buscado.isEmpty() || PliegaTexto(linea->text()).contains(buscado) ||
                           PliegaTexto(linea->data(ROL_CLAVE).toString()).contains(buscado);
        linea->setHidden(!entra);
        if (entra && !primera) primera = linea;
    }
    QListWidgetItem* actual = lista->currentItem();
    if (buscado.isEmpty()) {
        if (actual) lista->scrollToItem(actual);
        return;
    }
    if ((!actual || actual->isHidden()) && primera) {
        lista->setCurrentItem(primera);
    } else if (!primera) {
        lista->setCurrentRow(-1);
    }
}

}  // namespace vedrano
