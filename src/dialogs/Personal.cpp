#include "dialogs/Personal.h"

#include <QBoxLayout>
#include <cmath>
#include <tuple>

#include "app/base/Constantes.h"
#include "app/base/TablasControles.h"
#include "app/estado/Vista.h"
#include "config/Preferencias.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Potenciometro.h"
#include "ui/controles/Selector.h"
#include "ui/controles/Spin.h"

namespace vedrano {

using namespace controles;

namespace {

auto Ajustes(const Estado& e) {
    return std::make_tuple(e.Sonido, e.Velocidad, e.FormatoHora, e.Orientacion, e.AnimarTrasCambio, e.Precesion,
                           e.PanelCursor, e.Marcar, e.PanelControl, e.PanelLocalizacion, e.PanelObjetos,
                           e.Telescopio, e.CampoTelescopio);
}

}  // namespace

Personal::Personal(ContextoDialogo& ctx) : MarcoOpciones(ctx, "Personalizar", "Personalizar", 1050) {
    Estado& e = ctx.e;

    auto* interfaz = new Grupo("Manejo");
    nuevoInterruptor(interfaz->contenido(), control::Sonido, e.Sonido);
    nuevoInterruptor(interfaz->contenido(), control::AnimarTrasCambio, e.AnimarTrasCambio);
    velocidad_ = new Potenciometro(ctx_.controles, control::Velocidad);
    velocidad_->setPosicion(e.Velocidad);
    velocidad_->setFixedSize(velocidad_->sizeHint());
    connect(velocidad_, &Potenciometro::posicionCambiada, this,
            [&e](int v) { e.Velocidad = static_cast<int16_t>(v); });
    interfaz->contenido()->addWidget(velocidad_);

    auto* cielo = new Grupo("Cielo");
    // Mirrored is any value but 1; the selector shows it as its second choice.
    orientacion_ = new Selector(ctx_.controles, control::OrientacionCielo,
                                {Etiqueta(control::CieloNormal), Etiqueta(control::CieloInvertido)});
    orientacion_->setEleccion(e.Orientacion == 1 ? 1 : 2);
    connect(orientacion_, &Selector::eleccionCambiada, this, [this, &e](int eleccion) {
        FijaOrientacion(e, static_cast<int16_t>(eleccion == 1 ? 1 : 2));
        if (ctx_.DibujaCielo) ctx_.DibujaCielo();
    });
    cielo->contenido()->addWidget(orientacion_);
    nuevoInterruptor(cielo->contenido(), control::Precesion, e.Precesion);
    precisionAlta_ = nuevaPreferencia(cielo->contenido(), "Precisión alta", e.Pref.PrecisionAlta);
    // The telescope circle and its field, shown in degrees and kept in radians.
    nuevoInterruptor(cielo->contenido(), control::Telescopio, e.Telescopio);
    auto* campo = new Spin(ctx_.controles, control::DiametroTelescopio);
    campo->setValor(static_cast<float>(e.CampoTelescopio * RAD_A_GRADOS));
    campo->setAlmacen([&e](float grados) {
        // Only a new value is stored: the tenths of a degree shown are a
        // rounding of the radians kept.
        if (std::fabs(grados - e.CampoTelescopio * RAD_A_GRADOS) > 0.01)
            e.CampoTelescopio = grados / RAD_A_GRADOS;
    });
    cielo->contenido()->addWidget(campo);

    auto* ventana = new Grupo("Ventana");
    nuevoInterruptor(ventana->contenido(), control::PanelControl, e.PanelControl);
    nuevoInterruptor(ventana->contenido(), control::PanelLocalizacion, e.PanelLocalizacion);
    nuevoInterruptor(ventana->contenido(), control::PanelObjetos, e.PanelObjetos);

    auto* horas = new Grupo("Fecha y hora");
    formatoHora_ =
        new Selector(ctx_.controles, control::FormatoHora, {Etiqueta(control::Hora24), Etiqueta(control::HoraAmPm)});
    formatoHora_->setEleccion(e.FormatoHora == 1 ? 1 : 2);
    connect(formatoHora_, &Selector::eleccionCambiada, this,
            [&e](int eleccion) { e.FormatoHora = static_cast<int16_t>(eleccion == 1 ? 1 : 2); });
    horas->contenido()->addWidget(formatoHora_);

    auto* cursor = new Grupo("Cursor");
    nuevoInterruptor(cursor->contenido(), control::PanelCursor, e.PanelCursor);
    nuevoInterruptor(cursor->contenido(), control::MarcarObjetos, e.Marcar);

    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(interfaz);
    izquierda->addWidget(horas);
    izquierda->addWidget(ventana);
    izquierda->addStretch(1);
    auto* derecha = new QVBoxLayout;
    derecha->addWidget(cielo);
    derecha->addWidget(cursor);
    derecha->addStretch(1);
    auto* cuerpo = new QHBoxLayout;
    cuerpo->setSpacing(8);
    cuerpo->addLayout(izquierda);
    cuerpo->addLayout(derecha);
    ponCuerpo(cuerpo);
}

Interruptor* Personal::nuevoInterruptor(QBoxLayout* donde, int indice, bool& campo) {
    auto* s = new Interruptor(ctx_.controles, indice);
    s->setEncendido(campo);
    s->setMinimumWidth(s->sizeHint().width());
    connect(s, &Interruptor::cambiado, this, [&campo](bool si) { campo = si; });
    donde->addWidget(s);
    interruptores_[indice] = s;
    return s;
}

Interruptor* Personal::nuevaPreferencia(QBoxLayout* donde, const char* rotulo, bool& campo) {
    auto* s = new Interruptor(ctx_.controles, QString::fromUtf8(rotulo));
    s->setEncendido(campo);
    s->setMinimumWidth(s->sizeHint().width());
    connect(s, &Interruptor::cambiado, this, [&campo](bool si) { campo = si; });
    donde->addWidget(s);
    return s;
}

Interruptor* Personal::interruptor(int indice) const {
    auto it = interruptores_.find(indice);
    return it == interruptores_.end() ? nullptr : it->second;
}

void AbrePersonal(ContextoDialogo& ctx) {
    ctx.e.Cambiado = false;
    const auto antes = Ajustes(ctx.e);
    const Preferencias preferencias = ctx.e.Pref;
    {
        Personal d(ctx);
        MuestraCentrado(d, ctx.cielo);
    }
    const bool otrasPreferencias = GuardaPreferencias(ctx, preferencias, "Personalizar");
    if (Ajustes(ctx.e) == antes && !otrasPreferencias) return;
    ctx.e.Cambiado = true;
    // The hour format and precession reach the picture only through the
    // time refresh and the panel texts of the full update.
    if (ctx.ActualizaCielo) ctx.ActualizaCielo();
}

}  // namespace vedrano
