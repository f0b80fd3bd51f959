#include "sky/apunta/Apunta.h"

#include "app/Constantes.h"
#include "app/Texto1252.h"
#include "astro/TextosAngulo.h"
#include "astro/Tiempo.h"
#include "config/EscribeConfiguracion.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

TextosCursor InformeCursor(Estado& e, float X, float Y) {
    double ar = 0, dec = 0;
    PuntoACielo(e, X, Y, ar, dec, e.CursorAltitud, e.CursorAzimut);
    if (ar == 99 && dec == 99) return {" ", " ", " ", " "};
    return {"A.R. = " + TextoHoras(static_cast<float>(ar)), "DEC. = " + TextoSexagesimal(dec),
            "Altitud = " + TextoSexagesimal(e.CursorAltitud), "Azimut = " + TextoSexagesimal(e.CursorAzimut)};
}

bool CentraObjeto(Estado& e, const TablaPlanetas& planetas, InterfazMensajes& m) {
    const double phi = e.Latitud, delta = e.ObjetivoDEC;
    double bajo = phi - 1.5707963268, alto = phi + 1.5707963268;
    if (!(bajo <= delta && delta <= alto)) {
        m.Mensaje(A1252("Ese punto  se  encuentra bajo  el  horizonte  y  no  es  visible desde la Latitud actual"),
                  "Buscar Objetos", 1, 1);
        return false;
    }
    e.CentrandoObjeto = true;
    EscribeConfiguracion(e, "Temporal.wrk", m, true);

    // The step is in solar days, so the target lands on the meridian only
    // approximately; the one-shot correction makes up part of the difference.
    double S = e.TiempoSidereo;
    if (S > e.ObjetivoAR) e.ObjetivoAR += DOS_PI;
    double dias = (e.ObjetivoAR - S) / DOS_PI;
    e.FechaJuliana += dias;
    if (e.CorreccionLuna) {
        e.FechaJuliana += dias * (11.5 * GRADO) / DOS_PI;
        e.CorreccionLuna = false;
    }
    ActualizaTiempo(e, planetas);

    e.Elevacion = delta - phi + 1.5707963268;
    if (e.Elevacion > 1.5707963268) e.Elevacion = 3.1415926536 - e.Elevacion;
    e.Direccion = delta < phi ? 3.1415926536 : 0.0;
    GiraDireccion(e);
    e.CentrandoObjeto = false;
    e.Centrado = true;
    return true;
}

bool CentraPunto(Estado& e, const TablaPlanetas& planetas, InterfazMensajes& m, float X, float Y) {
    double ar = 0, dec = 0;
    PuntoACielo(e, X, Y, ar, dec, e.CursorAltitud, e.CursorAzimut);
    if (ar == 99 && dec == 99) return false;
    e.ObjetivoAR = ar;
    e.ObjetivoDEC = dec;
    return CentraObjeto(e, planetas, m);
}

}  // namespace vedrano
