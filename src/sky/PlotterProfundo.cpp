// Deep-sky categories: galaxies, nebulae, clusters, and the pulsars,
// quasars and black holes, all on one scheme.
#include "app/base/Constantes.h"
#include "sky/Plotters.h"

namespace vedrano {

namespace {

// Visits records 0..n of a table, skipping those below the threshold, and
// hands each visible one with its projected point to `dibuja`.
template <typename Registro, typename Funcion>
void Recorre(Contexto& x, const std::vector<Registro>& tabla, int n, Funcion dibuja) {
    for (int i = 0; i <= n && i < static_cast<int>(tabla.size()); ++i) {
        const Registro& r = tabla[static_cast<std::size_t>(i)];
        PuntoProyectado p = Proyecta(x.v.catalogo, r.Direccion);
        if (!EsVisible(x.e, p)) continue;
        dibuja(r, p);
    }
}

// Rank of a deep-sky label from its size class (1 the largest): as a
// magnitude 7 object for the largest, one step fainter per class.
float RangoClase(int clase) { return RangoMagnitud(6 + clase); }

void Rotulo(Contexto& x, double px, double py, const std::string& texto, float rango,
            const QColor* color = nullptr) {
    if (!x.e.IdentificarObjetos) return;
    QColor antes = x.l.Color();
    if (color) x.l.FijaColor(*color);
    x.l.FijaPosicion(px, py);
    x.l.Escribe(texto, rango);
    x.l.FijaColor(antes);
}

const QColor BLANCO = ColorVB(0xFFFFFF);

}  // namespace

void DibujaGalaxias(Contexto& x) {
    const TablaCuentas& t = x.c.TablasCuentas.Galaxias;
    Recorre(x, x.c.TablaGalaxias, CuentaNivel(t, x.e.NivelGalaxias), [&](const ObjetoProfundo& g, PuntoProyectado p) {
        double r = 0.0015 * (7 - g.Clase);
        x.l.Circulo(p.X, p.Y, r, 0.6);
        Rotulo(x, p.X + r, p.Y, g.Designacion.texto(), RangoClase(g.Clase));
    });
}

void DibujaNebulosas(Contexto& x, const std::vector<ObjetoProfundo>& tabla, const TablaCuentas& cuentas,
                     int nivel) {
    x.l.FijaColor(ColorVB(0xC0C0C0));
    Recorre(x, tabla, CuentaNivel(cuentas, nivel), [&](const ObjetoProfundo& o, PuntoProyectado p) {
        double r = 0.0015 * (4 - o.Clase);
        x.l.Caja(p.X - r, p.Y - r, p.X + r, p.Y + r);
        Rotulo(x, p.X + r / 2, p.Y + r / 3, o.Designacion.texto(), RangoClase(o.Clase), &BLANCO);
    });
}

void DibujaCumulos(Contexto& x, const std::vector<ObjetoProfundo>& tabla, const TablaCuentas& cuentas,
                   int nivel, unsigned long color, double desplazaRotulo) {
    x.l.FijaColor(ColorVB(color));
    Recorre(x, tabla, CuentaNivel(cuentas, nivel), [&](const ObjetoProfundo& o, PuntoProyectado p) {
        double r = 0.003 * (3 - o.Clase);
        x.l.Circulo(p.X, p.Y, r);
        x.l.Linea(p.X - r, p.Y, p.X + r, p.Y);
        Rotulo(x, p.X + r * desplazaRotulo, p.Y, o.Designacion.texto(), RangoClase(o.Clase), &BLANCO);
    });
}

void DibujaExoticos(Contexto& x, const std::vector<ObjetoExotico>& tabla, bool mediosDiscos) {
    constexpr double R = 0.0053;
    Recorre(x, tabla, static_cast<int>(tabla.size()) - 1, [&](const ObjetoExotico& o, PuntoProyectado p) {
        if (mediosDiscos) {
            x.l.Circulo(p.X, p.Y, R, 1.0, -PI, -DOS_PI, true);
        } else {
            // -0.0001 stands for the angle 0, which cannot be written negative.
            x.l.Circulo(p.X, p.Y, R, 1.0, -0.0001, -MEDIO_PI, true);
            x.l.Circulo(p.X, p.Y, R, 1.0, -PI, -3 * MEDIO_PI, true);
        }
        Rotulo(x, p.X + R, p.Y, o.Nombre.texto(), RANGO_EXOTICOS);
    });
}

}  // namespace vedrano
