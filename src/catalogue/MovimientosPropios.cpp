#include "catalogue/MovimientosPropios.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "app/base/Constantes.h"
#include "app/base/Texto1252.h"
#include "catalogue/TrampaCarga.h"

namespace vedrano {

namespace {

constexpr std::size_t CABECERA = 20, LARGO = 8;
constexpr double MAS_A_RADIANES = PI_COMPLETO / (180.0 * 3600.0 * 1000.0);
// Barnard's star, the fastest, moves 10.4 arcseconds a year: a figure far
// beyond that is no proper motion but a damaged record.
constexpr double MAXIMO_MAS = 20000;

uint32_t Entero32(const std::string& b, std::size_t desde) {
    uint32_t v = 0;
    for (int k = 3; k >= 0; --k) v = (v << 8) | static_cast<unsigned char>(b[desde + static_cast<std::size_t>(k)]);
    return v;
}

float Simple(const std::string& b, std::size_t desde) {
    uint32_t bits = Entero32(b, desde);
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

// One table's motions from `desde`, as directions per year; false when a
// figure is not a proper motion.
template <class Registro>
bool Tabla(const std::string& b, std::size_t& desde, const std::vector<Registro>& registros, std::size_t n,
           std::vector<Vector3f>& mov) {
    mov.resize(n);
    for (std::size_t i = 0; i < n; ++i, desde += LARGO) {
        const double pmAR = Simple(b, desde), pmDec = Simple(b, desde + 4);
        if (!(std::fabs(pmAR) <= MAXIMO_MAS && std::fabs(pmDec) <= MAXIMO_MAS)) return false;
        mov[i] = MovimientoAnual(registros[i].Direccion, pmAR, pmDec);
    }
    return true;
}

bool Lee(const std::string& b, Catalogos& c) {
    const std::size_t cuentas[3] = {N_ESTRELLAS, N_ESTRELLAS_NOMBRE, N_FIGURAS};
    if (b.size() != CABECERA + LARGO * (cuentas[0] + cuentas[1] + cuentas[2])) return false;
    if (b.compare(0, 4, "VDRN") != 0 || b[4] != 1 || b[5] != 0) return false;
    for (std::size_t k = 0; k < 3; ++k)
        if (Entero32(b, 8 + 4 * k) != cuentas[k]) return false;
    std::size_t desde = CABECERA;
    return Tabla(b, desde, c.TablaEstrellas, cuentas[0], c.MovEstrellas) &&
           Tabla(b, desde, c.TablaEstrellasNombre, cuentas[1], c.MovEstrellasNombre) &&
           Tabla(b, desde, c.TablaFiguras, cuentas[2], c.MovFiguras);
}

}  // namespace

Vector3f MovimientoAnual(const Vector3f& v, double pmAR, double pmDec) {
    // East is d(v)/d(alpha) / cos(delta) = (-cos a, 0, -sin a) and north
    // d(v)/d(delta), both written with v's own components.
    const double x = v.x, y = v.y, z = v.z, cd = std::sqrt(x * x + z * z);
    if (cd < 1e-9) return {};
    const double e = pmAR * MAS_A_RADIANES, n = pmDec * MAS_A_RADIANES;
    return {static_cast<float>(-z / cd * e - x / cd * y * n), static_cast<float>(cd * n),
            static_cast<float>(x / cd * e - z / cd * y * n)};
}

Vector3f MueveDireccion(const Vector3f& v, const Vector3f& m, double anos) {
    const double x = v.x + anos * m.x, y = v.y + anos * m.y, z = v.z + anos * m.z;
    const double r = std::sqrt(x * x + y * y + z * z);
    return {static_cast<float>(x / r), static_cast<float>(y / r), static_cast<float>(z / r)};
}

void CargaMovimientos(const std::string& dirDatos, Catalogos& c, InterfazMensajes& n) {
    c.MovEstrellas.clear();
    c.MovEstrellasNombre.clear();
    c.MovFiguras.clear();
    const std::string ruta = (std::filesystem::path(dirDatos) / "VDRDATN.DAT").string();
    std::error_code ec;
    if (!std::filesystem::exists(ruta, ec)) return;
    std::string bytes;
    const auto tamano = std::filesystem::file_size(ruta, ec);
    // Only a file of the expected size is read whole; any other is damaged.
    if (!ec && tamano == CABECERA + LARGO * (N_ESTRELLAS + N_ESTRELLAS_NOMBRE + N_FIGURAS)) {
        std::ifstream f(std::filesystem::path(ruta), std::ios::binary);
        bytes.resize(static_cast<std::size_t>(tamano));
        if (!f.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) bytes.clear();
    }
    if (Lee(bytes, c)) return;
    c.MovEstrellas.clear();
    c.MovEstrellasNombre.clear();
    c.MovFiguras.clear();
    n.Avisa(TextoConArchivo(A1252("El fichero de movimientos propios está dañado: las estrellas se dibujan "
                                  "en sus lugares de J2000."),
                            ruta),
            TITULO_CARGA);
}

}  // namespace vedrano
