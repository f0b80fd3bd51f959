#include "app/estado/Rotaciones.h"

#include <algorithm>

#include "astro/Precesion.h"

namespace vedrano {

void HallaPrecesion(Estado& e) {
    AngulosPrecesion a = HallaPrecesion(e.FechaJuliana);
    const LlaveEstado llave;
    e.PrecZeta.Fija(llave, a.zeta);
    e.PrecZ.Fija(llave, a.z);
    e.PrecTheta.Fija(llave, a.theta);
}

bool PrecesaCatalogo(const Estado& e) { return e.Precesion || e.Pref.PrecisionAlta; }

namespace {

// The precise model's matrix for the instant, or the classic one for the
// state's angles.
Rotacion MatrizDeFecha(const Estado& e) {
    if (e.Pref.PrecisionAlta) return MatrizFechaPrograma(e.FechaJuliana);
    return MatrizPrecesion({e.PrecZeta, e.PrecZ, e.PrecTheta});
}

}  // namespace

bool PrecesionVigente(const DerivadosRotacion& r, const Estado& e) {
    if (!r.precesionLista || r.alta != e.Pref.PrecisionAlta) return false;
    if (r.alta) return r.zeta == e.FechaJuliana;
    return r.zeta == e.PrecZeta && r.z == e.PrecZ && r.theta == e.PrecTheta;
}

void LlenaPrecesion(DerivadosRotacion& r, const Estado& e) {
    const Rotacion m = MatrizDeFecha(e);
    std::copy(&m.m[0][0], &m.m[0][0] + 9, &r.p[0][0]);
    r.alta = e.Pref.PrecisionAlta;
    r.zeta = r.alta ? e.FechaJuliana : e.PrecZeta;
    r.z = e.PrecZ;
    r.theta = e.PrecTheta;
    r.precesionLista = true;
}

void PreparaPrecesion(Estado& e) {
    if (!PrecesionVigente(e.Derivados, e)) LlenaPrecesion(e.Derivados, e);
}

void AplicaPrecesion(const Estado& e, Vector3f& v) {
    if (!PrecesaCatalogo(e)) return;
    if (PrecesionVigente(e.Derivados, e))
        v = Rota(e.Derivados.p, v);
    else
        v = Rota(MatrizDeFecha(e).m, v);
}

bool HorizonteVigente(const DerivadosRotacion& r, const Estado& e) {
    return r.horizonteListo && r.horizonte.sidereo == e.TiempoSidereo && r.horizonte.latitud == e.Latitud;
}

void LlenaHorizonte(DerivadosRotacion& r, const Estado& e) {
    r.horizonte = HallaRotacionHorizonte(e.TiempoSidereo, e.Latitud);
    r.horizonteListo = true;
}

void PreparaHorizonte(Estado& e) {
    if (!HorizonteVigente(e.Derivados, e)) LlenaHorizonte(e.Derivados, e);
}

Vector3f EcuatorialAHorizontal(const Estado& e, const Vector3f& v) {
    if (HorizonteVigente(e.Derivados, e)) return EcuatorialAHorizontal(e.Derivados.horizonte, v);
    return EcuatorialAHorizontal(HallaRotacionHorizonte(e.TiempoSidereo, e.Latitud), v);
}

}  // namespace vedrano
