// Reading a configuration file into the application state.
#pragma once
#include <string>
#include <string_view>

#include "app/estado/Estado.h"
#include "config/ResultadoConfiguracion.h"

namespace vedrano {

// The path of a configuration: DirArchivo followed by the name, both as the
// file system names them (UTF-8 on Linux). Only the file's contents are
// Windows-1252.
std::string RutaConfiguracion(const Estado& e, std::string_view nombre);

// Reads DirArchivo + nombre into the state. When the file cannot be opened
// the defaults of the items that have one are stored and the others are
// left alone. A fault inside the file stops the reading there: the items
// read before it stay, the rest keep their values, and nothing of a line
// with the wrong number of items is taken. Faults are shown through `ui`
// titled "Cargar configuración", except an overflow (error 6), which is
// only returned. The caller recomputes and redraws afterwards.
ResultadoConfiguracion LeeConfiguracion(Estado& e, std::string_view nombre, InterfazMensajes& ui);

// The same from the text of a file, without showing anything.
ResultadoConfiguracion LeeTextoConfiguracion(Estado& e, std::string_view contenido);

// The values a missing configuration leaves.
void AplicaOmisiones(Estado& e);

}  // namespace vedrano
