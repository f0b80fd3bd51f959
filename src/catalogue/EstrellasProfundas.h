// The deep star layer's catalogue: about 570,000 stars to V 10.5 beyond
// the program's own tables, from VDRDATP.DAT (written by
// tools/genera_profundas.py, whose header describes the format). The file
// is mapped into memory, not read: opening it costs only its zone table,
// and a star's page is brought in the first time a view needs it.
#pragma once
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "astro/Coordenadas.h"

namespace vedrano {

namespace plataforma {
class ArchivoMapeado;
}

// A cell of the sky and where its stars lie in the file, brightest first.
struct ZonaProfunda {
    Vector3f Centro, Este, Norte;  // unit vectors; a star is Centro + e Este + n Norte, normalised
    float Paso = 0;                // offset units to tangent-plane units
    float Radio = 0;               // angle from the centre to its farthest star, radians
    uint32_t Primera = 0, Cuenta = 0;
};

struct EstrellaProfunda {
    int16_t Este = 0, Norte = 0;
    uint8_t Veintavos = 0;  // V magnitude times 20
    float Magnitud() const { return Veintavos / 20.0f; }
};

class EstrellasProfundas {
public:
    EstrellasProfundas();
    ~EstrellasProfundas();

    // Opens the file (a UTF-8 path); false with a Spanish message in UTF-8
    // when it is missing or not a deep star file of this program (nothing
    // is then drawn).
    bool Abre(const std::string& ruta, std::string& mensaje);
    bool Abierto() const { return estrellas_ != nullptr; }
    const std::vector<ZonaProfunda>& Zonas() const { return zonas_; }
    std::size_t Cuenta() const { return cuenta_; }

    // Star i of the file (0 <= i < Cuenta()).
    EstrellaProfunda Estrella(std::size_t i) const {
        const unsigned char* p = estrellas_ + i * 5;
        EstrellaProfunda s;
        std::memcpy(&s.Este, p, 2);
        std::memcpy(&s.Norte, p + 2, 2);
        s.Veintavos = p[4];
        return s;
    }

private:
    std::unique_ptr<plataforma::ArchivoMapeado> archivo_;
    std::vector<ZonaProfunda> zonas_;
    const unsigned char* estrellas_ = nullptr;
    std::size_t cuenta_ = 0;
};

// The direction of a star of a zone, as a unit vector of the catalogue
// (inline: the layer asks it of every star it visits).
inline Vector3f DireccionProfunda(const ZonaProfunda& z, const EstrellaProfunda& s) {
    const float e = s.Este * z.Paso, n = s.Norte * z.Paso;
    const float k = 1.0f / std::sqrt(1.0f + e * e + n * n);
    return {(z.Centro.x + e * z.Este.x + n * z.Norte.x) * k, (z.Centro.y + e * z.Este.y + n * z.Norte.y) * k,
            (z.Centro.z + e * z.Este.z + n * z.Norte.z) * k};
}

// False when no star of zone `z` can lie within `campo` radians of the unit
// vector `eje` (both in the catalogue's frame): the zone is passed over.
inline bool ZonaCerca(const ZonaProfunda& z, const double (&eje)[3], double campo) {
    const double c = eje[0] * z.Centro.x + eje[1] * z.Centro.y + eje[2] * z.Centro.z;
    return std::acos(c < -1 ? -1 : c > 1 ? 1 : c) - z.Radio <= campo;
}

}  // namespace vedrano
