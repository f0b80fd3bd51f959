#include "catalogue/TrampaCarga.h"

namespace vedrano {

std::string TextoErrorCarga(int numero) {
    if (numero == ErrArchivoNoExiste) return "ERROR CTA53: No existe el fichero";
    // A cut or empty file reads blank past its end; it is told in words, as a
    // missing one is, so that an empty star file is not taken for a starless sky.
    if (numero == ErrFinDeArchivo) return "ERROR CTA62: Faltan datos en el fichero";
    return "ERROR CTA" + std::to_string(numero);
}

void TrampaCarga::Informa(int numero) {
    if (numero == ErrDesbordamiento) return;
    notificador_.Avisa(TextoErrorCarga(numero), TITULO_CARGA);
}

}  // namespace vedrano
