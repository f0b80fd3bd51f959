// The day of one object for the state's date and place: rising, transit
// and setting in the program's own positions (the model in use), and for
// the Sun its three twilights, with the texts the forms show.
#pragma once
#include <array>
#include <string>
#include <vector>

#include "app/estado/Estado.h"
#include "astro/OrtoOcaso.h"
#include "catalogue/Catalogos.h"

namespace vedrano {

// What is followed: a body of the solar system (1..11 as in Planetas,
// never 3) or a fixed catalogue place (cuerpo 0), right ascension and
// declination of the catalogue epoch, precessed when the state asks; a
// star from the list also carries its proper motion (direction per year),
// which the precise model applies.
struct ObjetoDelDia {
    int cuerpo = 0;
    double ar = 0, dec = 0;
    Vector3f movimiento{};
};

// The object on line `linea` of search category `categoria` (0..11 as the
// general index); false for no line, the Earth, or a line past its table.
bool ObjetoDeLista(const Catalogos& c, int categoria, int linea, ObjetoDelDia& o);

struct DiaObjeto {
    double jdInicio = 0;  // local midnight, Universal Time
    double adelanto = 0;  // local time minus Universal Time, days
    bool esSol = false;
    OrtoTransitoOcaso horizonte;
    std::array<OrtoTransitoOcaso, 3> crepusculos;  // civil, nautical, astronomical (the Sun only)
};

// HallaDia
//   Given: e the state (its instant picks the local day; its place, zone,
//          summer time and precession switch are used; e is not changed),
//          planetas the orbit records, o the object.
//   Returns the events of the local civil day that holds e.FechaJuliana.
//   The Sun's horizon is 50' below the true one (refraction and
//   semidiameter), a star's or planet's 34'; the Moon's place is the
//   program's, already lowered for the parallax, so it takes the Sun's.
DiaObjeto HallaDia(const Estado& e, const TablaPlanetas& planetas, const ObjetoDelDia& o);

// The lines shown for a day (Windows-1252): "Salida", "Tránsito" with its
// altitude, "Puesta", or "circumpolar" / "no sale", and the twilights.
std::vector<std::string> TextosDia(const DiaObjeto& d);

}  // namespace vedrano
