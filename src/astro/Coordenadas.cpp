#include "astro/Coordenadas.h"

#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"

namespace vedrano {

double ArcoTangente(double y, double x) {
    double r = std::atan(Divide(y, x));
    if (x < 0) {
        r = r + PI;
    } else if (y < 0) {
        r = r + DOS_PI;
    }
    return r;
}

Vector3f AngulosAVector(double a, double d) {
    double c = std::fabs(std::cos(d));
    return {ASingle(-std::sin(a) * c), ASingle(std::sin(d)), ASingle(std::cos(a) * c)};
}

bool VectorAAngulos(const Vector3f& v, double& a, double& d) {
    // Any arithmetic error ends the conversion silently; what was already
    // written stays written.
    try {
        double y = v.y, z = v.z;
        d = std::atan(Divide(y, Sqr(1 - y * y)));
        double c = Divide(z, std::fabs(std::cos(d)));
        if (c >= 1) c = 0.99999999999999;
        if (c <= -1) c = -0.99999999999999;
        double r = std::atan(Divide(-c, Sqr(1 - c * c))) + MEDIO_PI;
        if (v.x > 0) r = DOS_PI - r;
        a = r;
        return true;
    } catch (const ErrorEjecucion&) {
        return false;
    }
}

void EclipticaAEcuatorial(double lambda, double& ar, double& dec) {
    constexpr double COS_E = 0.9175234, SIN_E = 0.3976818;
    ar = ArcoTangente(std::sin(lambda) * COS_E, std::cos(lambda));
    double s = std::sin(lambda) * SIN_E;
    dec = std::atan(Divide(s, Sqr(1 - s * s)));
}

RotacionHorizonte HallaRotacionHorizonte(double sidereo, double latitud) {
    RotacionHorizonte r;
    r.sidereo = sidereo;
    r.latitud = latitud;
    r.cs = std::cos(sidereo);
    r.ss = std::sin(sidereo);
    r.cf = std::cos(latitud);
    r.sf = std::sin(latitud);
    return r;
}

Vector3f EcuatorialAHorizontal(const RotacionHorizonte& r, const Vector3f& v) {
    // Each result is stored in 32 bits before the next step uses it.
    Vector3f h;
    h.x = static_cast<float>(v.x * r.cs + v.z * r.ss);
    float z1 = static_cast<float>(v.z * r.cs - v.x * r.ss);
    h.y = static_cast<float>(v.y * r.cf - z1 * r.sf);
    h.z = static_cast<float>(z1 * r.cf + v.y * r.sf);
    return h;
}

}  // namespace vedrano
