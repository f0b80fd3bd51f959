// Replacing a file whole or not at all.
#pragma once
#include <string>
#include <string_view>

namespace vedrano {

// Writes `contenido` to a new file beside `ruta`, flushes it to the disk,
// then renames it over `ruta`, so that a crash or a full disk leaves either
// the old file or the new one, never a mixture. Returns 0, or the run-time
// error number of the fault (the temporary file is then removed).
int EscribeArchivoEntero(const std::string& ruta, std::string_view contenido);

// Removes from `carpeta` the temporary files that writers killed in the
// middle of a save left behind (those of writers still running stay).
void LimpiaTemporales(const std::string& carpeta);

}  // namespace vedrano
