#include "catalogue/TrampaCarga.h"

namespace vedrano {

std::string TextoErrorCarga(int numero) {
    if (numero == ErrArchivoNoExiste) return "ERROR CTA53: No existe el fichero";
    return "ERROR CTA" + std::to_string(numero);
}

void TrampaCarga::Informa(int numero) {
    if (numero == ErrDesbordamiento) return;
    notificador_.Avisa(TextoErrorCarga(numero), TITULO_CARGA);
}

}  // namespace vedrano
