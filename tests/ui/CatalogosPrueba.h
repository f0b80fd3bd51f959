// The shipped catalogues, loaded once for every widget test that draws the
// sky; loading messages are not what these tests look at.
#pragma once
#include <string>

#include "catalogue/CargaCatalogos.h"

namespace pruebas {

inline const vedrano::Catalogos& CatalogosDePrueba() {
    class Calla : public vedrano::InterfazMensajes {
    public:
        int16_t Mensaje(const std::string&, const std::string&, int16_t, int16_t) override { return 1; }
    };
    static vedrano::Catalogos c;
    static bool cargado = [] {
        Calla calla;
        vedrano::CargaCatalogos(VEDRANO_DATOS, c, calla);
        return true;
    }();
    (void)cargado;
    return c;
}

}  // namespace pruebas
