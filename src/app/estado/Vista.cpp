#include "app/estado/Vista.h"

#include <cmath>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"

namespace vedrano {

void GiraDireccion(Estado& e) { e.DireccionGirada.Fija(LlaveEstado{}, e.Direccion - PI); }

void FijaVista(Estado& e, double direccion, double elevacion) {
    e.Direccion.Fija(LlaveEstado{}, direccion);
    e.Elevacion.Fija(LlaveEstado{}, elevacion);
    GiraDireccion(e);
}

void FijaZoom(Estado& e, float zoom) {
    e.Zoom.Fija(LlaveEstado{}, zoom);
    AjustaEscala(e, e.AnchoImagen, e.AltoImagen);
}

void FijaOrientacion(Estado& e, int16_t orientacion) {
    e.Orientacion.Fija(LlaveEstado{}, orientacion);
    AjustaEscala(e, e.AnchoImagen, e.AltoImagen);
}

void AjustaEscala(Estado& e, int anchoPixeles, int altoPixeles) {
    float signo = e.Orientacion == 1 ? 1.0f : -1.0f;
    float alto = ASingle(-2.6 / e.Zoom);
    float ancho = ASingle(signo * (3.4666667 / e.Zoom));
    if (anchoPixeles > 0 && altoPixeles > 0) {
        // Same scale across and down: extend the longer side past 4:3.
        double proporcion = static_cast<double>(anchoPixeles) / altoPixeles;
        double base = 3.4666667 / 2.6;
        if (proporcion > base)
            ancho = ASingle(signo * (2.6 * proporcion / e.Zoom));
        else if (proporcion < base)
            alto = ASingle(-(3.4666667 / proporcion) / e.Zoom);
    }
    const LlaveEstado llave;
    e.AnchoImagen.Fija(llave, anchoPixeles);
    e.AltoImagen.Fija(llave, altoPixeles);
    e.EscalaAlto.Fija(llave, alto);
    e.EscalaAncho.Fija(llave, ancho);
    e.EscalaIzquierda.Fija(llave, -e.EscalaAncho / 2);
    e.EscalaSuperior.Fija(llave, -e.EscalaAlto / 2);
    double q = 1.0 - double(e.EscalaIzquierda) * e.EscalaIzquierda - double(e.EscalaSuperior) * e.EscalaSuperior;
    e.Umbral.Fija(llave, q >= 0 ? static_cast<float>(std::sqrt(q)) : 0.0f);
}

}  // namespace vedrano
