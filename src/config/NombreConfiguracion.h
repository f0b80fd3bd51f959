// The rules for the name a configuration is saved under.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace vedrano {

// The work file the main window keeps the previous situation in.
inline constexpr const char* ARCHIVO_TRABAJO = "Temporal.wrk";

// The name actually written: "Prueba" -> "Prueba.ls1", "Prueba.txt" ->
// "Prueba.ls1" (everything from the first point on is replaced), names
// ending in ".ls1" or ".wrk" in any case are kept. A name that begins with
// a point, is empty, or names a folder is refused (no value).
std::optional<std::string> NombreParaGuardar(std::string_view nombre);

}  // namespace vedrano
