#include "app/acciones/ObjetivoBusqueda.h"

#include <cstdint>
#include <limits>

#include "app/base/ErrorEjecucion.h"
#include "app/estado/Astros.h"
#include "app/estado/Rotaciones.h"
#include "catalogue/MovimientosPropios.h"
#include "sky/proyeccion/Proyeccion.h"
#include "sky/proyeccion/SistemaSolar.h"

namespace vedrano {

namespace {

void CompruebaCota(int i, std::size_t cota) {
    if (i < 0 || static_cast<std::size_t>(i) >= cota) throw ErrorEjecucion(ErrSubindice);
}

// `mov` the table's proper motions (the named stars' only).
template <class Registro>
void Objetivo(Estado& e, const std::vector<Registro>& tabla, int i, std::size_t cota,
              const std::vector<Vector3f>& mov = {}) {
    CompruebaCota(i, cota);
    CompruebaCota(i, tabla.size());
    const Registro& r = tabla[static_cast<std::size_t>(i)];
    e.ObjetivoAR = r.AR;
    e.ObjetivoDEC = r.DEC;
    // The classic centring aims at the catalogue's place, as the search
    // form reads it, even where the picture precesses the object. The
    // precise model aims where it draws the object: moved by its proper
    // motion, aberrated, and referred to the equator and equinox of the date.
    if (e.Pref.PrecisionAlta) {
        Vector3f v = DireccionesEnFecha(mov, AnosMovimientoPropio(e))(static_cast<std::size_t>(i), r.Direccion);
        LugarDeFecha(e, v);
        VectorAAngulos(v, e.ObjetivoAR, e.ObjetivoDEC);
    }
}

void CuerpoSolar(Estado& e, const Catalogos& c, int linea) {
    if (linea >= std::numeric_limits<int16_t>::max()) throw ErrorEjecucion(ErrDesbordamiento);
    const int16_t cuerpo = static_cast<int16_t>(linea + 1);
    CompruebaCota(cuerpo, 12);
    // The Earth's record holds the Sun's results; computing it as a planet
    // would move the Sun, and from the Earth there is nothing to point at.
    if (cuerpo == 3) return;
    HallaSol(e, c.TablaPlanetas);
    HallaCuerpo(e, c.TablaPlanetas, cuerpo);
    if (cuerpo == 11) e.CorreccionLuna = true;  // the Moon moves on while the time is stepped
    const PosicionCuerpo& p = e.Planetas[static_cast<std::size_t>(cuerpo)];
    e.ObjetivoAR = p.AscRecta;
    e.ObjetivoDEC = p.Declinacion;
}

}  // namespace

void FijaObjetivo(Estado& e, const Catalogos& c, int categoria, int linea) {
    e.ObjetivoAR = 0.0;
    e.ObjetivoDEC = 0.0;
    if (linea < 0) return;
    switch (categoria) {
        case 0: CuerpoSolar(e, c, linea); break;
        case 1: Objetivo(e, c.TablaMessier, linea, 109); break;
        case 2: Objetivo(e, c.TablaConstelaciones, linea, 88); break;
        case 3: {
            CompruebaCota(linea, 1483);
            CompruebaCota(linea, c.IndiceListaEstrellas.size());
            Objetivo(e, c.TablaEstrellasNombre, c.IndiceListaEstrellas[static_cast<std::size_t>(linea)], 2586,
                     c.MovEstrellasNombre);
            break;
        }
        case 4: Objetivo(e, c.TablaGalaxias, linea, 1234); break;
        case 5: Objetivo(e, c.TablaNebPlanetarias, linea, 142); break;
        case 6: Objetivo(e, c.TablaNebDifusas, linea, 174); break;
        default: break;  // clusters, quasars, pulsars, black holes: for reading only
    }
}

}  // namespace vedrano
