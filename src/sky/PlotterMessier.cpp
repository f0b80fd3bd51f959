#include <string>

#include "app/base/Aritmetica.h"
#include "sky/Plotters.h"

namespace vedrano {

namespace {

// Size factor 1..4 from the visual magnitude: brighter objects, bigger symbols.
int FactorTamano(const ObjetoMessier& m) {
    double mag = Val(m.Magnitud.texto());
    if (mag <= 0) return 2;  // no magnitude given
    if (mag < 5.0) return 4;
    if (mag < 7.0) return 3;
    if (mag < 9.0) return 2;
    return 1;
}

}  // namespace

void DibujaMessier(Contexto& x) {
    const Estado& e = x.e;
    for (int i = 0; i < static_cast<int>(x.c.TablaMessier.size()); ++i) {
        const ObjetoMessier& m = x.c.TablaMessier[static_cast<std::size_t>(i)];
        PuntoProyectado p = Proyecta(x.v.catalogo, m.Direccion);
        if (!EsVisible(e, p)) continue;
        int f = FactorTamano(m);
        double r = 0.0015 * f;
        switch (m.Clase.c[0]) {
            case '1':
            case '2':  // star clusters
                r = 0.003 * f;
                x.l.FijaColor(ColorVB(0xC0C0C0));
                x.l.Circulo(p.X, p.Y, r);
                x.l.Linea(p.X - r, p.Y, p.X + r, p.Y);
                break;
            case '3':  // planetary nebulae
                x.l.FijaColor(ColorVB(0x808000));
                x.l.Caja(p.X - r, p.Y - r, p.X + r, p.Y + r);
                break;
            case '4':  // diffuse nebulae
                x.l.FijaColor(ColorVB(0xC0C0C0));
                x.l.Caja(p.X - r, p.Y - r, p.X + r, p.Y + r);
                break;
            default:  // galaxies and the rest: a circle with a dot
                x.l.FijaColor(ColorVB(0x9090FF));
                x.l.Circulo(p.X, p.Y, r);
                x.l.Punto(p.X, p.Y);
                break;
        }
        // The doubtful object (index 101) is never labelled.
        if (e.IdMessier == 0 || i == 101) continue;
        x.l.FijaColor(ColorVB(0xFFFFFF));
        x.l.FijaPosicion(p.X + r, p.Y);
        double mag = Val(m.Magnitud.texto());
        x.l.Escribe(e.IdMessier == 1 ? " M" + std::to_string(i + 1) : m.Nombre.texto(),
                    RangoMagnitud(mag > 0 ? mag : 9));
    }
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

}  // namespace vedrano
