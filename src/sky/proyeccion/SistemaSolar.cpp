#include "sky/proyeccion/SistemaSolar.h"

#include "app/estado/Astros.h"
#include "astro/Coordenadas.h"
#include "astro/Planetas.h"
#include "astro/PrecisionAlta.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

void HallaCuerpo(Estado& e, const TablaPlanetas& t, int16_t cuerpo) {
    if (!e.Pref.PrecisionAlta) {
        if (cuerpo == 10)
            HallaSolAparente(e);
        else if (cuerpo == 11)
            HallaLuna(e);
        else
            HallaPlaneta(e, t, cuerpo);
        return;
    }
    LugarPreciso l = LugarAparente(cuerpo, PreparaInstanteAlta(e));
    // The Moon's parallax reaches a degree: it is seen from the observer.
    if (cuerpo == 11) l = Topocentrico(l, e.Latitud, e.TiempoSidereo);
    PosicionCuerpo& b = e.Planetas[static_cast<std::size_t>(cuerpo)];
    b.AscRecta = l.ar;
    b.Declinacion = l.dec;
    Vector3f v = AngulosAVector(l.ar, l.dec);
    b.x = v.x, b.y = v.y, b.z = v.z;
}

void HallaSistemaSolar(Estado& e, const TablaPlanetas& t) {
    for (int16_t i = 1; i <= 11; ++i)
        if (i != 3) HallaCuerpo(e, t, i);
}

}  // namespace vedrano
