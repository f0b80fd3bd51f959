#include "catalogue/TablaPlanetas.h"

#include <fstream>
#include <iterator>

#include "app/ErrorEjecucion.h"

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
    std::ifstream f(fichero, std::ios::binary);
    if (!f) throw ErrorEjecucion(ErrArchivoNoExiste);
    std::string bytes((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    for (int i = 1; i <= 11; ++i) {
        std::size_t desde = static_cast<std::size_t>(i) * LARGO_REGISTRO_PLANETA;  // record i + 1
        std::string_view reg;
        if (desde < bytes.size())
            reg = std::string_view(bytes).substr(desde, LARGO_REGISTRO_PLANETA);
        tabla[static_cast<std::size_t>(i)] = DecodificaPlaneta(reg);
    }
}

}  // namespace vedrano
