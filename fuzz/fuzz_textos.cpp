// The parsers of angle, date and number texts, the typed-field rules of the
// date and location forms, and the angle formatters on any number. Each
// either answers or raises a run-time error; nothing else may happen.
#include <QString>
#include <cstring>
#include <string>
#include <string_view>

#include "app/base/Aritmetica.h"
#include "app/base/ErrorEjecucion.h"
#include "astro/Calendario.h"
#include "app/base/TextosAngulo.h"
#include "dialogs/piezas/CampoAngulo.h"
#include "app/acciones/HoraReglas.h"
#include "fuzz/Objetivo.h"

using namespace vedrano;

namespace {

template <class F>
void Prueba(F&& f) {
    try {
        f();
    } catch (const ErrorEjecucion&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) { return 0; }

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const std::string texto(reinterpret_cast<const char*>(datos), largo);
    Prueba([&] { LeeAngulo(texto); });
    Prueba([&] { FechaAJuliana(texto); });
    Prueba([&] { Val(texto); });
    Prueba([&] { CorrigeAno(texto); });
    Prueba([&] { CorrigeMes(texto); });
    Prueba([&] { CorrigeDia(texto, 2, 2000); });
    Prueba([&] { CorrigeHora(texto, true); });
    Prueba([&] { CorrigeHora(texto, false); });
    Prueba([&] {
        double jd = 0;
        LeeJuliana(texto, jd);
    });
    for (TipoAngulo tipo : {TipoAngulo::Latitud, TipoAngulo::Longitud}) {
        Prueba([&] { LeeCampoAngulo(texto, tipo); });
        Prueba([&] { CorrigeTeclas(QString::fromLatin1(texto.data(), static_cast<qsizetype>(texto.size())), tipo); });
    }
    // The first eight bytes as a number for every formatter.
    if (largo >= 8) {
        double x;
        std::memcpy(&x, datos, 8);
        Prueba([&] { TextoSexagesimal(x); });
        Prueba([&] { TextoLatitud(x); });
        Prueba([&] { TextoLongitud(x); });
        Prueba([&] { GradosLongitud(x); });
        Prueba([&] { TextoHoras(static_cast<float>(x)); });
        Prueba([&] { TextoDireccion(x); });
        Prueba([&] { TextoGrados(x); });
        Prueba([&] { JulianaAFecha(x); });
    }
    return 0;
}
