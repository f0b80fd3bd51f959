// "vedrano-cli dibuja": the sky picture of a configuration written to an image.
#pragma once

#include "cli/Argumentos.h"

namespace vedrano {

// argc and argv go to the Qt application that draws.
int ComandoDibuja(int argc, char** argv, const OpcionesCli& o);

}  // namespace vedrano
