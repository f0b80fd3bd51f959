#include "astro/Precesion.h"

#include <cmath>

#include "app/base/Constantes.h"
#include "astro/PrecisionAlta.h"

namespace vedrano {

AngulosPrecesion HallaPrecesion(double jd) {
    double T = (jd - 2415020.5) / 36524.22 - 1.0;
    double T2 = T * T;
    double T3 = T2 * T;
    double zeta = 2305.646 * T + 0.302 * T2 + 0.018 * T3;
    AngulosPrecesion a;
    a.z = (zeta + 0.791 * T2 + 0.001 * T3) * SEGUNDO_ARCO;
    a.theta = (2003.829 * T - 0.426 * T2 - 0.042 * T3) * SEGUNDO_ARCO;
    a.zeta = zeta * SEGUNDO_ARCO;
    return a;
}

namespace {

// Carries a matrix of ERFA's axes (x to the equinox, y to 6h, z to the
// pole) into the program's frame, (x, y, z) = (-Y, Z, X).
Rotacion AMarcoPrograma(const double m[3][3]) {
    const int fila[3] = {1, 2, 0};
    const double signo[3] = {-1, 1, 1};
    // Column j of the usual frame comes from component (x, y, z)[col[j]] * csig[j].
    const int col[3] = {2, 0, 1};
    const double csig[3] = {1, -1, 1};
    Rotacion r;
    for (int i = 0; i < 3; ++i)
        for (int k = 0; k < 3; ++k) r.m[i][k] = 0;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) r.m[i][col[j]] += signo[i] * m[fila[i]][j] * csig[j];
    return r;
}

}  // namespace

Rotacion MatrizPrecesion(const AngulosPrecesion& a) {
    double cz = std::cos(a.zeta), sz = std::sin(a.zeta);
    double cZ = std::cos(a.z), sZ = std::sin(a.z);
    double ct = std::cos(a.theta), st = std::sin(a.theta);
    // In the usual frame (X toward a = 0, Y toward a = 90 deg, Z to the pole):
    // M = Rz(z) * Ry(theta) * Rz(zeta).
    double rzeta[3][3] = {{cz, -sz, 0}, {sz, cz, 0}, {0, 0, 1}};
    double rth[3][3] = {{ct, 0, -st}, {0, 1, 0}, {st, 0, ct}};
    double rz[3][3] = {{cZ, -sZ, 0}, {sZ, cZ, 0}, {0, 0, 1}};
    auto producto = [](const double x[3][3], const double y[3][3], double c[3][3]) {
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) {
                c[i][j] = 0;
                for (int k = 0; k < 3; ++k) c[i][j] += x[i][k] * y[k][j];
            }
    };
    double t1[3][3], m[3][3];
    producto(rth, rzeta, t1);
    producto(rz, t1, m);
    return AMarcoPrograma(m);
}

Rotacion MatrizFechaPrograma(double jd) {
    double m[3][3];
    MatrizFecha(jd, m);
    return AMarcoPrograma(m);
}

Vector3f Rota(const double m[3][3], const Vector3f& v) {
    double x = v.x, y = v.y, z = v.z;
    return {static_cast<float>(m[0][0] * x + m[0][1] * y + m[0][2] * z),
            static_cast<float>(m[1][0] * x + m[1][1] * y + m[1][2] * z),
            static_cast<float>(m[2][0] * x + m[2][1] * y + m[2][2] * z)};
}

}  // namespace vedrano
