#include "dialogs/piezas/FiltroLista.h"

#include <QListWidget>
#include <algorithm>

namespace vedrano {

namespace {

// Where a line keeps its folded names.
constexpr int ROL_CLAVES = Qt::UserRole + 7;

// Folded and without blanks: what a search compares.
QString Clave(const QString& texto) {
    QString r = PliegaTexto(texto);
    r.remove(QChar(' '));
    return r;
}

int Grado(const QString& clave, const QString& buscado) {
    if (clave == buscado) return 0;
    if (clave.startsWith(buscado)) return 1;
    return clave.contains(buscado) ? 2 : -1;
}

int GradoPlegado(const QListWidgetItem* linea, const QString& buscado) {
    if (buscado.isEmpty()) return 2;
    const QVariant claves = linea->data(ROL_CLAVES);
    if (!claves.isValid()) return Grado(Clave(linea->text()), buscado) < 0 ? -1 : 2;
    int mejor = -1;
    for (const QString& k : claves.toStringList()) {
        const int g = Grado(k, buscado);
        if (g >= 0 && (mejor < 0 || g < mejor)) mejor = g;
    }
    return mejor;
}

}  // namespace

QString PliegaTexto(const QString& texto) {
    const QString descompuesto = texto.normalized(QString::NormalizationForm_D);
    QString r;
    r.reserve(descompuesto.size());
    for (QChar c : descompuesto)
        if (c.category() != QChar::Mark_NonSpacing) r += c.toLower();
    return r;
}

void FijaClaves(QListWidgetItem* linea, const QStringList& nombres) {
    QStringList claves;
    for (const QString& n : nombres) claves << Clave(n);
    linea->setData(ROL_CLAVES, claves);
}

int Coincidencia(const QListWidgetItem* linea, const QString& filtro) {
    return GradoPlegado(linea, Clave(filtro.simplified()));
}

void FiltraLista(QListWidget* lista, const QString& filtro) {
    const QString buscado = Clave(filtro.simplified());
    QListWidgetItem* primera = nullptr;
    for (int i = 0; i < lista->count(); ++i) {
        QListWidgetItem* linea = lista->item(i);
        const bool entra = GradoPlegado(linea, buscado) >= 0;
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

std::vector<Hallazgo> BuscaEnListas(const std::vector<const QListWidget*>& listas, const QString& filtro) {
    std::vector<Hallazgo> r;
    const QString buscado = Clave(filtro.simplified());
    if (buscado.isEmpty()) return r;
    for (std::size_t k = 0; k < listas.size(); ++k)
        for (int i = 0; i < listas[k]->count(); ++i) {
            const int g = GradoPlegado(listas[k]->item(i), buscado);
            if (g >= 0) r.push_back({static_cast<int>(k), i, g});
        }
    std::stable_sort(r.begin(), r.end(), [](const Hallazgo& a, const Hallazgo& b) { return a.grado < b.grado; });
    return r;
}

}  // namespace vedrano
