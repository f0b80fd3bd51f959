// The horizon with its compass points, and the daylight colour of the sky.
#include <array>
#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "app/base/Texto1252.h"
#include "astro/Planetas.h"
#include "sky/Plotters.h"
#include "sky/proyeccion/SistemaSolar.h"

namespace vedrano {

namespace {

// Points 0..72 of the horizon every 5 degrees of azimuth (from north
// through east) in the horizon frame: x west, y north, z zenith.
const std::array<Vector3f, 73>& TablaHorizonte() {
    static const std::array<Vector3f, 73> tabla = [] {
        std::array<Vector3f, 73> t{};
        for (int k = 0; k <= 72; ++k) {
            double az = k * 5 * GRADO;
            t[static_cast<std::size_t>(k)] = {static_cast<float>(-std::sin(az)), static_cast<float>(std::cos(az)), 0.0f};
        }
        return t;
    }();
    return tabla;
}

constexpr unsigned long COLOR_HORIZONTE = 0x40B040;

}  // namespace

void DibujaHorizonte(Contexto& x) {
    const Estado& e = x.e;
    const auto& h = TablaHorizonte();
    int16_t estilo = static_cast<int16_t>(x.l.EstiloTrazo());
    x.l.FijaColor(ColorVB(COLOR_HORIZONTE));
    PuntoProyectado p = Proyecta(x.v.horizonte, h[0]);
    AjustaTrazo(x, p, estilo);
    x.l.Punto(p.X, p.Y);
    for (int k = 1; k <= 72; ++k) {
        p = Proyecta(x.v.horizonte, h[static_cast<std::size_t>(k)]);
        AjustaTrazo(x, p, estilo);
        x.l.LineaA(p.X, p.Y);
    }
    x.l.FijaEstiloTrazo(0);

    PuntoProyectado cenit = Proyecta(x.v.horizonte, {0, 0, 1});
    if (EsVisible(e, cenit)) {
        double m = std::fabs(e.EscalaAncho) / 80;
        x.l.Linea(cenit.X - m, cenit.Y, cenit.X + m, cenit.Y);
        x.l.Linea(cenit.X, cenit.Y - m, cenit.X, cenit.Y + m);
    }
    const std::string rumbos = "N NEE SES SOO NO";
    for (int k = 0; k <= 7; ++k) {
        p = Proyecta(x.v.horizonte, h[static_cast<std::size_t>(9 * k)]);
        if (!EsVisible(e, p)) continue;
        x.l.Punto(p.X, p.Y);
        x.l.Escribe(Mid(rumbos, 2 * k + 1, 2), RANGO_RUMBOS);
    }
    x.l.FijaColor(ColorVB(0xFFFFFF));
}

QColor ColorLuzDiurna(Estado& e, const Catalogos& c) {
    HallaCuerpo(e, c.TablaPlanetas, 10);
    PosicionCuerpo& sol = e.Planetas[10];
    // The sine of the Sun's altitude (its place is of the date: no
    // precession step): the depth it would have in a view of the zenith.
    const float seno = HorizontalDeFecha(e, Vector3f{sol.x, sol.y, sol.z}).z;
    int azul = CInt(seno * 640.0 + 192.0);
    if (azul < 0) azul = 0;
    if (azul > 192) azul = 192;
    return QColor(0, 0, azul);
}

}  // namespace vedrano
