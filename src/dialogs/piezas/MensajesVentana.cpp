#include "dialogs/piezas/MensajesVentana.h"

#include "dialogs/piezas/Mensajes.h"

namespace vedrano {

int16_t MensajesVentana::Mensaje(const std::string& texto, const std::string& titulo, int16_t botones,
                                 int16_t icono) {
    return MuestraMensaje(e_, padre_, texto, titulo, botones, icono);
}

void MensajesVentana::Avisa(const std::string& textoCp1252, const std::string& tituloCp1252) {
    MuestraMensaje(e_, padre_, textoCp1252, tituloCp1252, 1, 1);
}

}  // namespace vedrano
