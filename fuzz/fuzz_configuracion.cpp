// The configuration reader on any text. Promises: it always comes back; what
// it accepts can be written and read again to the same text; and a state it
// accepts is one the window can show (the panel texts raise nothing, the
// pauses stay short), since those run outside any error trap.
#include <string>
#include <string_view>

#include "app/base/ErrorEjecucion.h"
#include "config/EscribeConfiguracion.h"
#include "config/LeeConfiguracion.h"
#include "fuzz/Objetivo.h"
#include "platform/Pausa.h"
#include "sky/DibujaCielo.h"

using namespace vedrano;

extern "C" int LLVMFuzzerInitialize(int*, char***) { return 0; }

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const std::string_view texto(reinterpret_cast<const char*>(datos), largo);
    Estado e;
    if (LeeTextoConfiguracion(e, texto).error != 0) return 0;
    const std::string escrito = TextoConfiguracion(e);
    Estado otra;
    if (LeeTextoConfiguracion(otra, escrito).error != 0) fuzz::Incumple("se lee lo que se escribe");
    if (TextoConfiguracion(otra) != escrito) fuzz::Incumple("leer y escribir da el mismo texto");
    try {
        (void)TextosPanel(e);
    } catch (const ErrorEjecucion&) {
        fuzz::Incumple("el panel muestra cualquier configuración aceptada");
    }
    if (!(plataforma::FactorVelocidad(e.Velocidad) <= 5.07)) fuzz::Incumple("las pausas no pasan de 5 veces");
    return 0;
}
