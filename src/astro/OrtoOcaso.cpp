#include "astro/OrtoOcaso.h"

#include <cmath>

namespace vedrano {

namespace {

constexpr int MUESTRAS = 72;                 // one every 20 minutes
constexpr double SEGUNDO = 1.0 / 86400.0;

// Hour angle in (-pi, pi].
double AnguloHorario(const Ecuatorial& p, double sidereo) {
    return std::remainder(sidereo - p.ar, 2 * PI_COMPLETO);
}

// The root of f between a and b (f(a), f(b) of opposite signs), to a second.
template <typename F>
double Biseca(F f, double a, double b, double fa) {
    while (b - a > SEGUNDO) {
        double m = (a + b) / 2, fm = f(m);
        if ((fm < 0) == (fa < 0)) {
            a = m;
            fa = fm;
        } else {
            b = m;
        }
    }
    return (a + b) / 2;
}

}  // namespace

double Altura(const Ecuatorial& p, double sidereoLocal, double latitud) {
    double s = std::sin(latitud) * std::sin(p.dec) +
               std::cos(latitud) * std::cos(p.dec) * std::cos(sidereoLocal - p.ar);
    return std::asin(std::fmax(-1.0, std::fmin(1.0, s)));
}

OrtoTransitoOcaso HallaOrtoOcaso(double jdInicio, double latitud, double h0, const PosicionEn& posicion,
                                 const SidereoEn& sidereo) {
    auto sobre = [&](double jd) { return Altura(posicion(jd), sidereo(jd), latitud) - h0; };
    auto horario = [&](double jd) { return AnguloHorario(posicion(jd), sidereo(jd)); };

    OrtoTransitoOcaso r;
    const double paso = 1.0 / MUESTRAS;
    double t0 = jdInicio, a0 = sobre(t0), H0 = horario(t0);
    bool siempreArriba = a0 > 0, siempreAbajo = a0 <= 0;
    for (int k = 1; k <= MUESTRAS; ++k) {
        // The last sample stops a hair short of the next midnight, which
        // belongs to the next day.
        double t1 = k == MUESTRAS ? jdInicio + 1 - SEGUNDO : jdInicio + k * paso;
        double a1 = sobre(t1), H1 = horario(t1);
        siempreArriba = siempreArriba && a1 > 0;
        siempreAbajo = siempreAbajo && a1 <= 0;
        if (a0 <= 0 && a1 > 0 && !r.orto.hay) r.orto = {true, Biseca(sobre, t0, t1, a0)};
        if (a0 > 0 && a1 <= 0 && !r.ocaso.hay) r.ocaso = {true, Biseca(sobre, t0, t1, a0)};
        // The upper transit: the hour angle passes 0 going up (its jump
        // from +pi to -pi is the lower transit and is left aside).
        if (H0 < 0 && H1 >= 0 && H1 - H0 < PI_COMPLETO && !r.transito.hay)
            r.transito = {true, Biseca(horario, t0, t1, H0)};
        t0 = t1, a0 = a1, H0 = H1;
    }
    if (siempreArriba) r.visibilidad = Visibilidad::Circumpolar;
    if (siempreAbajo) r.visibilidad = Visibilidad::NoSale;
    if (r.transito.hay) {
        double t = r.transito.jd;
        r.alturaTransito = Altura(posicion(t), sidereo(t), latitud);
    }
    return r;
}

}  // namespace vedrano
