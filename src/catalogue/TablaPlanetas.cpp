#include "catalogue/TablaPlanetas.h"

#include <span>

#include "catalogue/ArchivoRegistros.h"

namespace vedrano {

ElementosPlaneta DecodificaPlaneta(std::string_view registro) {
    LectorCampos l(registro);
    ElementosPlaneta p;
    p.Codigo = l.Texto<3>();
    p.MovDiario = l.Doble();
    p.LongEpoca = l.Doble();
    p.LongPerihelio = l.Doble();
    p.Excentricidad = l.Doble();
    p.SemiejeMayor = l.Doble();
    p.Inclinacion = l.Doble();
    p.LongNodo = l.Doble();
    return p;
}

void LeeTablaPlanetas(const std::string& fichero, TablaPlanetas& tabla) {
    // Through the record reader: a folder, a missing file and a short one
    // raise their run-time errors instead of a stream exception.
    ArchivoRegistros f;
    f.Abre(fichero, LARGO_REGISTRO_PLANETA);
    f.Lee(2, std::span<ElementosPlaneta>(tabla.data() + 1, 11));
    f.Cierra();
}

}  // namespace vedrano
