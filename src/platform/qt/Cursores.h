// The mouse pointers by number: 21 to 25 the program's own ("ManoIndice",
// "ManoAbierta", "ManoCerrada", "Lapiz", "Goma"), below 20 the standard
// pointers of the classic numbering (0 default, 11 hourglass, ...).
#pragma once
#include <QCursor>

namespace vedrano::plataforma {

QCursor CursorNumero(int numero);

}  // namespace vedrano::plataforma
