#include "sky/DibujaCielo.h"

#include <cmath>

#include "app/base/Formato.h"
#include "astro/Planetas.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Tiempo.h"
#include "platform/NumerosLocales.h"
#include "sky/Plotters.h"
#include "sky/proyeccion/Proyeccion.h"
#include "sky/proyeccion/SistemaSolar.h"

namespace vedrano {

namespace {

bool Encendido(int16_t interruptor) { return interruptor != 0; }

}  // namespace

PanelInformacion TextosPanel(Estado& e) {
    PanelInformacion p;
    p.Direccion = A1252(" Dirección = ") + TextoDireccion(e.Direccion);
    p.Elevacion = A1252(" Elevación = ") + TextoGrados(e.Elevacion);
    p.Zoom = " Zoom = " + plataforma::NumeroLocal(Formato(e.Zoom, "#0.0"));
    MuestraFechas(e);
    p.FechaUniversal = "T. U. = " + e.Fechas[0].Dia + " / " + e.Fechas[0].Mes + " / " + e.Fechas[0].Ano;
    p.HoraUniversal = e.Fechas[0].Hora;
    p.FechaLocal = "F. L. = " + e.Fechas[1].Dia + " / " + e.Fechas[1].Mes + " / " + e.Fechas[1].Ano;
    p.HoraLocal = " " + e.Fechas[1].Hora;
    p.DiaJuliano = "D. J. = " + plataforma::NumeroLocal(e.TextoDiaJuliano);
    // The precise model says its name beside the date it was computed for.
    if (e.Pref.PrecisionAlta) p.DiaJuliano += A1252("    Precisión alta");
    return p;
}

void AjustaEscalaLienzo(Estado& e, Lienzo& l) {
    AjustaEscala(e, l.Ancho(), l.Alto());
    l.Escala(e.EscalaIzquierda, e.EscalaSuperior, e.EscalaAncho, e.EscalaAlto);
}

namespace {

// A planet (1..9) or the Sun (10): computed just before it is drawn.
template <int16_t CUERPO>
void Cuerpo(Contexto& x) {
    HallaCuerpo(x.e, x.c.TablaPlanetas, CUERPO);
    DibujaCuerpo(x, CUERPO);
}

void Luna(Contexto& x) {
    HallaCuerpo(x.e, x.c.TablaPlanetas, 10);  // the phase needs the Sun even when it is not drawn
    HallaCuerpo(x.e, x.c.TablaPlanetas, 11);
    DibujaCuerpo(x, 11);
}

// The telescope's field around the centre of view: an angular radius r
// lies sin r from the centre in this projection.
void Telescopio(Contexto& x) {
    x.l.FijaColor(ColorVB(0x4040FF));
    x.l.Circulo(0, 0, std::sin(x.e.CampoTelescopio / 2));
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

template <int16_t CUERPO>
bool PlanetaEncendido(const Estado& e) {
    return Encendido(e.Capas.Plane[CUERPO - 1]);
}

// One layer of the pass: whether the state asks for it, and its plotter.
struct Capa {
    bool (*pedida)(const Estado&);
    void (*dibuja)(Contexto&);
};

#define VEDRANO_INTERRUPTOR(campo) [](const Estado& e) { return Encendido(e.Capas.campo); }

// The layers in their fixed order, after the background. Record 3 is the
// Earth's own orbit, from which the Sun is placed: it is never computed or
// drawn as a planet seen from the Earth, which would overwrite the Sun's
// base values.
const Capa CAPAS[] = {
    {VEDRANO_INTERRUPTOR(ARDEC15), [](Contexto& x) { DibujaRejilla(x, 15); }},
    {VEDRANO_INTERRUPTOR(ARDEC30), [](Contexto& x) { DibujaRejilla(x, 30); }},
    {VEDRANO_INTERRUPTOR(LimCo), DibujaLimites},
    {VEDRANO_INTERRUPTOR(Horiz), DibujaHorizonte},
    {VEDRANO_INTERRUPTOR(Eclip), DibujaEcliptica},
    {[](const Estado& e) { return e.NivelConstelaciones > 0; }, DibujaConstelaciones},
    {[](const Estado& e) { return e.NivelEstrellas > 0; }, DibujaEstrellas},
    {[](const Estado&) { return true; }, DibujaEstrellasProfundas},  // it reads the options itself
    {VEDRANO_INTERRUPTOR(Messi), DibujaMessier},
    {VEDRANO_INTERRUPTOR(Galax), DibujaGalaxias},
    {VEDRANO_INTERRUPTOR(NebPl),
     [](Contexto& x) {
         DibujaNebulosas(x, x.c.TablaNebPlanetarias, x.c.TablasCuentas.NebPlanetarias, x.e.NivelNebPlanetarias);
     }},
    {VEDRANO_INTERRUPTOR(NebDi),
     [](Contexto& x) { DibujaNebulosas(x, x.c.TablaNebDifusas, x.c.TablasCuentas.NebDifusas, x.e.NivelNebDifusas); }},
    {VEDRANO_INTERRUPTOR(CumAb),
     [](Contexto& x) {
         DibujaCumulos(x, x.c.TablaCumAbiertos, x.c.TablasCuentas.CumAbiertos, x.e.NivelCumAbiertos, 0x8000, 0.5);
     }},
    {VEDRANO_INTERRUPTOR(CumGl),
     [](Contexto& x) {
         DibujaCumulos(x, x.c.TablaCumGlobulares, x.c.TablasCuentas.CumGlobulares, x.e.NivelCumGlobulares,
                       0xC0C0C0, 1.4);
     }},
    {VEDRANO_INTERRUPTOR(Quasa), [](Contexto& x) { DibujaExoticos(x, x.c.TablaCuasares, false); }},
    {VEDRANO_INTERRUPTOR(Pulsa), [](Contexto& x) { DibujaExoticos(x, x.c.TablaPulsares, false); }},
    {VEDRANO_INTERRUPTOR(Aguje), [](Contexto& x) { DibujaExoticos(x, x.c.TablaAgujeros, true); }},
    {VEDRANO_INTERRUPTOR(ViaLa), DibujaViaLactea},
    {PlanetaEncendido<1>, Cuerpo<1>},
    {PlanetaEncendido<2>, Cuerpo<2>},
    {PlanetaEncendido<4>, Cuerpo<4>},
    {PlanetaEncendido<5>, Cuerpo<5>},
    {PlanetaEncendido<6>, Cuerpo<6>},
    {PlanetaEncendido<7>, Cuerpo<7>},
    {PlanetaEncendido<8>, Cuerpo<8>},
    {PlanetaEncendido<9>, Cuerpo<9>},
    {VEDRANO_INTERRUPTOR(Sol), Cuerpo<10>},
    {VEDRANO_INTERRUPTOR(Luna), Luna},
    {[](const Estado& e) { return e.Telescopio; }, Telescopio},
};

#undef VEDRANO_INTERRUPTOR

void DibujaCapas(Contexto& x) {
    x.l.FijaColor(ColorVB(0xFFFFFF));
    x.l.FijaAnchoTrazo(1);
    x.l.FijaEstiloTrazo(0);
    for (const Capa& capa : CAPAS)
        if (capa.pedida(x.e)) capa.dibuja(x);
}

}  // namespace

PanelInformacion DibujaCielo(Estado& e, const Catalogos& c, Lienzo& l, const OpcionesDibujo& o) {
    PreparaProyeccion(e);
    Contexto x{e, c, l, PreparaVistas(e), o};
    // The daylight colour is the background of the one clear of the pass.
    QColor fondo = Encendido(e.Capas.LuzDi) ? ColorLuzDiurna(e, c) : QColor(0, 0, 0);
    if (o.TodosLosRotulos) {
        l.Rotulos().Todos();
    } else {
        // A first run measures the labels only, so that the drawing run
        // prints those that do not hide a brighter or larger object's.
        l.Rotulos().EmpiezaMedida(l.Ancho(), l.Alto());
        l.FijaSoloMedida(true);
        try {
            DibujaCapas(x);
        } catch (...) {
            l.FijaSoloMedida(false);
            throw;
        }
        l.FijaSoloMedida(false);
        l.Rotulos().Resuelve();
    }
    l.FijaFondo(fondo);
    DibujaCapas(x);
    l.Vacia();
    // The pass erased any cursor mark.
    e.MarcaVisible = false;
    return TextosPanel(e);
}

PanelInformacion ActualizaCielo(Estado& e, const Catalogos& c, Lienzo& l, const OpcionesDibujo& o) {
    ActualizaTiempo(e, c.TablaPlanetas);
    if (e.ActualizarSistemaSolar) HallaSistemaSolar(e, c.TablaPlanetas);
    AjustaEscalaLienzo(e, l);
    GiraDireccion(e);
    return DibujaCielo(e, c, l, o);
}

}  // namespace vedrano
