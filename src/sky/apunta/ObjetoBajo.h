// What is drawn under a screen point: the nearest object of the layers
// the picture shows (with their detail levels), and the lines that tell
// it (designation and name, kind, magnitude or size, place, constellation;
// the Moon's phase and age). The hit-test works on the projection alone,
// so it answers for the picture as last set up, without drawing.
#pragma once
#include <string>
#include <vector>

#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"
#include "sky/apunta/DiaObjeto.h"

namespace vedrano {

enum class ClaseObjeto { Ninguno, Cuerpo, Estrella, Messier, Galaxia, NebPlanetaria, NebDifusa, CumAbierto,
                         CumGlobular, Cuasar, Pulsar, Agujero };

struct ObjetoSenalado {
    ClaseObjeto clase = ClaseObjeto::Ninguno;
    int indice = -1;         // in its table (a body: 1..11)
    ObjetoDelDia dia;        // what the day's rising and setting follow
    double distancia = 0;    // from the point, user units
};

// ObjetoBajo
//   Given: e the state after a pass (scale, view, bodies' screen points),
//          c the catalogues, X Y a screen point (user scale), radio the
//          reach in user units.
//   Returns the nearest object drawn within `radio` of the point (a body
//   within its disc counts as hit), or clase Ninguno.
//   Fast when the state's projection is prepared (PreparaProyeccion, as
//   after a pass): each object then costs its products only; otherwise every
//   object works out the rotations again (same answer, far slower).
ObjetoSenalado ObjetoBajo(const Estado& e, const Catalogos& c, float X, float Y, float radio);

// The lines that describe an object (Windows-1252): first its designation
// and name, then its kind and magnitude or size, its place of the date,
// its constellation where the catalogue gives it; for the Moon its phase
// and age.
std::vector<std::string> DescribeObjeto(const Estado& e, const Catalogos& c, const ObjetoSenalado& o);

}  // namespace vedrano
