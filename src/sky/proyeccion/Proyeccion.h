// Orthographic projection of sky directions onto the sky picture and back.
// The view frame's third axis points along the line of sight; X and Y are
// screen coordinates in the picture's user scale (one unit is the radius of
// the unit sphere at zoom 1), Z the depth (1 at the centre of view, 0 at
// 90 degrees from it, negative behind the observer).
#pragma once

#include "app/estado/Estado.h"
#include "app/estado/Vista.h"
#include "astro/Coordenadas.h"

namespace vedrano {

struct PuntoProyectado {
    float X = 0, Y = 0, Z = 0;
};

// Projects an equatorial catalogue direction (precessed first when the
// precession switch is on).
PuntoProyectado ProyectaPunto(const Estado& e, Vector3f v);

// The whole rotation from a frame to the view frame as one matrix, built
// once for a pass so that each object then costs nine products. The
// precise model's refraction is no rotation: then `h` carries the frame to
// the horizon, the lift is applied there, and `m` carries on to the view.
struct MatrizVista {
    double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    double h[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    double beta[3] = {0, 0, 0};  // the Earth's velocity over c: catalogue places are aberrated first
    bool refracta = false;
};

PuntoProyectado ProyectaRefractando(const MatrizVista& r, const Vector3f& v);

// The matrices of a pass: catalogue directions (precessed when the switch
// is on, as ProyectaPunto), directions of the date (as ProyectaHorizontal
// after EcuatorialAHorizontal) and horizon-frame directions (as
// ProyectaHorizontal).
struct VistasPasada {
    MatrizVista catalogo, fecha, horizonte;
};
VistasPasada PreparaVistas(const Estado& e);

inline PuntoProyectado Proyecta(const MatrizVista& r, const Vector3f& v) {
    if (r.refracta) return ProyectaRefractando(r, v);
    return {static_cast<float>(r.m[0][0] * v.x + r.m[0][1] * v.y + r.m[0][2] * v.z),
            static_cast<float>(r.m[1][0] * v.x + r.m[1][1] * v.y + r.m[1][2] * v.z),
            static_cast<float>(r.m[2][0] * v.x + r.m[2][1] * v.y + r.m[2][2] * v.z)};
}

// The place of the date of a catalogue direction, as the picture draws it
// before the atmosphere lifts it: precessed when the state asks; in the
// precise model also displaced by the annual aberration (up to 20").
void LugarDeFecha(const Estado& e, Vector3f& v);

// Brings the state's cached rotations (app/estado/Derivados.h) up to date
// with its fields, and in the precise model its instant: run before reading
// the sky object by object (the rendering pass, the object under the
// cursor), so that each object costs its products only.
void PreparaProyeccion(Estado& e);

// The precise model's Earth and rotation for the state's instant, computed
// once per instant and kept in the state.
const InstantePreciso& PreparaInstanteAlta(Estado& e);

// A direction of the date in the horizon frame (x west, y north, z zenith),
// lifted by the refraction in the precise model: the step of
// ProyectaPuntoFecha before the view's turn and tilt.
Vector3f HorizontalDeFecha(const Estado& e, const Vector3f& v);

// As ProyectaPunto, and leaves the direction of the date in v (LugarDeFecha).
PuntoProyectado ProyectaPuntoRef(const Estado& e, Vector3f& v);

// Projects a direction already referred to the equator and equinox of the
// date (the Sun, the Moon and the planets): the forward transform without
// its precession step, whatever the precession switch says.
PuntoProyectado ProyectaPuntoFecha(const Estado& e, const Vector3f& v);

// Julian years from J2000 to the state's instant over which the stars move
// by their proper motions: the precise model's; the classic one keeps the
// catalogue's places (0).
double AnosMovimientoPropio(const Estado& e);

// Projects a direction already in the horizon frame (x west, y north,
// z zenith).
PuntoProyectado ProyectaHorizontal(const Estado& e, const Vector3f& h);

// Inverse transform: the right ascension and declination (referred to the
// date), altitude and azimuth under a screen point; in the precise model
// with the refraction that the picture applies taken off, so that a star
// reads its true altitude. A point off the sphere,
// or one the arithmetic cannot undo, gives right ascension and declination
// 99; altitude and azimuth are then left as they were when not reached.
void PuntoACielo(const Estado& e, float X, float Y, double& ar, double& dec, float& altitud,
                 float& azimut);

// The user scale from the zoom and the orientation flag, and the depth
// threshold below which a point cannot fall inside the picture. With a
// picture size the scale extends on the longer side so that one unit stays
// the same number of pixels across and down; without one (or at 4:3) it
// spans exactly +-1.7333 x +-1.3 at zoom 1.
void AjustaEscala(Estado& e, int anchoPixeles = 0, int altoPixeles = 0);

// True when a projected point is drawn: only a depth strictly below the
// threshold hides it.
inline bool EsVisible(const Estado& e, const PuntoProyectado& p) { return !(p.Z < e.Umbral); }

}  // namespace vedrano
