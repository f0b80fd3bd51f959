#include "cli/CarpetaDatos.h"

#include "platform/CarpetaPrograma.h"

namespace vedrano {

std::string CarpetaDatosPorDefecto(const char* argv0) { return plataforma::CarpetaPrograma(argv0) + "Datos/"; }

}  // namespace vedrano
