// "vedrano-cli configuracion": reads a configuration file, lists its state
// one item a line, and optionally writes it back; or writes the sample
// configurations.
#pragma once

namespace vedrano {

int ComandoConfiguracion(int argc, char** argv);

}  // namespace vedrano
