// vedrano-cli lista CATEGORIA [--datos DIR]: prints one list of the search
// form, or the places list, one line each, in UTF-8.
#pragma once

#include "cli/Argumentos.h"

namespace vedrano {

// 0 with the lines written; 2 for an unknown category; 1 when the data
// cannot be read whole or the output cannot be written.
int ComandoLista(const OpcionesCli& o);

}  // namespace vedrano
