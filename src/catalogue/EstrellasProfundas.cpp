#include "catalogue/EstrellasProfundas.h"

#include <cmath>

#include "platform/ArchivoMapeado.h"

namespace vedrano {

namespace {

constexpr std::size_t CABECERA = 16, ZONA = 52, ESTRELLA = 5;

uint32_t Entero32(const unsigned char* p) {
    uint32_t v;
    std::memcpy(&v, p, 4);
    return v;  // the file is little-endian, as every machine this runs on
}

float Real32(const unsigned char* p) {
    float v;
    std::memcpy(&v, p, 4);
    return v;
}

bool Finito(const Vector3f& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

}  // namespace

EstrellasProfundas::EstrellasProfundas() = default;
EstrellasProfundas::~EstrellasProfundas() = default;

bool EstrellasProfundas::Abre(const std::string& ruta, std::string& mensaje) {
    zonas_.clear();
    estrellas_ = nullptr;
    cuenta_ = 0;
    auto archivo = std::make_unique<plataforma::ArchivoMapeado>();
    std::string error;
    if (!archivo->Abre(ruta, error)) {
        mensaje = "No se pueden leer las estrellas débiles de " + ruta + ": " + error;
        return false;
    }
    const unsigned char* d = archivo->Datos();
    const std::size_t tam = archivo->Tamano();
    auto mal = [&](const char* por) {
        mensaje = "El fichero de estrellas débiles " + ruta + " no es válido: " + por;
        return false;
    };
    if (tam < CABECERA || std::memcmp(d, "VDRP", 4) != 0 || d[4] != 1 || d[5] != 0)
        return mal("no empieza como un fichero de estrellas de este programa");
    const std::size_t nZonas = Entero32(d + 8), nEstrellas = Entero32(d + 12);
    if (nZonas > 100000 || nEstrellas > 50000000 || tam != CABECERA + nZonas * ZONA + nEstrellas * ESTRELLA)
        return mal("su tamaño no cuadra con sus cuentas");
    std::vector<ZonaProfunda> zonas(nZonas);
    std::size_t siguiente = 0;
    for (std::size_t i = 0; i < nZonas; ++i) {
        const unsigned char* p = d + CABECERA + i * ZONA;
        ZonaProfunda& z = zonas[i];
        z.Centro = {Real32(p), Real32(p + 4), Real32(p + 8)};
        z.Este = {Real32(p + 12), Real32(p + 16), Real32(p + 20)};
        z.Norte = {Real32(p + 24), Real32(p + 28), Real32(p + 32)};
        z.Paso = Real32(p + 36);
        z.Radio = Real32(p + 40);
        z.Primera = Entero32(p + 44);
        z.Cuenta = Entero32(p + 48);
        if (z.Primera != siguiente || z.Cuenta > nEstrellas - siguiente || !Finito(z.Centro) || !Finito(z.Este) ||
            !Finito(z.Norte) || !std::isfinite(z.Paso) || !std::isfinite(z.Radio) || z.Radio < 0)
            return mal("una zona se sale de sus estrellas");
        siguiente += z.Cuenta;
    }
    if (siguiente != nEstrellas) return mal("las zonas no cubren sus estrellas");
    zonas_ = std::move(zonas);
    estrellas_ = d + CABECERA + nZonas * ZONA;
    cuenta_ = nEstrellas;
    archivo_ = std::move(archivo);
    return true;
}

}  // namespace vedrano
