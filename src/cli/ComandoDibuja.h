// "vedrano-cli dibuja": the sky picture of a configuration written to an image.
#pragma once

namespace vedrano {

int ComandoDibuja(int argc, char** argv);

}  // namespace vedrano
