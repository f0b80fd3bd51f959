// The values the projection derives from the state's fields for every
// object: the sines, cosines and matrices of its rotations, and the precise
// model's Earth and rotation of the instant. They are a cache with keys,
// never a source: each part remembers the fields it was made from.
//
// They are written only through a writable state: the Prepara... routines
// (app/estado/Rotaciones.h, sky/proyeccion/Proyeccion.h) bring them up to
// date, and the rendering pass and the window run those before they read
// the sky object by object. A reader that holds a const state uses a part
// only while its keys still match the fields; otherwise it computes the
// same values on the spot without storing them (correct, only slower), so
// what is drawn or reported never depends on whether the cache was ready.
#pragma once

#include "astro/Coordenadas.h"
#include "astro/PrecisionAlta.h"

namespace vedrano {

struct DerivadosRotacion {
    double zeta = 0, z = 0, theta = 0;  // angles of the cached precession matrix
    bool precesionLista = false;
    bool alta = false;  // the cached matrix is the precise model's, for date `zeta`
    double p[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    bool horizonteListo = false;
    RotacionHorizonte horizonte;
    double giro = 0, elevacion = 0;  // angles of the cached view rotation
    bool vistaLista = false;
    double cc = 1, sc = 0, cd = 1, sd = 0;
    // The whole chain, catalogue direction to view frame, as one matrix.
    bool completaLista = false, conPrecesion = false;
    double claves[8] = {};
    double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

}  // namespace vedrano
