// Line layers: the equatorial grids, the constellation boundaries, the
// ecliptic and the Milky Way outline.
#include <cmath>
#include <string>
#include <vector>

#include "app/base/Constantes.h"
#include "app/base/Texto1252.h"
#include "astro/Coordenadas.h"
#include "sky/Plotters.h"

namespace vedrano {

namespace {

// A polyline of directions of the date, hidden where it runs behind.
void Polilinea(Contexto& x, const std::vector<Vector3f>& puntos) {
    int16_t estilo = static_cast<int16_t>(x.l.EstiloTrazo());
    for (std::size_t i = 0; i < puntos.size(); ++i) {
        PuntoProyectado p = Proyecta(x.v.fecha, puntos[i]);
        AjustaTrazo(x, p, estilo);
        if (i == 0)
            x.l.FijaPosicion(p.X, p.Y);
        else
            x.l.LineaA(p.X, p.Y);
    }
    x.l.FijaEstiloTrazo(0);
}

// Meridians and parallels every `paso` degrees, each sampled every 2 degrees.
struct Rejilla {
    std::vector<std::vector<Vector3f>> lineas;
};

Rejilla ConstruyeRejilla(int paso) {
    Rejilla r;
    for (int a = 0; a < 360; a += paso) {
        std::vector<Vector3f> meridiano;
        for (int d = -90 + paso; d <= 90 - paso; d += 2) meridiano.push_back(AngulosAVector(a * GRADO, d * GRADO));
        r.lineas.push_back(std::move(meridiano));
    }
    for (int d = -90 + paso; d <= 90 - paso; d += paso) {
        std::vector<Vector3f> paralelo;
        for (int a = 0; a <= 360; a += 2) paralelo.push_back(AngulosAVector(a * GRADO, d * GRADO));
        r.lineas.push_back(std::move(paralelo));
    }
    return r;
}

void Rotula(Contexto& x, const Vector3f& v, const std::string& texto) {
    PuntoProyectado p = Proyecta(x.v.fecha, v);
    if (!EsVisible(x.e, p)) return;
    x.l.FijaPosicion(p.X, p.Y);
    x.l.Escribe(texto, RANGO_REJILLA);
}

}  // namespace

void DibujaRejilla(Contexto& x, int pasoGrados) {
    // The grid is of the date, as the coordinates read under the cursor are.
    static const Rejilla r15 = ConstruyeRejilla(15), r30 = ConstruyeRejilla(30);
    const Rejilla& r = pasoGrados == 15 ? r15 : r30;
    x.l.FijaColor(ColorVB(pasoGrados == 15 ? 0x603818 : 0x905828));
    // A measuring run wants the labels only.
    if (!x.l.SoloMedida())
        for (const auto& linea : r.lineas) Polilinea(x, linea);
    // Hours along the equator, degrees along the meridian of 0h.
    x.l.FijaColor(ColorVB(0xC09060));
    for (int a = 0; a < 360; a += pasoGrados) Rotula(x, AngulosAVector(a * GRADO, 0), std::to_string(a / 15) + "h");
    for (int d = -90 + pasoGrados; d <= 90 - pasoGrados; d += pasoGrados)
        if (d != 0) Rotula(x, AngulosAVector(0, d * GRADO), (d > 0 ? "+" : "") + std::to_string(d) + A1252("°"));
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

void DibujaLimites(Contexto& x) {
    if (x.l.SoloMedida()) return;  // no labels
    // Boundaries are catalogue (J2000) lines, dotted and faint.
    x.l.FijaColor(ColorVB(0x707070));
    int16_t estilo = -1;
    for (const PuntoTrazo& t : x.c.TablaLimites) {
        PuntoProyectado p = Proyecta(x.v.catalogo, t.Direccion);
        int16_t quiere = p.Z < 0 ? 5 : 2;
        if (quiere != estilo) {
            estilo = quiere;
            x.l.FijaEstiloTrazo(estilo);
        }
        if (t.Pluma != 0)
            x.l.FijaPosicion(p.X, p.Y);
        else
            x.l.LineaA(p.X, p.Y);
    }
    x.l.FijaEstiloTrazo(0);
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

void DibujaEcliptica(Contexto& x) {
    static const std::vector<Vector3f> puntos = [] {
        std::vector<Vector3f> v;
        for (int g = 0; g <= 360; g += 2) {
            double ar, dec;
            EclipticaAEcuatorial(g * GRADO, ar, dec);
            v.push_back(AngulosAVector(ar, dec));
        }
        return v;
    }();
    if (x.l.SoloMedida()) return;  // no labels
    x.l.FijaColor(ColorVB(0x00B0E0));  // amber
    Polilinea(x, puntos);
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

void DibujaViaLactea(Contexto& x) {
    if (x.l.SoloMedida()) return;  // no labels
    x.l.FijaColor(ColorVB(0x907060));
    int16_t estilo = static_cast<int16_t>(x.l.EstiloTrazo());
    bool nuevo = true;
    for (const Vector3f& v : x.c.TablaPuntosCielo) {
        if (v.x == 0 && v.y == 0 && v.z == 0) {  // the end of a stroke
            nuevo = true;
            continue;
        }
        PuntoProyectado p = Proyecta(x.v.catalogo, v);
        AjustaTrazo(x, p, estilo);
        if (nuevo)
            x.l.FijaPosicion(p.X, p.Y);
        else
            x.l.LineaA(p.X, p.Y);
        nuevo = false;
    }
    x.l.FijaEstiloTrazo(0);
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

}  // namespace vedrano
