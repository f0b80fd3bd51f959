#include "astro/Precesion.h"

#include <cmath>

#include "app/base/Constantes.h"
#include "astro/PrecisionAlta.h"

namespace vedrano {

void HallaPrecesion(Estado& e) {
    double T = (e.FechaJuliana - 2415020.5) / 36524.22 - 1.0;
    double T2 = T * T;
    double T3 = T2 * T;
    double zeta = 2305.646 * T + 0.302 * T2 + 0.018 * T3;
    e.PrecZ = (zeta + 0.791 * T2 + 0.001 * T3) * SEGUNDO_ARCO;
    e.PrecTheta = (2003.829 * T - 0.426 * T2 - 0.042 * T3) * SEGUNDO_ARCO;
    e.PrecZeta = zeta * SEGUNDO_ARCO;
}

namespace {

// The matrix that carries a direction (x, y, z) of the program's frame to
// the date: right ascension advanced by zeta, a turn by theta toward the
// pole, and right ascension advanced by z. It is the closed form of
//   A = cos d0 sin(a0 + zeta)
//   B = cos th cos d0 cos(a0 + zeta) - sin th sin d0
//   C = sin th cos d0 cos(a0 + zeta) + cos th sin d0
//   a = atan2(A, B) + z,  d = asin C
// with cos d cos a = z, cos d sin a = -x and sin d = y.
// Carries a matrix of ERFA's axes (x to the equinox, y to 6h, z to the
// pole) into the program's frame, (x, y, z) = (-Y, Z, X), as r.p.
void AMarcoPrograma(const double m[3][3], DerivadosRotacion& r) {
    const int fila[3] = {1, 2, 0};
    const double signo[3] = {-1, 1, 1};
    // Column j of the usual frame comes from component (x, y, z)[col[j]] * csig[j].
    const int col[3] = {2, 0, 1};
    const double csig[3] = {1, -1, 1};
    for (int i = 0; i < 3; ++i)
        for (int k = 0; k < 3; ++k) r.p[i][k] = 0;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) r.p[i][col[j]] += signo[i] * m[fila[i]][j] * csig[j];
}

void ConstruyeMatriz(DerivadosRotacion& r, double zeta, double z, double theta) {
    double cz = std::cos(zeta), sz = std::sin(zeta);
    double cZ = std::cos(z), sZ = std::sin(z);
    double ct = std::cos(theta), st = std::sin(theta);
    // In the usual frame (X toward a = 0, Y toward a = 90 deg, Z to the pole):
    // M = Rz(z) * Ry(theta) * Rz(zeta).
    double rzeta[3][3] = {{cz, -sz, 0}, {sz, cz, 0}, {0, 0, 1}};
    double rth[3][3] = {{ct, 0, -st}, {0, 1, 0}, {st, 0, ct}};
    double rz[3][3] = {{cZ, -sZ, 0}, {sZ, cZ, 0}, {0, 0, 1}};
    auto producto = [](const double a[3][3], const double b[3][3], double c[3][3]) {
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) {
                c[i][j] = 0;
                for (int k = 0; k < 3; ++k) c[i][j] += a[i][k] * b[k][j];
            }
    };
    double t1[3][3], m[3][3];
    producto(rth, rzeta, t1);
    producto(rz, t1, m);
    AMarcoPrograma(m, r);
    r.alta = false;
    r.zeta = zeta;
    r.z = z;
    r.theta = theta;
    r.precesionLista = true;
}

}  // namespace

void PreparaPrecesion(const Estado& e) {
    DerivadosRotacion& r = e.Derivados;
    if (e.Pref.PrecisionAlta) {
        if (r.precesionLista && r.alta && r.zeta == e.FechaJuliana) return;
        double m[3][3];
        MatrizFecha(e.FechaJuliana, m);
        AMarcoPrograma(m, r);
        r.alta = true;
        r.zeta = e.FechaJuliana;
        r.precesionLista = true;
        return;
    }
    if (!r.precesionLista || r.alta || r.zeta != e.PrecZeta || r.z != e.PrecZ || r.theta != e.PrecTheta)
        ConstruyeMatriz(r, e.PrecZeta, e.PrecZ, e.PrecTheta);
}

bool PrecesaCatalogo(const Estado& e) { return e.Precesion || e.Pref.PrecisionAlta; }

void AplicaPrecesion(const Estado& e, Vector3f& v) {
    if (!PrecesaCatalogo(e)) return;
    PreparaPrecesion(e);
    const DerivadosRotacion& r = e.Derivados;
    double x = v.x, y = v.y, z = v.z;
    v.x = static_cast<float>(r.p[0][0] * x + r.p[0][1] * y + r.p[0][2] * z);
    v.y = static_cast<float>(r.p[1][0] * x + r.p[1][1] * y + r.p[1][2] * z);
    v.z = static_cast<float>(r.p[2][0] * x + r.p[2][1] * y + r.p[2][2] * z);
}

}  // namespace vedrano
