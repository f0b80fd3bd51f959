#include "sky/apunta/Apunta.h"

#include <algorithm>
#include <cmath>

#include "app/base/Constantes.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Tiempo.h"
#include "astro/PrecisionAlta.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

namespace {

// Sidereal days in one mean solar day (IAU 1982).
constexpr double DIAS_SIDEREOS = 1.00273790935;

}  // namespace

TextosCursor InformeCursor(Estado& e, float X, float Y) {
    double ar = 0, dec = 0;
    PuntoACielo(e, X, Y, ar, dec, e.CursorAltitud, e.CursorAzimut);
    if (ar == 99 && dec == 99) return {" ", " ", " ", " "};
    return {"A.R. = " + TextoHoras(static_cast<float>(ar)), "DEC. = " + TextoSexagesimal(dec),
            "Altitud = " + TextoSexagesimal(e.CursorAltitud), "Azimut = " + TextoSexagesimal(e.CursorAzimut)};
}

bool ObjetivoVisible(const Estado& e) {
    const double phi = e.Latitud, delta = e.ObjetivoDEC;
    return phi - MEDIO_PI <= delta && delta <= phi + MEDIO_PI;
}

void LlevaObjetivoAlMeridiano(Estado& e, const TablaPlanetas& planetas) {
    const double phi = e.Latitud, delta = e.ObjetivoDEC;
    // The step is in solar days, so the target lands on the meridian only
    // approximately; the one-shot correction makes up part of the difference.
    // The precise model aims where it draws: a step in sidereal days.
    double S = e.TiempoSidereo;
    if (S > e.ObjetivoAR) e.ObjetivoAR += DOS_PI;
    double dias = (e.ObjetivoAR - S) / DOS_PI;
    if (e.Pref.PrecisionAlta) dias /= DIAS_SIDEREOS;
    double jd = e.FechaJuliana + dias;
    if (e.CorreccionLuna) {
        jd += dias * (11.5 * GRADO) / DOS_PI;
        e.CorreccionLuna = false;
    }
    FijaFechaJuliana(e, planetas, jd);

    double elevacion = delta - phi + MEDIO_PI;
    if (elevacion > MEDIO_PI) elevacion = PI - elevacion;
    // The precise model draws the target lifted by the atmosphere.
    if (e.Pref.PrecisionAlta) elevacion = std::min(MEDIO_PI, elevacion + Refraccion(elevacion));
    FijaVista(e, delta < phi ? PI : 0.0, elevacion);
    e.CentrandoObjeto = false;
    e.Centrado = true;
}

bool ObjetivoEnPunto(Estado& e, float X, float Y) {
    double ar = 0, dec = 0;
    PuntoACielo(e, X, Y, ar, dec, e.CursorAltitud, e.CursorAzimut);
    if (ar == 99 && dec == 99) return false;
    e.ObjetivoAR = ar;
    e.ObjetivoDEC = dec;
    return true;
}

bool HorizonteEn(const Estado& e, float X, float Y, PuntoHorizonte& h) {
    double ar = 0, dec = 0;
    float alt = 0, az = 0;
    PuntoACielo(e, X, Y, ar, dec, alt, az);
    if (ar == 99 && dec == 99) return false;
    h = {alt, az};
    return true;
}

bool LlevaPunto(Estado& e, const PuntoHorizonte& h, float X, float Y) {
    // The place under (X, Y) moves with the view almost one to one in both
    // angles; three corrections bring it within a fraction of a pixel.
    const double direccion = e.Direccion, elevacion = e.Elevacion;
    for (int vuelta = 0; vuelta < 3; ++vuelta) {
        PuntoHorizonte ahora;
        if (!HorizonteEn(e, X, Y, ahora)) {
            if (vuelta > 0) break;
            e.Direccion = direccion, e.Elevacion = elevacion;
            return false;
        }
        const double dAz = std::remainder(h.azimut - ahora.azimut, DOS_PI);
        const double dAlt = h.altitud - ahora.altitud;
        if (std::fabs(dAz) < 1e-7 && std::fabs(dAlt) < 1e-7) break;
        double d = std::fmod(e.Direccion + dAz, DOS_PI);
        if (d < 0) d += DOS_PI;
        FijaVista(e, d, std::clamp(e.Elevacion + dAlt, 0.0, MEDIO_PI));
    }
    return true;
}

float ZoomTrasPasos(float zoom, int pasos) {
    return std::clamp(zoom + 0.5f * static_cast<float>(pasos), 1.0f, 15.0f);
}

}  // namespace vedrano
