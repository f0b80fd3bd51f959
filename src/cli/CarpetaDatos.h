// Where the command-line tool finds the catalogue files, and the notices
// of their loading.
#pragma once
#include <QString>
#include <filesystem>
#include <optional>
#include <string>

#include "app/base/InterfazMensajes.h"

namespace vedrano {

// The catalogue folder, ending in '/': `pedida` when given, else the
// program's own Datos/ (beside the executable, or share/vedrano/Datos/ of
// an installed prefix, or a data folder of XDG_DATA_DIRS). When the folder
// does not exist, writes a message naming it to standard error, prefixed by
// `orden`, and gives no value.
std::optional<std::string> CarpetaDatos(const QString& pedida, const char* orden);

// The loader's notices and the reader's messages, one per line on standard
// error, each answered yes; remembers whether there was any, so that a run
// on incomplete catalogues can fail.
class AvisosEnErrorEstandar : public InterfazMensajes {
public:
    int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones, int16_t icono) override;
    bool hubo = false;
};

// The folder of a file named on the command line, ended by "/": "./" for a
// bare name, which is looked for in the current folder.
std::string CarpetaDe(const std::filesystem::path& ruta);

}  // namespace vedrano
