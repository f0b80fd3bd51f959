#include "dialogs/Objetos.h"

#include <QBoxLayout>
#include <algorithm>
#include <cmath>
#include <tuple>

#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Spin.h"

namespace vedrano {

using namespace controles;

namespace {

// Everything the form can change, to tell whether leaving it changed the state.
auto Ajustes(const Estado& e) {
    const Interruptores& s = e.Capas;
    return std::make_tuple(std::vector<int16_t>{s.Sol, s.Luna, s.Plane[0], s.Plane[1], s.Plane[2], s.Plane[3],
                                                s.Plane[4], s.Plane[5], s.Plane[6], s.Plane[7], s.Plane[8],
                                                s.Galax, s.NebPl, s.NebDi, s.CumAb, s.CumGl, s.Quasa, s.Pulsa,
                                                s.Aguje, s.ARDEC30, s.ARDEC15, s.Horiz, s.Eclip, s.LimCo,
                                                s.LuzDi, s.ViaLa, s.Messi},
                           std::vector<int16_t>{e.NivelEstrellas, e.NivelConstelaciones, e.IdEstrellas,
                                                e.IdConstelaciones, e.IdMessier, e.NivelGalaxias,
                                                e.NivelNebPlanetarias, e.NivelNebDifusas, e.NivelCumAbiertos,
                                                e.NivelCumGlobulares},
                           e.IdentificarObjetos);
}

// A check box with the spin field of its category's detail level beside it.
QHBoxLayout* Fila() {
    auto* f = new QHBoxLayout;
    f->setSpacing(6);
    return f;
}

}  // namespace

Objetos::Objetos(ContextoDialogo& ctx) : MarcoOpciones(ctx, "Objetos", "Objetos", 1080) {
    Estado& e = ctx.e;
    Interruptores& s = e.Capas;

    auto* estrellas = new Grupo("Estrellas");
    nuevoSpin(estrellas->contenido(), control::MagnitudMinima, e.NivelEstrellas);
    idEstrellas_ = nuevasOpciones(estrellas->contenido(), {"Sin identificar", "Código", "Nombre"},
                                  e.IdEstrellas);
    // Program preferences, not items of a configuration.
    if (ctx.preferenciasDibujo) nuevaPreferencia(estrellas->contenido(), "Estrellas débiles", e.Pref.EstrellasDebiles);

    auto* constelaciones = new Grupo("Constelaciones");
    nuevoSpin(constelaciones->contenido(), control::NivelConstelaciones, e.NivelConstelaciones);
    idConstelaciones_ = nuevasOpciones(constelaciones->contenido(),
                                       {"Sin identificar", "Abreviatura", "Nombre castellano", "Nombre latino"},
                                       e.IdConstelaciones);
    nuevaCasilla(constelaciones->contenido(), "Lim. Constelac.", s.LimCo);

    auto* messier = new Grupo("Messier");
    nuevaCasilla(messier->contenido(), "Objetos Messier", s.Messi);
    idMessier_ = nuevasOpciones(messier->contenido(), {"Sin identificar", "Número", "Nombre"}, e.IdMessier);

    auto* profundo = new Grupo("Cielo profundo");
    const struct {
        const char* texto;
        int16_t& capa;
        int indice;
        int16_t& nivel;
    } categorias[] = {
        {"Galaxias", s.Galax, control::NivelGalaxias, e.NivelGalaxias},
        {"Nebul.Planet.", s.NebPl, control::NivelNebPlanetarias, e.NivelNebPlanetarias},
        {"Nebul.Difusas", s.NebDi, control::NivelNebDifusas, e.NivelNebDifusas},
        {"Cúm.Abiertos", s.CumAb, control::NivelCumAbiertos, e.NivelCumAbiertos},
        {"Cúm.Globular.", s.CumGl, control::NivelCumGlobulares, e.NivelCumGlobulares},
    };
    std::vector<Spin*> niveles;
    for (const auto& c : categorias) {
        QHBoxLayout* f = Fila();
        nuevaCasilla(f, c.texto, c.capa)->setMinimumWidth(110);
        niveles.push_back(nuevoSpin(f, c.indice, c.nivel));
        profundo->contenido()->addLayout(f);
    }
    // The level fields one under another, all of the widest one's width.
    int ancho = 0;
    for (Spin* sp : niveles) ancho = std::max(ancho, sp->sizeHint().width());
    for (Spin* sp : niveles) sp->setFixedWidth(ancho);
    nuevaCasilla(profundo->contenido(), "Quásares", s.Quasa);
    nuevaCasilla(profundo->contenido(), "Púlsares", s.Pulsa);
    nuevaCasilla(profundo->contenido(), "Agujeros Negros", s.Aguje);
    identificar_ = new Interruptor(ctx_.controles, control::IdentificarObjetos);
    identificar_->setEncendido(e.IdentificarObjetos);
    identificar_->setMinimumWidth(identificar_->sizeHint().width());
    connect(identificar_, &Interruptor::cambiado, this, [&e](bool si) { e.IdentificarObjetos = si; });
    profundo->contenido()->addSpacing(4);
    profundo->contenido()->addWidget(identificar_);

    auto* solar = new Grupo("Sistema solar");
    nuevaCasilla(solar->contenido(), "Sol", s.Sol);
    nuevaCasilla(solar->contenido(), "Luna", s.Luna);
    // Element 2 is the Earth's: the sky is seen from it, so it has no box.
    const char* planetas[] = {"Mercurio", "Venus", nullptr, "Marte", "Júpiter",
                              "Saturno", "Urano", "Neptuno", "Plutón"};
    for (std::size_t i = 0; i < s.Plane.size(); ++i)
        if (planetas[i]) nuevaCasilla(solar->contenido(), planetas[i], s.Plane[i]);

    auto* referencias = new Grupo("Referencias");
    nuevaCasilla(referencias->contenido(), "Luz Diurna", s.LuzDi);
    nuevaCasilla(referencias->contenido(), "Horizonte", s.Horiz);
    nuevaCasilla(referencias->contenido(), "Eclíptica", s.Eclip);
    nuevaCasilla(referencias->contenido(), "A.R./DEC 15º", s.ARDEC15);
    nuevaCasilla(referencias->contenido(), "A.R./DEC 30º", s.ARDEC30);
    nuevaCasilla(referencias->contenido(), "Via Láctea", s.ViaLa);
    if (ctx.preferenciasDibujo) nuevaPreferencia(referencias->contenido(), "Todos los rótulos", e.Pref.TodosLosRotulos);

    auto* columna1 = new QVBoxLayout;
    columna1->addWidget(estrellas);
    columna1->addWidget(constelaciones);
    columna1->addStretch(1);
    auto* columna2 = new QVBoxLayout;
    columna2->addWidget(profundo);
    columna2->addWidget(messier);
    columna2->addStretch(1);
    auto* columna3 = new QVBoxLayout;
    columna3->addWidget(solar);
    columna3->addWidget(referencias);
    columna3->addStretch(1);
    auto* cuerpo = new QHBoxLayout;
    cuerpo->setSpacing(8);
    cuerpo->addLayout(columna1);
    cuerpo->addLayout(columna2);
    cuerpo->addLayout(columna3);
    ponCuerpo(cuerpo);
}

Casilla* Objetos::nuevaCasilla(QBoxLayout* donde, const std::string& texto, int16_t& campo) {
    auto* c = new Casilla(ctx_.controles, A1252(texto));
    c->setMarcada(campo != 0);
    connect(c, &Casilla::cambiada, this, [&campo](bool si) { campo = si ? 1 : 0; });
    donde->addWidget(c);
    casillas_.push_back(c);
    return c;
}

Casilla* Objetos::nuevaPreferencia(QBoxLayout* donde, const std::string& texto, bool& campo) {
    auto* c = new Casilla(ctx_.controles, A1252(texto));
    c->setMarcada(campo);
    connect(c, &Casilla::cambiada, this, [&campo](bool si) { campo = si; });
    donde->addWidget(c);
    casillas_.push_back(c);
    return c;
}

Spin* Objetos::nuevoSpin(QBoxLayout* donde, int indice, int16_t& campo) {
    auto* sp = new Spin(ctx_.controles, indice);
    sp->setValor(campo);
    sp->setAlmacen([&campo](float v) { campo = static_cast<int16_t>(std::lround(v)); });
    donde->addWidget(sp);
    spins_[indice] = sp;
    return sp;
}

std::vector<Casilla*> Objetos::nuevasOpciones(QBoxLayout* donde, const std::vector<std::string>& textos,
                                              int16_t& campo) {
    std::vector<Casilla*> grupo;
    for (std::size_t i = 0; i < textos.size(); ++i) {
        auto* c = new Casilla(ctx_.controles, A1252(textos[i]));
        // A value outside the choices (from a hand-edited file) shows the first.
        c->setMarcada(static_cast<int>(i) == campo ||
                      (i == 0 && (campo < 0 || campo >= static_cast<int16_t>(textos.size()))));
        donde->addWidget(c);
        grupo.push_back(c);
    }
    Casilla::HazOpciones(grupo, [&campo](int i) { campo = static_cast<int16_t>(i); });
    return grupo;
}

Casilla* Objetos::casilla(const QString& texto) const {
    for (Casilla* c : casillas_)
        if (c->texto() == texto) return c;
    return nullptr;
}

Spin* Objetos::spin(int indice) const {
    auto it = spins_.find(indice);
    return it == spins_.end() ? nullptr : it->second;
}

void AbreObjetos(ContextoDialogo& ctx) {
    ctx.e.Cambiado = false;
    const auto antes = Ajustes(ctx.e);
    const Preferencias preferencias = ctx.e.Pref;
    {
        Objetos d(ctx);
        MuestraCentrado(d, ctx.cielo);
    }
    // The two switches are program preferences: the configuration is not
    // changed by them.
    GuardaPreferencias(ctx, preferencias, "Objetos");
    if (Ajustes(ctx.e) != antes) ctx.e.Cambiado = true;
    if (ctx.DibujaCielo) ctx.DibujaCielo();
}

}  // namespace vedrano
