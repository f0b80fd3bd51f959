#include "app/gui/Dialogos.h"

namespace vedrano {

DialogosCielo Dialogos() {
    DialogosCielo d;
    return d;
}

std::shared_ptr<QWidget> MuestraCareta() { return nullptr; }

void CierraCareta(std::shared_ptr<QWidget>& careta) { careta.reset(); }

}  // namespace vedrano
