#include <cmath>

#include "app/base/Aritmetica.h"
#include "catalogue/MovimientosPropios.h"
#include "sky/Plotters.h"

namespace vedrano {

void DibujaEstrellas(Contexto& x) {
    const Estado& e = x.e;
    float magnitudRecordada = -9.0f;
    int claseRecordada = -1;  // the first star always sets the colour
    const QColor colores[4] = {ColorVB(e.ColoresEstrellas[0]), ColorVB(e.ColoresEstrellas[1]),
                               ColorVB(e.ColoresEstrellas[2]), ColorVB(e.ColoresEstrellas[3])};
    // A measuring run needs the labels only.
    int n = x.l.SoloMedida() ? -1 : CuentaNivel(x.c.TablasCuentas.Estrellas, e.NivelEstrellas);
    const double anos = AnosMovimientoPropio(e);
    const DireccionesEnFecha estrellas(x.c.MovEstrellas, anos), rotulos(x.c.MovEstrellasNombre, anos);
    for (int i = 0; i <= n; ++i) {
        const Estrella& s = x.c.TablaEstrellas[static_cast<std::size_t>(i)];
        PuntoProyectado p = Proyecta(x.v.catalogo, estrellas(static_cast<std::size_t>(i), s.Direccion));
        if (!EsVisible(e, p)) continue;
        if (s.Magnitud != magnitudRecordada) {
            // Stars are sorted by magnitude: the pen changes only at class steps.
            x.l.FijaAnchoTrazo(CInt((7 - s.Magnitud) * 0.07 * e.Zoom + 1));
            magnitudRecordada = s.Magnitud;
        }
        if (s.Tipo != claseRecordada) {
            x.l.FijaColor(colores[s.Tipo & 3]);
            claseRecordada = s.Tipo;
        }
        x.l.Punto(p.X, p.Y);
    }
    x.l.FijaAnchoTrazo(1);
    x.l.FijaColor(ColorVB(0xFFFFFF));

    if (e.IdEstrellas == 0) return;
    int m = CuentaNivel(x.c.TablasCuentas.Rotulos, e.NivelEstrellas);
    for (int j = 0; j <= m; ++j) {
        const EstrellaNombre& s = x.c.TablaEstrellasNombre[static_cast<std::size_t>(j)];
        PuntoProyectado p = Proyecta(x.v.catalogo, rotulos(static_cast<std::size_t>(j), s.Direccion));
        if (!EsVisible(e, p)) continue;
        x.l.FijaPosicion(p.X, p.Y);
        x.l.Escribe(e.IdEstrellas == 1 ? s.Designacion.texto() : s.Nombre.texto(), RangoMagnitud(s.Magnitud));
    }
}

}  // namespace vedrano
