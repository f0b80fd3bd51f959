// The loader's one error trap. A run-time error in a statement is reported
// ("ERROR CTA" and its number; overflow passes in silence) and loading goes
// on with the next statement, so that a bad data file never stops start-up.
#pragma once
#include <string>

#include "app/ErrorEjecucion.h"
#include "catalogue/Notificador.h"

namespace vedrano {

inline constexpr const char* TITULO_CARGA = "Cargando datos iniciales";

// "ERROR CTA53: No existe el fichero" for a missing file, "ERROR CTA62:
// Faltan datos en el fichero" for a short one, "ERROR CTA" and the number
// otherwise.
std::string TextoErrorCarga(int numero);

class TrampaCarga {
public:
    explicit TrampaCarga(Notificador& n) : notificador_(n) {}

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
    Notificador& notificador_;
};

}  // namespace vedrano
