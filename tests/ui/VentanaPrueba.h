// The main window as the widget tests drive it: fake clock and sounds, a
// state of its own, and the window built over the shipped catalogues once
// the test has set the state up.
#pragma once
#include <memory>

#include "../Ayudas.h"
#include "Falsos.h"
#include "ui/cielo/Cielo.h"

namespace pruebas {

struct VentanaPrueba {
    Falsos falsos;
    vedrano::Estado e;
    vedrano::controles::Contexto k{e.Sonido, e.Velocidad};
    vedrano::DialogosCielo dialogos;
    std::unique_ptr<vedrano::Cielo> cielo;

    // Builds the window over the state as it stands, shown when asked, and draws it.
    vedrano::Cielo& Abre(bool mostrar = true) {
        cielo = std::make_unique<vedrano::Cielo>(e, k, CatalogosDatos(), dialogos);
        if (mostrar) cielo->show();
        cielo->ActualizaCielo();
        return *cielo;
    }
};

}  // namespace pruebas
