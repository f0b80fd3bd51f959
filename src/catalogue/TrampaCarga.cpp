#include "catalogue/TrampaCarga.h"

#include "app/Texto1252.h"

namespace vedrano {

std::string TextoErrorCarga(int numero, const std::string& ruta) {
    const std::string texto =
        numero == ErrArchivoNoExiste ? "ERROR CTA53: No existe el fichero" : "ERROR CTA" + std::to_string(numero);
    return ruta.empty() ? texto : TextoConArchivo(texto, ruta);
}

void TrampaCarga::Informa(int numero) {
    if (numero == ErrDesbordamiento) return;
    notificador_.Avisa(TextoErrorCarga(numero, ruta_), TITULO_CARGA);
}

}  // namespace vedrano
