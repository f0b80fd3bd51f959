// A sky direction as the catalogues and the projection keep it: a unit
// vector of three 32-bit floats, x = -sin a |cos d|, y = sin d,
// z = cos a |cos d| (y toward the pole of the system, z toward the origin
// of a, a increasing toward -x). The type alone, for the catalogue records;
// the operations on it are in astro/Coordenadas.h.
#pragma once

namespace vedrano {

struct Vector3f {
    float x = 0, y = 0, z = 0;
};

}  // namespace vedrano
