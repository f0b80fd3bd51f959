// The user's configuration folder, where the program keeps its preferences.
#pragma once
#include <string>

namespace vedrano::plataforma {

// Linux: $XDG_CONFIG_HOME when it is an absolute path, else $HOME/.config.
// Windows: the roaming application-data folder (SHGetKnownFolderPath with
// FOLDERID_RoamingAppData). Ends in '/'; empty when the system names none.
std::string CarpetaConfiguracionUsuario();

}  // namespace vedrano::plataforma
