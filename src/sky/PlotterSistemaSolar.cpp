// The Sun, the Moon and the planets: a disc in the body's colour with its
// three-letter label; the Moon in one of sixteen phase shapes.
#include <array>
#include <cmath>

#include "app/base/Constantes.h"
#include "astro/Coordenadas.h"
#include "sky/Plotters.h"

namespace vedrano {

namespace {

// Colour (&HBBGGRR) and disc radius in user units of each body 1..11.
struct Aspecto {
    unsigned long color;
    double radio;
};
constexpr std::array<Aspecto, 12> CUERPOS = {{
    {0, 0},
    {0xB0B0B0, 0.0035},  // Mercury
    {0xC0F0FF, 0.0050},  // Venus
    {0xFF8040, 0.0040},  // Earth (never drawn from the Earth)
    {0x3060FF, 0.0042},  // Mars
    {0xA0D0F0, 0.0050},  // Jupiter
    {0x80C8E0, 0.0046},  // Saturn
    {0xE0E0A0, 0.0038},  // Uranus
    {0xFF9060, 0.0038},  // Neptune
    {0x6080A0, 0.0030},  // Pluto
    {0x00FFFF, 0.0090},  // Sun
    {0xE0E8E8, 0.0090},  // Moon
}};

// The Moon's elongation east of the Sun, 0..2pi: the angle between their
// directions, counted past pi when the Moon is west of the Sun (waning).
double Elongacion(const PosicionCuerpo& luna, const PosicionCuerpo& sol, const Vector3f& vs) {
    double c = double(luna.x) * vs.x + double(luna.y) * vs.y + double(luna.z) * vs.z;
    double psi = std::acos(std::max(-1.0, std::min(1.0, c)));
    double diferencia = std::remainder(luna.AscRecta - sol.AscRecta, 2 * PI_COMPLETO);
    return diferencia >= 0 ? psi : 2 * PI_COMPLETO - psi;
}

// One of sixteen shapes: the thresholds 23, 45, 68, ... 338 degrees.
int Forma(double elongacion) {
    static const int umbrales[15] = {23, 45, 68, 90, 113, 135, 158, 180, 203, 225, 248, 270, 293, 315, 338};
    int k = 0;
    while (k < 15 && elongacion >= umbrales[k] * GRADO) ++k;
    return k;
}

}  // namespace

void DibujaCuerpo(Contexto& x, int cuerpo) {
    Estado& e = x.e;
    PosicionCuerpo& b = e.Planetas[static_cast<std::size_t>(cuerpo)];
    // Places of the date, projected without the precession step.
    Vector3f v = AngulosAVector(b.AscRecta, b.Declinacion);
    PuntoProyectado p = ProyectaPuntoFecha(e, v);
    b.x = v.x, b.y = v.y, b.z = v.z;
    b.X = p.X, b.Y = p.Y, b.Z = p.Z;
    if (!EsVisible(e, p)) return;
    const Aspecto& a = CUERPOS[static_cast<std::size_t>(cuerpo)];
    QColor color = ColorVB(a.color);
    if (cuerpo == 11) {
        // The phase from the elongation quantised to sixteen shapes; the lit
        // limb faces the Sun's place on the screen.
        const PosicionCuerpo& sol = e.Planetas[10];
        Vector3f vs = AngulosAVector(sol.AscRecta, sol.Declinacion);
        int forma = Forma(Elongacion(b, sol, vs));
        // Each shape stands for the middle of its 22.5 degree step.
        double iluminada = (1 - std::cos((forma + 0.5) * 22.5 * GRADO)) / 2;
        PuntoProyectado ps = ProyectaPuntoFecha(e, vs);
        QPointF a0 = x.l.APixel(p.X, p.Y), a1 = x.l.APixel(ps.X, ps.Y);
        double haciaSol = std::atan2(-(a1.y() - a0.y()), a1.x() - a0.x());
        x.l.Fase(p.X, p.Y, a.radio, iluminada, haciaSol, color, ColorVB(0x404040));
    } else {
        x.l.FijaColor(color);
        x.l.Circulo(p.X, p.Y, a.radio, 1.0, 0, 0, false, &color);
    }
    x.l.FijaColor(ColorVB(0xFFFFFF));
    x.l.FijaPosicion(p.X + a.radio, p.Y);
    x.l.Escribe(x.c.TablaPlanetas[static_cast<std::size_t>(cuerpo)].Codigo.texto(), RANGO_CUERPOS);
}

}  // namespace vedrano
