// The search box of a list: typing part of a designation or a name leaves
// only the lines that hold it, accents, case and blanks ignored ("m 42",
// "M42" and "M 42" alike). A line is searched in the keys it was given (its
// designations and names, never its coordinates), or in its whole text when
// it has none.
#pragma once
#include <QString>
#include <QStringList>
#include <vector>

class QListWidget;
class QListWidgetItem;

namespace vedrano {

// Lower case without accents: "Orión" and "ORION" fold alike.
QString PliegaTexto(const QString& texto);

// Gives a line the names it is searched by.
void FijaClaves(QListWidgetItem* linea, const QStringList& nombres);

// How well a line answers the search `filtro`: 0 a name equal to it, 1 a
// name that begins with it, 2 a name that contains it; -1 when none does
// (an empty search is answered by every line with 2).
int Coincidencia(const QListWidgetItem* linea, const QString& filtro);

// Hides the lines of `lista` that do not answer `filtro`; an empty filter
// shows every line. When the selected line is hidden, the first visible one
// is selected instead.
void FiltraLista(QListWidget* lista, const QString& filtro);

// A line of one of several lists that answers a search, and how well.
struct Hallazgo {
    int lista, fila, grado;
};
// Every line of `listas` that answers `filtro`, the best answers first,
// then in the order of the lists and of their lines.
std::vector<Hallazgo> BuscaEnListas(const std::vector<const QListWidget*>& listas, const QString& filtro);

}  // namespace vedrano
