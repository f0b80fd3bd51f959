#include "sky/proyeccion/Proyeccion.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "app/estado/Rotaciones.h"
#include "astro/PrecisionAlta.h"

namespace vedrano {

namespace {

// The constant added to arc cosines of the inverse; it is not pi/2 (its
// sixth decimal differs) and shifts every reported angle by ~3.1e-6 rad.
constexpr double CUARTO_INVERSO = 1.570793267949;

// The sines and cosines of the turn and the tilt of the view.
bool VistaVigente(const DerivadosRotacion& r, const Estado& e) {
    return r.vistaLista && r.giro == e.DireccionGirada && r.elevacion == e.Elevacion;
}

void LlenaVista(DerivadosRotacion& r, const Estado& e) {
    r.giro = e.DireccionGirada;
    r.elevacion = e.Elevacion;
    double D = MEDIO_PI - e.Elevacion;
    r.cc = std::cos(r.giro);
    r.sc = std::sin(r.giro);
    r.cd = std::cos(D);
    r.sd = std::sin(D);
    r.vistaLista = true;
}

PuntoProyectado ProyectaHorizontal(const DerivadosRotacion& r, const Vector3f& h) {
    double X3 = h.x * r.cc + h.y * r.sc;
    double Y3 = h.y * r.cc - h.x * r.sc;
    double Y4 = Y3 * r.cd + h.z * r.sd;
    double Z4 = h.z * r.cd - Y3 * r.sd;
    return {static_cast<float>(X3), static_cast<float>(Y4), static_cast<float>(Z4)};
}

}  // namespace

PuntoProyectado ProyectaHorizontal(const Estado& e, const Vector3f& h) {
    if (VistaVigente(e.Derivados, e)) return ProyectaHorizontal(e.Derivados, h);
    DerivadosRotacion r;
    LlenaVista(r, e);
    return ProyectaHorizontal(r, h);
}

namespace {

// The lift against the sine of the true altitude, tabulated once: the pass
// lifts every object it draws, and reading the table costs a fraction of
// the formula's arc tangent, tangent, sine and cosine. Read linearly it
// errs by less than 0.001'. Below -3 degrees there is no lift.
class TablaRefraccion {
public:
    TablaRefraccion() {
        for (int i = 0; i <= N; ++i) valores_[i] = Refraccion(std::asin(std::min(1.0, DESDE + i * PASO)));
    }
    double operator()(double z) const {
        double u = (z - DESDE) / PASO;
        if (!(u > 0)) return 0;
        if (u >= N) return valores_[N];  // a damaged direction may lie far off the sphere
        int i = static_cast<int>(u);
        double f = u - i;
        return valores_[i] + f * (valores_[i + 1] - valores_[i]);
    }

private:
    static constexpr int N = 4096;
    static constexpr double DESDE = -0.0541, PASO = (1 - DESDE) / N;  // sin(-3.1 degrees)
    double valores_[N + 1];
};

// The precise model lifts every direction by the atmosphere's refraction
// (x west, y north, z zenith): a turn by the lift in the vertical plane.
void Refracta(Vector3f& h) {
    static const TablaRefraccion tabla;
    const double z = h.z, horizontal = std::sqrt(double{h.x} * h.x + double{h.y} * h.y);
    if (horizontal < 1e-9) return;
    const double r = tabla(z);
    if (r == 0) return;
    const double c = 1 - r * r / 2, s = r - r * r * r / 6;  // the lift is under 0.7 degree
    const double k = (horizontal * c - z * s) / horizontal;
    h = {static_cast<float>(h.x * k), static_cast<float>(h.y * k), static_cast<float>(z * c + horizontal * s)};
}

// The inverse: the true altitude whose lifted place is the apparent one.
// The lift changes slowly with the altitude (at most a third as fast), so
// the plain iteration converges.
void QuitaRefraccion(double& x, double& y, double& z) {
    double horizontal = std::hypot(x, y);
    if (horizontal < 1e-9) return;
    const double aparente = std::atan2(z, horizontal);
    double verdadera = aparente;
    for (int i = 0; i < 40; ++i) {
        double siguiente = aparente - Refraccion(verdadera);
        bool quieta = std::fabs(siguiente - verdadera) < 1e-14;
        verdadera = siguiente;
        if (quieta) break;
    }
    double k = std::cos(verdadera) / horizontal;
    x *= k, y *= k, z = std::sin(verdadera);
}

}  // namespace

namespace {

bool InstanteVigente(const Estado& e) { return e.InstanteAlta.tt != 0 && e.InstanteAlta.jdUT == e.FechaJuliana; }

// The Earth's barycentric velocity over the speed of light, in the
// program's axes (x = -Y, y = Z, z = X of ERFA's).
void Beta(const InstantePreciso& i, double beta[3]) {
    constexpr double C_UA_DIA = 173.1446326846693;
    const double(&v)[3] = i.tierra[1];
    beta[0] = -v[1] / C_UA_DIA, beta[1] = v[2] / C_UA_DIA, beta[2] = v[0] / C_UA_DIA;
}

void Beta(const Estado& e, double beta[3]) {
    if (InstanteVigente(e))
        Beta(e.InstanteAlta, beta);
    else
        Beta(PreparaInstante(e.FechaJuliana), beta);
}

// Annual aberration to first order (the second order is under 0.01"): the
// direction leans toward the Earth's motion.
Vector3f Aberra(const double beta[3], const Vector3f& v) {
    const double p = v.x * beta[0] + v.y * beta[1] + v.z * beta[2];
    return {static_cast<float>(v.x + beta[0] - p * v.x), static_cast<float>(v.y + beta[1] - p * v.y),
            static_cast<float>(v.z + beta[2] - p * v.z)};
}

}  // namespace

const InstantePreciso& PreparaInstanteAlta(Estado& e) {
    if (!InstanteVigente(e)) e.InstanteAlta = PreparaInstante(e.FechaJuliana);
    return e.InstanteAlta;
}

void LugarDeFecha(const Estado& e, Vector3f& v) {
    if (e.Pref.PrecisionAlta) {
        double beta[3];
        Beta(e, beta);
        v = Aberra(beta, v);
    }
    AplicaPrecesion(e, v);
}

PuntoProyectado ProyectaPuntoRef(const Estado& e, Vector3f& v) {
    LugarDeFecha(e, v);
    return ProyectaPuntoFecha(e, v);
}

// The bodies' places are of the date already: the Earth's record runs on the
// tropical year, as the sidereal time needs, and the table holds mean
// longitudes of date. Precessing them once more drew the Sun 0.7 degrees off
// near 2000 and tens of degrees off in antiquity, so they skip that step.
PuntoProyectado ProyectaPuntoFecha(const Estado& e, const Vector3f& v) {
    return ProyectaHorizontal(e, HorizontalDeFecha(e, v));
}

Vector3f HorizontalDeFecha(const Estado& e, const Vector3f& v) {
    Vector3f h = EcuatorialAHorizontal(e, v);
    if (e.Pref.PrecisionAlta) Refracta(h);
    return h;
}

namespace {

// The rotation chain applied to the three unit vectors: columns of the
// matrix from a frame to the view frame (or only to the horizon frame).
// desde 0 starts at catalogue directions (with precession when asked), 1 at
// directions of the date, 2 at horizon directions.
void ConstruyeMatriz(const DerivadosRotacion& r, int desde, bool precesion, double m[3][3],
                     bool hastaHorizonte = false) {
    for (int j = 0; j < 3; ++j) {
        double v[3] = {0, 0, 0};
        v[j] = 1;
        if (precesion) {
            double w[3];
            for (int i = 0; i < 3; ++i) w[i] = r.p[i][0] * v[0] + r.p[i][1] * v[1] + r.p[i][2] * v[2];
            v[0] = w[0], v[1] = w[1], v[2] = w[2];
        }
        double X1 = v[0], Y2 = v[1], Z2 = v[2];
        if (desde < 2) {
            const RotacionHorizonte& h = r.horizonte;
            X1 = v[0] * h.cs + v[2] * h.ss;
            double Z1 = v[2] * h.cs - v[0] * h.ss;
            Y2 = v[1] * h.cf - Z1 * h.sf;
            Z2 = Z1 * h.cf + v[1] * h.sf;
        }
        if (hastaHorizonte) {
            m[0][j] = X1, m[1][j] = Y2, m[2][j] = Z2;
            continue;
        }
        double X3 = X1 * r.cc + Y2 * r.sc;
        double Y3 = Y2 * r.cc - X1 * r.sc;
        m[0][j] = X3;
        m[1][j] = Y3 * r.cd + Z2 * r.sd;
        m[2][j] = Z2 * r.cd - Y3 * r.sd;
    }
}

// The chain precession - sidereal rotation - latitude - turn - tilt as one
// matrix, keyed by all of its angles: the stars then cost nine products
// each.
std::array<double, 8> ClavesCadena(const Estado& e) {
    return {e.PrecZeta, e.PrecZ, e.PrecTheta, e.TiempoSidereo, e.Latitud, e.DireccionGirada,
            e.Elevacion, e.Pref.PrecisionAlta ? e.FechaJuliana : -1.0};
}

bool CadenaVigente(const DerivadosRotacion& r, const Estado& e, bool precesa) {
    const std::array<double, 8> claves = ClavesCadena(e);
    bool igual = r.completaLista && r.conPrecesion == precesa;
    for (int i = 0; i < 8 && igual; ++i) igual = r.claves[i] == claves[i];
    return igual;
}

// Every part of `r` for the state: those out of date are computed again,
// then the chain.
void LlenaCadena(DerivadosRotacion& r, const Estado& e, bool precesa) {
    if (precesa && !PrecesionVigente(r, e)) LlenaPrecesion(r, e);
    if (!HorizonteVigente(r, e)) LlenaHorizonte(r, e);
    if (!VistaVigente(r, e)) LlenaVista(r, e);
    ConstruyeMatriz(r, 0, precesa, r.m);
    const std::array<double, 8> claves = ClavesCadena(e);
    std::copy(claves.begin(), claves.end(), r.claves);
    r.conPrecesion = precesa;
    r.completaLista = true;
}

// The rotations of a const state: its cache when every part is up to date,
// otherwise the same values computed into `local`.
const DerivadosRotacion& Rotaciones(const Estado& e, DerivadosRotacion& local) {
    const DerivadosRotacion& r = e.Derivados;
    const bool precesa = PrecesaCatalogo(e);
    if (CadenaVigente(r, e, precesa) && (!precesa || PrecesionVigente(r, e)) && HorizonteVigente(r, e) &&
        VistaVigente(r, e))
        return r;
    LlenaCadena(local, e, precesa);
    return local;
}

PuntoProyectado Por(const double m[3][3], const Vector3f& v) {
    return {static_cast<float>(m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z),
            static_cast<float>(m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z),
            static_cast<float>(m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z)};
}

// ProyectaPunto when the state's chain is out of date.
PuntoProyectado ProyectaSinCadena(const Estado& e, const Vector3f& v) {
    DerivadosRotacion local;
    LlenaCadena(local, e, PrecesaCatalogo(e));
    return Por(local.m, v);
}

}  // namespace

void PreparaProyeccion(Estado& e) {
    const bool precesa = PrecesaCatalogo(e);
    if (precesa) PreparaPrecesion(e);
    PreparaHorizonte(e);
    DerivadosRotacion& r = e.Derivados;
    if (!VistaVigente(r, e)) LlenaVista(r, e);
    if (!CadenaVigente(r, e, precesa)) LlenaCadena(r, e, precesa);
    if (e.Pref.PrecisionAlta) PreparaInstanteAlta(e);
}

PuntoProyectado ProyectaPunto(const Estado& e, Vector3f v) {
    // Refraction is no rotation: the precise model goes step by step.
    if (e.Pref.PrecisionAlta) return ProyectaPuntoRef(e, v);
    const DerivadosRotacion& r = e.Derivados;
    if (!CadenaVigente(r, e, PrecesaCatalogo(e))) return ProyectaSinCadena(e, v);
    return Por(r.m, v);
}

VistasPasada PreparaVistas(const Estado& e) {
    VistasPasada v;
    DerivadosRotacion local;
    const DerivadosRotacion& r = Rotaciones(e, local);
    std::copy(&r.m[0][0], &r.m[0][0] + 9, &v.catalogo.m[0][0]);
    ConstruyeMatriz(r, 1, false, v.fecha.m);
    ConstruyeMatriz(r, 2, false, v.horizonte.m);
    if (e.Pref.PrecisionAlta) {
        // Everything in the sky is lifted by the atmosphere; the horizon is not.
        ConstruyeMatriz(r, 0, PrecesaCatalogo(e), v.catalogo.h, true);
        Beta(e, v.catalogo.beta);
        ConstruyeMatriz(r, 1, false, v.fecha.h, true);
        std::copy(&v.horizonte.m[0][0], &v.horizonte.m[0][0] + 9, &v.catalogo.m[0][0]);
        std::copy(&v.horizonte.m[0][0], &v.horizonte.m[0][0] + 9, &v.fecha.m[0][0]);
        v.catalogo.refracta = v.fecha.refracta = true;
    }
    return v;
}

PuntoProyectado ProyectaRefractando(const MatrizVista& r, const Vector3f& v) {
    const PuntoProyectado a = Por(r.h, Aberra(r.beta, v));
    Vector3f h{a.X, a.Y, a.Z};
    Refracta(h);
    return Por(r.m, h);
}

double AnosMovimientoPropio(const Estado& e) {
    return e.Pref.PrecisionAlta ? (e.FechaJuliana - 2451545.0) / 365.25 : 0.0;
}

void PuntoACielo(const Estado& e, float X, float Y, double& ar, double& dec, float& altitud,
                 float& azimut) {
    try {
        double x0 = X, y0 = Y;
        if (x0 * x0 + y0 * y0 > 1) {
            ar = 99;
            dec = 99;
            return;
        }
        double Z = Sqr(1 - x0 * x0 - y0 * y0);
        double D = DOS_PI - (MEDIO_PI - e.Elevacion);
        double C = DOS_PI - e.DireccionGirada;
        double Y3 = y0 * std::cos(D) + Z * std::sin(D);
        double Z2 = Z * std::cos(D) - y0 * std::sin(D);
        double X1 = x0 * std::cos(C) + Y3 * std::sin(C);
        double Y2 = Y3 * std::cos(C) - x0 * std::sin(C);
        if (e.Pref.PrecisionAlta) QuitaRefraccion(X1, Y2, Z2);

        altitud = static_cast<float>(std::atan(Divide(Z2, Sqr(1 - Z2 * Z2))));
        double h = Sqr(X1 * X1 + Y2 * Y2);
        double c = Divide(Y2, h);
        double az;
        if (c == 1) {
            az = 0;
        } else if (c == -1) {
            az = PI_SIMPLE;
        } else {
            az = std::atan(Divide(-c, Sqr(1 - c * c))) + CUARTO_INVERSO;
        }
        if (X1 > 0) az = DOS_PI - az;
        azimut = static_cast<float>(az);

        double F = DOS_PI - e.Latitud;
        double Y1 = Y2 * std::cos(F) - Z2 * std::sin(F);
        double Z1 = Z2 * std::cos(F) + Y2 * std::sin(F);
        double S = DOS_PI - e.TiempoSidereo;
        double x = X1 * std::cos(S) + Z1 * std::sin(S);
        double z = Z1 * std::cos(S) - X1 * std::sin(S);
        double y = Y1;

        double d = std::atan(Divide(y, Sqr(1 - y * y)));
        double cc = Divide(z, std::fabs(std::cos(d)));
        double a = std::atan(Divide(-cc, Sqr(1 - cc * cc))) + CUARTO_INVERSO;
        if (x > 0) a = DOS_PI - a;
        dec = d;
        ar = a;
    } catch (const ErrorEjecucion&) {
        ar = 99;
        dec = 99;
    }
}

}  // namespace vedrano
