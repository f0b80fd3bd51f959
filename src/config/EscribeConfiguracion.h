// Writing the application state as a configuration file.
#pragma once
#include <string>
#include <string_view>

#include "app/estado/Estado.h"
#include "config/ResultadoConfiguracion.h"
#include "config/ItemsConfiguracion.h"

namespace vedrano {

// The written text of one item.
std::string TextoItem(const Estado& e, const ItemConfiguracion& item);

// The four lines of the state, each ended by CR LF.
std::string TextoConfiguracion(const Estado& e);

// Saves the state as DirArchivo + nombre after the name rules
// (NombreParaGuardar). A refused name is told through `ui` and nothing is
// written. An existing file is replaced only when the user accepts, except
// for the main window's work file (`esTrabajo`), which is replaced at once.
// A declined replacement returns no error and nothing written.
ResultadoConfiguracion EscribeConfiguracion(Estado& e, std::string_view nombre, InterfazMensajes& ui,
                                            bool esTrabajo);

}  // namespace vedrano
