// The loader's one error trap. A run-time error in a statement is reported
// ("ERROR CTA" and its number; overflow passes in silence) and loading goes
// on with the next statement, so that a bad data file never stops start-up.
#pragma once
#include <string>
#include <utility>

#include "app/base/ErrorEjecucion.h"
#include "app/base/InterfazMensajes.h"

namespace vedrano {

inline constexpr const char* TITULO_CARGA = "Cargando datos iniciales";

// "ERROR CTA53: No existe el fichero" for a missing file, "ERROR CTA62:
// Faltan datos en el fichero" for a short one, "ERROR CTA" and the number
// otherwise; with a file, its path on the next line.
std::string TextoErrorCarga(int numero, const std::string& ruta = {});

class TrampaCarga {
public:
    explicit TrampaCarga(InterfazMensajes& n) : notificador_(n) {}

    // The file that the next statements work on, named by their messages.
    void Archivo(std::string ruta) { ruta_ = std::move(ruta); }

    // Runs one statement; if it raises a run-time error, reports it and
    // returns as though the statement had finished.
    template <class Sentencia>
    void AvisaYSigue(Sentencia&& sentencia) {
        try {
            sentencia();
        } catch (const ErrorEjecucion& e) {
            Informa(e.numero());
        }
    }

private:
    void Informa(int numero);
    InterfazMensajes& notificador_;
    std::string ruta_;
};

}  // namespace vedrano
