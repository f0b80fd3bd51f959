// The sky picture: the rendering pass with its fixed order of layers, and
// the full update that recomputes time, scale and view before it.
#pragma once
#include <string>

#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"
#include "sky/Lienzo.h"
#include "sky/OpcionesDibujo.h"

namespace vedrano {

// The texts of the information panel, as the main window shows them
// (Windows-1252).
struct PanelInformacion {
    std::string Direccion, Elevacion, Zoom;
    std::string FechaUniversal, HoraUniversal, FechaLocal, HoraLocal, DiaJuliano;
};

// Clears the picture and draws every layer whose switch is on, in order:
// daylight, 15 and 30 degree grids, boundaries, horizon, ecliptic,
// constellations, stars, Messier, galaxies, planetary and diffuse nebulae,
// open and globular clusters, quasars, pulsars, black holes, Milky Way,
// planets 1..9, the Sun, the Moon; then returns the panel texts. Labels
// that would overlap a label of a brighter or larger object are left out
// unless the options ask for every label.
PanelInformacion DibujaCielo(Estado& e, const Catalogos& c, Lienzo& l, const OpcionesDibujo& o = {});

// Time refresh, the solar system, the scale for the picture's size, the
// turned azimuth, and the pass, whose panel texts it returns.
PanelInformacion ActualizaCielo(Estado& e, const Catalogos& c, Lienzo& l, const OpcionesDibujo& o = {});

// Sets the state's scale from the zoom for the picture's size and hands it
// to the canvas.
void AjustaEscalaLienzo(Estado& e, Lienzo& l);

// The texts of the information panel for the state as it stands (the date
// fields of the state are refreshed on the way).
PanelInformacion TextosPanel(Estado& e);

}  // namespace vedrano
