#include "sky/DibujaCielo.h"

#include <cmath>

#include "app/base/Formato.h"
#include "astro/Planetas.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Tiempo.h"
#include "platform/NumerosLocales.h"
#include "sky/Plotters.h"
#include "sky/proyeccion/Proyeccion.h"
#include "sky/proyeccion/SistemaSolar.h"

namespace vedrano {

namespace {

bool Encendido(int16_t interruptor) { return interruptor != 0; }

// Record 3 is the Earth's own orbit, from which the Sun is placed: it is
// never computed or drawn as a planet seen from the Earth, which would
// overwrite the Sun's base values.
constexpr int16_t TIERRA = 3;

}  // namespace

void ActualizaPanel(Estado& e) {
    PanelInformacion& p = e.Panel;
    p.Direccion = " Direcci\xF3n = " + TextoDireccion(e.Direccion);
    p.Elevacion = " Elevaci\xF3n = " + TextoGrados(e.Elevacion);
    p.Zoom = " Zoom = " + plataforma::NumeroLocal(Formato(e.Zoom, "#0.0"));
    MuestraFechas(e);
    p.FechaUniversal = "T. U. = " + e.Fechas[0].Dia + " / " + e.Fechas[0].Mes + " / " + e.Fechas[0].Ano;
    p.HoraUniversal = e.Fechas[0].Hora;
    p.FechaLocal = "F. L. = " + e.Fechas[1].Dia + " / " + e.Fechas[1].Mes + " / " + e.Fechas[1].Ano;
    p.HoraLocal = " " + e.Fechas[1].Hora;
    p.DiaJuliano = "D. J. = " + plataforma::NumeroLocal(e.TextoDiaJuliano);
    // The precise model says its name beside the date it was computed for.
    if (e.Pref.PrecisionAlta) p.DiaJuliano += "    Precisi\xF3n alta";
}

void AjustaEscalaLienzo(Estado& e, Lienzo& l) {
    AjustaEscala(e, l.Ancho(), l.Alto());
    l.Escala(e.EscalaIzquierda, e.EscalaSuperior, e.EscalaAncho, e.EscalaAlto);
}

namespace {

// The layers in their fixed order, after the background.
void DibujaCapas(Contexto& x) {
    Estado& e = x.e;
    const Catalogos& c = x.c;
    Lienzo& l = x.l;
    const Interruptores& s = e.Capas;
    l.FijaColor(ColorVB(0xFFFFFF));
    l.FijaAnchoTrazo(1);
    l.FijaEstiloTrazo(0);
    if (Encendido(s.ARDEC15)) DibujaRejilla(x, 15);
    if (Encendido(s.ARDEC30)) DibujaRejilla(x, 30);
    if (Encendido(s.LimCo)) DibujaLimites(x);
    if (Encendido(s.Horiz)) DibujaHorizonte(x);
    if (Encendido(s.Eclip)) DibujaEcliptica(x);
    if (e.NivelConstelaciones > 0) DibujaConstelaciones(x);
    if (e.NivelEstrellas > 0) DibujaEstrellas(x);
    DibujaEstrellasProfundas(x);
    if (Encendido(s.Messi)) DibujaMessier(x);
    if (Encendido(s.Galax)) DibujaGalaxias(x);
    const Cuentas& t = c.TablasCuentas;
    if (Encendido(s.NebPl)) DibujaNebulosas(x, c.TablaNebPlanetarias, t.NebPlanetarias, e.NivelNebPlanetarias);
    if (Encendido(s.NebDi)) DibujaNebulosas(x, c.TablaNebDifusas, t.NebDifusas, e.NivelNebDifusas);
    if (Encendido(s.CumAb)) DibujaCumulos(x, c.TablaCumAbiertos, t.CumAbiertos, e.NivelCumAbiertos, 0x8000, 0.5);
    if (Encendido(s.CumGl))
        DibujaCumulos(x, c.TablaCumGlobulares, t.CumGlobulares, e.NivelCumGlobulares, 0xC0C0C0, 1.4);
    if (Encendido(s.Quasa)) DibujaExoticos(x, c.TablaCuasares, false);
    if (Encendido(s.Pulsa)) DibujaExoticos(x, c.TablaPulsares, false);
    if (Encendido(s.Aguje)) DibujaExoticos(x, c.TablaAgujeros, true);
    if (Encendido(s.ViaLa)) DibujaViaLactea(x);
    for (int16_t i = 1; i <= 9; ++i) {
        if (i == TIERRA || !Encendido(s.Plane[static_cast<std::size_t>(i - 1)])) continue;
        HallaCuerpo(e, c.TablaPlanetas, i);
        DibujaCuerpo(x, i);
    }
    if (Encendido(s.Sol)) {
        HallaCuerpo(e, c.TablaPlanetas, 10);
        DibujaCuerpo(x, 10);
    }
    if (Encendido(s.Luna)) {
        HallaCuerpo(e, c.TablaPlanetas, 10);  // the phase needs the Sun even when it is not drawn
        HallaCuerpo(e, c.TablaPlanetas, 11);
        DibujaCuerpo(x, 11);
    }
    if (e.Telescopio) {
        // The telescope's field around the centre of view: an angular
        // radius r lies sin r from the centre in this projection.
        l.FijaColor(ColorVB(0x4040FF));
        l.Circulo(0, 0, std::sin(e.CampoTelescopio / 2));
        l.FijaColor(ColorVB(0xFFFFFF));
    }
}

}  // namespace

void DibujaCielo(Estado& e, const Catalogos& c, Lienzo& l, const OpcionesDibujo& o) {
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
    ActualizaPanel(e);
    // The pass erased any cursor mark.
    e.MarcaVisible = false;
}

void ActualizaCielo(Estado& e, const Catalogos& c, Lienzo& l, const OpcionesDibujo& o) {
    ActualizaTiempo(e, c.TablaPlanetas);
    if (e.ActualizarSistemaSolar) HallaSistemaSolar(e, c.TablaPlanetas);
    AjustaEscalaLienzo(e, l);
    GiraDireccion(e);
    DibujaCielo(e, c, l, o);
}

}  // namespace vedrano
