// The screen as Qt sees it, with the operating system's mode change.
#pragma once

#include <string>

#include "platform/Pantalla.h"

namespace vedrano::plataforma {

class PantallaQt : public Pantalla {
public:
    int Ancho() const override;
    int Alto() const override;
    long PruebaCambio800x600() override { return PruebaCambioSistema(); }
    long Cambia800x600() override { return CambioSistema(); }
};

// The folder under which the program keeps its private working folder
// when the installation cannot be written: the user's data folder.
std::string CarpetaSistema();

}  // namespace vedrano::plataforma
