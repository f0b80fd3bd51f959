// Program preferences that the configuration files have no item for: one
// small settings file under the user's configuration folder, read at start
// and written when a preference changes. It is never required: a missing or
// damaged file gives the defaults, and the ".ls1" files stay as they are.
#pragma once
#include <string>

#include "app/estado/Preferencias.h"

namespace vedrano {

// The settings file: <user configuration folder>/vedrano/preferencias.ini,
// or an empty text when the system names no such folder.
std::string RutaPreferencias();

// Reads the file at `ruta`. Lines "clave=valor" set known keys; blank
// lines, "[section]" and "#" or ";" comments, unknown keys and values that
// do not read as their type are passed over, so that a damaged file still
// yields every good value and the defaults for the rest.
Preferencias LeePreferencias(const std::string& ruta);

// The file's text for `p`: every key, one per line, under "[General]".
std::string TextoPreferencias(const Preferencias& p);

// Writes `p` to `ruta` whole or not at all, creating its folder. Returns an
// empty text, or the message (Windows-1252) that tells the user it could
// not be written (the preferences then hold for this session only). An
// empty `ruta` keeps nothing and says nothing.
std::string EscribePreferencias(const Preferencias& p, const std::string& ruta);

}  // namespace vedrano
