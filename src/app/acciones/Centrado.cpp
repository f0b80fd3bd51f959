#include "app/acciones/Centrado.h"

#include "app/base/Texto1252.h"
#include "config/EscribeConfiguracion.h"
#include "sky/apunta/Apunta.h"

namespace vedrano {

bool CentraObjeto(Estado& e, const TablaPlanetas& planetas, InterfazMensajes& m) {
    if (!ObjetivoVisible(e)) {
        m.Mensaje(A1252("Ese punto  se  encuentra bajo  el  horizonte  y  no  es  visible desde la Latitud actual"),
                  "Buscar Objetos", 1, 1);
        return false;
    }
    e.CentrandoObjeto = true;
    EscribeConfiguracion(e, "Temporal.wrk", m, true);
    LlevaObjetivoAlMeridiano(e, planetas);
    return true;
}

bool CentraPunto(Estado& e, const TablaPlanetas& planetas, InterfazMensajes& m, float X, float Y) {
    return ObjetivoEnPunto(e, X, Y) && CentraObjeto(e, planetas, m);
}

}  // namespace vedrano
