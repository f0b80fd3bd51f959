#include "app/estado/Rotaciones.h"

#include <algorithm>

#include "astro/Precesion.h"

namespace vedrano {

void HallaPrecesion(Estado& e) {
    AngulosPrecesion a = HallaPrecesion(e.FechaJuliana);
    e.PrecZeta = a.zeta;
    e.PrecZ = a.z;
    e.PrecTheta = a.theta;
}

bool PrecesaCatalogo(const Estado& e) { return e.Precesion || e.Pref.PrecisionAlta; }

namespace {

void GuardaMatriz(DerivadosRotacion& r, const Rotacion& m) { std::copy(&m.m[0][0], &m.m[0][0] + 9, &r.p[0][0]); }

}  // namespace

void PreparaPrecesion(const Estado& e) {
    DerivadosRotacion& r = e.Derivados;
    if (e.Pref.PrecisionAlta) {
        if (r.precesionLista && r.alta && r.zeta == e.FechaJuliana) return;
        GuardaMatriz(r, MatrizFechaPrograma(e.FechaJuliana));
        r.alta = true;
        r.zeta = e.FechaJuliana;
        r.precesionLista = true;
        return;
    }
    if (r.precesionLista && !r.alta && r.zeta == e.PrecZeta && r.z == e.PrecZ && r.theta == e.PrecTheta) return;
    GuardaMatriz(r, MatrizPrecesion({e.PrecZeta, e.PrecZ, e.PrecTheta}));
    r.alta = false;
    r.zeta = e.PrecZeta;
    r.z = e.PrecZ;
    r.theta = e.PrecTheta;
    r.precesionLista = true;
}

void AplicaPrecesion(const Estado& e, Vector3f& v) {
    if (!PrecesaCatalogo(e)) return;
    PreparaPrecesion(e);
    v = Rota(e.Derivados.p, v);
}

void PreparaHorizonte(const Estado& e) {
    DerivadosRotacion& r = e.Derivados;
    if (r.horizonteListo && r.horizonte.sidereo == e.TiempoSidereo && r.horizonte.latitud == e.Latitud) return;
    r.horizonte = HallaRotacionHorizonte(e.TiempoSidereo, e.Latitud);
    r.horizonteListo = true;
}

Vector3f EcuatorialAHorizontal(const Estado& e, const Vector3f& v) {
    PreparaHorizonte(e);
    return EcuatorialAHorizontal(e.Derivados.horizonte, v);
}

}  // namespace vedrano
