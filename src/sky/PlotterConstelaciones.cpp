#include "catalogue/MovimientosPropios.h"
#include "sky/Plotters.h"

namespace vedrano {

namespace {

constexpr unsigned long COLOR_FIGURAS = 0xA06030;  // a muted blue
constexpr unsigned long COLOR_NOMBRES = 0xE0B080;

}  // namespace

void DibujaConstelaciones(Contexto& x) {
    const Estado& e = x.e;
    int16_t estilo = static_cast<int16_t>(x.l.EstiloTrazo());
    x.l.FijaColor(ColorVB(COLOR_FIGURAS));
    int n = CuentaNivel(x.c.TablasCuentas.Figuras, e.NivelConstelaciones);
    if (x.l.SoloMedida()) n = -1;  // a measuring run wants the names only
    PuntoProyectado anterior;
    // The figures join the stars where they are drawn.
    const DireccionesEnFecha vertices(x.c.MovFiguras, AnosMovimientoPropio(e));
    for (int i = 0; i <= n; ++i) {
        const PuntoTrazo& f = x.c.TablaFiguras[static_cast<std::size_t>(i)];
        // No threshold here: the pen style alone hides strokes behind the observer.
        PuntoProyectado p = Proyecta(x.v.catalogo, vertices(static_cast<std::size_t>(i), f.Direccion));
        AjustaTrazo(x, p, estilo);
        if (f.Pluma == 0) x.l.Linea(anterior.X, anterior.Y, p.X, p.Y);
        anterior = p;
    }
    x.l.FijaEstiloTrazo(0);

    if (e.IdConstelaciones == 0) return;
    x.l.FijaColor(ColorVB(COLOR_NOMBRES));
    for (const Constelacion& c : x.c.TablaConstelaciones) {
        if (c.Nivel > e.NivelConstelaciones) continue;
        PuntoProyectado p = Proyecta(x.v.catalogo, c.Direccion);
        if (!EsVisible(e, p)) continue;
        x.l.FijaPosicion(p.X, p.Y);
        switch (e.IdConstelaciones) {
            case 1: x.l.Escribe(c.Abreviatura.texto(), RANGO_CONSTELACIONES); break;
            case 2: x.l.Escribe(c.NombreCastellano.texto(), RANGO_CONSTELACIONES); break;
            case 3: x.l.Escribe(c.NombreLatino.texto(), RANGO_CONSTELACIONES); break;
            default: break;
        }
    }
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

}  // namespace vedrano
