// One plotter per layer of the sky picture. Every plotter follows one
// scheme: visit the records its detail level allows, project each, skip
// those below the depth threshold, draw its symbol in user-scale units so
// that symbols grow with the zoom, and print its label when asked.
#pragma once
#include <cstdint>

#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"
#include "sky/Lienzo.h"
#include "sky/OpcionesDibujo.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

struct Contexto {
    Estado& e;
    const Catalogos& c;
    Lienzo& l;
    VistasPasada v;  // the projection, prepared once for the pass
    const OpcionesDibujo& o;
};

// Ranks of labels that would overlap (higher wins): objects by magnitude
// on one scale, the few labels that orient the picture above them.
constexpr float RANGO_CUERPOS = 100, RANGO_RUMBOS = 90, RANGO_CONSTELACIONES = 60, RANGO_EXOTICOS = 25,
                RANGO_REJILLA = 10;
inline float RangoMagnitud(double magnitud) { return static_cast<float>(50 - magnitud); }

// Sets the pen style for a line end behind the observer (transparent) or
// in front (solid), changing it only when it differs.
void AjustaTrazo(Contexto& x, const PuntoProyectado& p, int16_t& estiloRecordado);

// The count entry of a detail level; a level outside 0..7 is error 9.
int CuentaNivel(const TablaCuentas& t, int nivel);

// The sky background from the Sun's altitude.
QColor ColorLuzDiurna(Estado& e, const Catalogos& c);
void DibujaRejilla(Contexto& x, int pasoGrados);
void DibujaLimites(Contexto& x);
void DibujaHorizonte(Contexto& x);
void DibujaEcliptica(Contexto& x);
void DibujaConstelaciones(Contexto& x);
void DibujaEstrellas(Contexto& x);
// The faint stars of the deep catalogue, when the options ask for them.
void DibujaEstrellasProfundas(Contexto& x);
// The faintest magnitude of the deep star layer at a zoom.
double MagnitudLimiteProfunda(double zoom);
void DibujaMessier(Contexto& x);
void DibujaGalaxias(Contexto& x);
void DibujaNebulosas(Contexto& x, const std::vector<ObjetoProfundo>& tabla, const TablaCuentas& cuentas,
                     int nivel);
void DibujaCumulos(Contexto& x, const std::vector<ObjetoProfundo>& tabla, const TablaCuentas& cuentas,
                   int nivel, unsigned long color, double desplazaRotulo);
void DibujaExoticos(Contexto& x, const std::vector<ObjetoExotico>& tabla, bool mediosDiscos);
void DibujaViaLactea(Contexto& x);
// Body 1..9 a planet, 10 the Sun, 11 the Moon; its place must be computed.
void DibujaCuerpo(Contexto& x, int cuerpo);

}  // namespace vedrano
