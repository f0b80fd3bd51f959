#include "dialogs/piezas/MensajesVentana.h"

#include "dialogs/piezas/Mensajes.h"

namespace vedrano {

int16_t MensajesVentana::Mensaje(const std::string& texto, const std::string& titulo, int16_t botones,
                                 int16_t icono) {
    return MuestraMensaje(e_, controles_, padre_, texto, titulo, botones, icono);
}

}  // namespace vedrano
