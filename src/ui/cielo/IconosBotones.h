// The pictures of the nine dialog buttons of the control panel, drawn once.
#pragma once
#include <QPixmap>

namespace vedrano {

// The 48 x 48 face of button 1..9, raised or pressed.
QPixmap IconoBoton(int indice, bool pulsado);

}  // namespace vedrano
