// The animation form: the interval of one step of the main window's time
// and animation arrows, as a count of one of twelve units, and whether the
// picture follows real time. Leaving it starts or stops the main window's
// real-time clock.
#pragma once
#include <array>
#include <functional>

#include "dialogs/piezas/MarcoOpciones.h"

namespace vedrano {

namespace controles {
class Interruptor;
class Spin;
}  // namespace controles

class Animar : public MarcoOpciones {
    Q_OBJECT
public:
    explicit Animar(ContextoDialogo& ctx);

    // Where the present moment is read when real time is switched on
    // (Universal Time in days since 30 December 1899); the system's clock
    // unless replaced.
    void setReloj(std::function<double()> reloj) { reloj_ = std::move(reloj); }

    // For the tests: the option of unit `unidad` (1..12), the count and the
    // real-time switch.
    Casilla* unidad(int unidad) const { return unidades_[static_cast<std::size_t>(unidad - 1)]; }
    controles::Spin* cantidad() const { return cantidad_; }
    controles::Interruptor* tiempoReal() const { return tiempoReal_; }

    // Leaving, by the leave button or Esc, applies the interval and the
    // real-time choice once.
    void done(int r) override;

private:
    void eligeUnidad(int unidad);

    ContextoDialogo& c_;
    std::function<double()> reloj_;
    std::array<Casilla*, 12> unidades_{};
    controles::Spin* cantidad_ = nullptr;
    controles::Interruptor* tiempoReal_ = nullptr;
    bool cerrado_ = false;
};

// Opens the form centred on the main window. The changed flag tells the
// caller afterwards that the instant moved (real time switched on) or the
// interval changed.
void AbreAnimar(ContextoDialogo& ctx);

}  // namespace vedrano
