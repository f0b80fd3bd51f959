#include "catalogue/TrampaCarga.h"

#include "app/base/Texto1252.h"

namespace vedrano {

std::string TextoErrorCarga(int numero, const std::string& ruta) {
    std::string texto = "ERROR CTA" + std::to_string(numero);
    if (numero == ErrArchivoNoExiste) texto = "ERROR CTA53: No existe el fichero";
    // A cut or empty file reads blank past its end; it is told in words, as a
    // missing one is, so that an empty star file is not taken for a starless sky.
    if (numero == ErrFinDeArchivo) texto = "ERROR CTA62: Faltan datos en el fichero";
    return ruta.empty() ? texto : TextoConArchivo(texto, ruta);
}

void TrampaCarga::Informa(int numero) {
    if (numero == ErrDesbordamiento) return;
    notificador_.Avisa(TextoErrorCarga(numero, ruta_), TITULO_CARGA);
}

}  // namespace vedrano
