// Personalisation: click sounds, the speed of every repeat and pause, the
// hour format, the normal or mirrored sky, animating again after a change,
// precession, the cursor panel and the marking of pointed objects. The
// controls write the state at once; the sky orientation redraws at once.
#pragma once
#include <map>

#include "dialogs/piezas/MarcoOpciones.h"

namespace vedrano {

namespace controles {
class Interruptor;
class Potenciometro;
class Selector;
}  // namespace controles

class Personal : public MarcoOpciones {
    Q_OBJECT
public:
    explicit Personal(ContextoDialogo& ctx);

    // For the tests: the switch of label `indice`, the slider, the selectors.
    controles::Interruptor* interruptor(int indice) const;
    controles::Potenciometro* velocidad() const { return velocidad_; }
    controles::Selector* formatoHora() const { return formatoHora_; }
    controles::Selector* orientacion() const { return orientacion_; }
    controles::Interruptor* precisionAlta() const { return precisionAlta_; }

private:
    controles::Interruptor* nuevoInterruptor(QBoxLayout* donde, int indice, bool& campo);
    // A switch of a program preference: its own label, bound to `campo`.
    controles::Interruptor* nuevaPreferencia(QBoxLayout* donde, const char* rotulo, bool& campo);

    std::map<int, controles::Interruptor*> interruptores_;
    controles::Potenciometro* velocidad_;
    controles::Selector* formatoHora_;
    controles::Selector* orientacion_;
    controles::Interruptor* precisionAlta_;
};

// Opens the form centred on the main window; on leaving, when anything
// changed, sets the changed flag and redraws the sky with the new settings,
// and writes the program preferences when one of them changed.
void AbrePersonal(ContextoDialogo& ctx);

}  // namespace vedrano
