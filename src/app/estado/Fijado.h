// Fields of the state that only their setters write. Every reader sees the
// value (the field converts to it); a write needs a LlaveEstado, which only
// the setters can make, so a write that skips the refresh the setter runs
// does not compile.
#pragma once

#include <cstdint>

#include "catalogue/TablaPlanetas.h"

namespace vedrano {

struct Estado;

// The permission to write a field with a setter. The setters of what the
// user sets are FijaFechaJuliana and FijaLugar (app/estado/Tiempo.h),
// FijaVista, FijaZoom and FijaOrientacion (app/estado/Vista.h). The values
// derived from those are written only by the refreshes that derive them:
// the sidereal time (HallaTiempoSidereo, ActualizaLugar), the precession
// angles (HallaPrecesion), the turned azimuth (GiraDireccion) and the scale
// (AjustaEscala); FijaTiempoSidereo gives the calculator a sidereal time of
// its own. The configuration reader also holds one: it loads a whole
// situation item by item, and the pass that follows every load refreshes
// what derives from it.
class LlaveEstado {
    LlaveEstado() = default;
    friend void FijaFechaJuliana(Estado&, const TablaPlanetas&, double);
    friend void FijaLugar(Estado&, const TablaPlanetas&, const Observador&);
    friend void FijaVista(Estado&, double, double);
    friend void FijaZoom(Estado&, float);
    friend void FijaOrientacion(Estado&, int16_t);
    friend void HallaTiempoSidereo(Estado&, const TablaPlanetas&);
    friend void ActualizaLugar(Estado&, const TablaPlanetas&);
    friend void FijaTiempoSidereo(Estado&, double);
    friend void HallaPrecesion(Estado&);
    friend void GiraDireccion(Estado&);
    friend void AjustaEscala(Estado&, int, int);
    friend LlaveEstado LlaveLectorConfiguracion();
};

template <class T>
class Fijado {
public:
    Fijado(const Fijado&) = default;
    constexpr operator T() const { return valor_; }
    void Fija(LlaveEstado, T valor) { valor_ = valor; }
    // The field itself, for the configuration items' table.
    T& Campo(LlaveEstado) { return valor_; }

private:
    // Only a whole state makes these fields (a fresh state's defaults) and
    // assigns them (one whole state over another); one field is not
    // written from another state's.
    friend struct Estado;
    constexpr explicit Fijado(T valor) : valor_(valor) {}
    Fijado& operator=(const Fijado&) = default;

    T valor_;
};

}  // namespace vedrano
