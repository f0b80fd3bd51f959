// "vedrano-cli configuracion": reads a configuration file, lists its state
// one item a line, and optionally writes it back; or writes the sample
// configurations.
#pragma once

#include "cli/Argumentos.h"

namespace vedrano {

int ComandoConfiguracion(const OpcionesCli& o);

}  // namespace vedrano
