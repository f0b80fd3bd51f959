#include "app/estado/Vista.h"

#include "app/base/Constantes.h"

namespace vedrano {

void GiraDireccion(Estado& e) { e.DireccionGirada = e.Direccion - PI; }

void FijaVista(Estado& e, double direccion, double elevacion) {
    e.Direccion = direccion;
    e.Elevacion = elevacion;
    GiraDireccion(e);
}

}  // namespace vedrano
