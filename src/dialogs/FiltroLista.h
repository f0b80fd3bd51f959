// The search box of a list: typing part of a name or code leaves only the
// lines that contain it, accents and case ignored.
#pragma once
#include <QString>

class QListWidget;

namespace vedrano {

// Lower case without accents: "Orión" and "ORION" fold alike.
QString PliegaTexto(const QString& texto);

// Hides the lines of `lista` whose folded text (or the extra key kept in
// the line's user role, such as "M42" for a Messier line) does not contain
// the folded `filtro`; an empty filter shows every line. When the selected
// line is hidden, the first visible one is selected instead.
void FiltraLista(QListWidget* lista, const QString& filtro);

// The role under which a line keeps its extra search key.
inline constexpr int ROL_CLAVE = 0x0100 + 7;  // Qt::UserRole + 7

}  // namespace vedrano
