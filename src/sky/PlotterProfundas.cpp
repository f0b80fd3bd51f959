// The deep star layer: the faint stars of the deep catalogue, drawn after
// the stars of the program's tables when the star level is 7 and the zoom
// is deep enough, with the same dot rule.
#include <algorithm>
#include <cmath>

#include "app/base/Aritmetica.h"
#include "catalogue/EstrellasProfundas.h"
#include "sky/Plotters.h"

namespace vedrano {

namespace {

// The faintest star of the program's tables and the deep catalogue's limit.
constexpr double MAGNITUD_TABLAS = 7.54, MAGNITUD_PROFUNDA = 10.5;
constexpr double ZOOM_PROFUNDO = 15;

}  // namespace

double MagnitudLimiteProfunda(double zoom) {
    // Grows with the logarithm of the zoom: no deeper than the tables at
    // zoom 1, the whole catalogue at zoom 15.
    if (zoom <= 1) return MAGNITUD_TABLAS;
    double f = std::min(1.0, std::log(zoom) / std::log(ZOOM_PROFUNDO));
    return MAGNITUD_TABLAS + (MAGNITUD_PROFUNDA - MAGNITUD_TABLAS) * f;
}

void DibujaEstrellasProfundas(Contexto& x) {
    const EstrellasProfundas* cat = x.o.Profundas;
    const Estado& e = x.e;
    if (!x.o.EstrellasDebiles || !cat || !cat->Abierto() || e.NivelEstrellas != 7 || x.l.SoloMedida()) return;
    const float limite = static_cast<float>(MagnitudLimiteProfunda(e.Zoom));
    if (limite <= MAGNITUD_TABLAS) return;
    const MatrizVista& m = x.v.catalogo;
    // The line of sight in the catalogue's frame, and the angle from it
    // beyond which nothing falls inside the picture.
    const double eje[3] = {m.m[2][0], m.m[2][1], m.m[2][2]};
    const double campo = std::acos(std::clamp(double{e.Umbral}, 0.0, 1.0));
    float magnitudRecordada = -99;
    x.l.FijaColor(ColorVB(e.ColoresEstrellas[0]));
    for (const ZonaProfunda& z : cat->Zonas()) {
        if (!ZonaCerca(z, eje, campo)) continue;
        for (uint32_t i = z.Primera; i < z.Primera + z.Cuenta; ++i) {
            const EstrellaProfunda s = cat->Estrella(i);
            const float mag = s.Magnitud();
            if (mag > limite) break;  // brightest first: the rest are fainter
            PuntoProyectado p = Proyecta(m, DireccionProfunda(z, s));
            if (!EsVisible(e, p)) continue;
            if (mag != magnitudRecordada) {
                x.l.FijaAnchoTrazo(CInt((7 - mag) * 0.07 * e.Zoom + 1));
                magnitudRecordada = mag;
            }
            x.l.Punto(p.X, p.Y);
        }
    }
    x.l.FijaAnchoTrazo(1);
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

}  // namespace vedrano
