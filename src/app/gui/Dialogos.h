// The dialogs of the main window and the cover, as the start-up wires them.
#pragma once
#include <memory>

#include "ui/cielo/Cielo.h"

namespace vedrano {

DialogosCielo Dialogos();

// The cover shown while the program starts; closed when the sky is drawn.
std::shared_ptr<QWidget> MuestraCareta();
void CierraCareta(std::shared_ptr<QWidget>& careta);

}  // namespace vedrano
