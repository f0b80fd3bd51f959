// The object display options: which layers of the sky picture are drawn
// (the check boxes), the star and constellation levels, the detail levels
// of the deep-sky categories and how stars, constellations, Messier and
// deep-sky objects are labelled. Every control writes the state at once;
// leaving the form redraws the sky.
#pragma once
#include <array>
#include <map>
#include <string>
#include <vector>

#include "dialogs/piezas/MarcoOpciones.h"

namespace vedrano {

namespace controles {
class Spin;
class Interruptor;
}  // namespace controles

class Objetos : public MarcoOpciones {
    Q_OBJECT
public:
    explicit Objetos(ContextoDialogo& ctx);

    // For the tests: the check box with caption `texto` (UTF-8), the spin
    // field of value record `indice`, the option buttons of a frame.
    Casilla* casilla(const QString& texto) const;
    controles::Spin* spin(int indice) const;
    controles::Interruptor* identificar() const { return identificar_; }
    const std::vector<Casilla*>& opcionesEstrellas() const { return idEstrellas_; }
    const std::vector<Casilla*>& opcionesConstelaciones() const { return idConstelaciones_; }
    const std::vector<Casilla*>& opcionesMessier() const { return idMessier_; }

private:
    // The boxes' texts are UTF-8, as written here.
    Casilla* nuevaCasilla(QBoxLayout* donde, const std::string& texto, int16_t& campo);
    controles::Spin* nuevoSpin(QBoxLayout* donde, int indice, int16_t& campo);
    Casilla* nuevaPreferencia(QBoxLayout* donde, const std::string& texto, bool& campo);
    std::vector<Casilla*> nuevasOpciones(QBoxLayout* donde, const std::vector<std::string>& textos,
                                         int16_t& campo);

    std::vector<Casilla*> casillas_;
    std::map<int, controles::Spin*> spins_;
    std::vector<Casilla*> idEstrellas_, idConstelaciones_, idMessier_;
    controles::Interruptor* identificar_ = nullptr;
};

// Opens the form centred on the main window; on leaving, redraws the sky
// and sets the changed flag when any setting differs.
void AbreObjetos(ContextoDialogo& ctx);

}  // namespace vedrano
