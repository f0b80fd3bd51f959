// Loads every catalogue file of the data folder into the tables, once, at
// start-up, and builds the lists of the search and location forms. Nothing
// stops it: a missing, short or damaged file is reported through the
// notifier ("ERROR CTA..." titled "Cargando datos iniciales"), its table
// keeps what it held, and loading goes on with the next file.
#pragma once
#include <string>

#include "catalogue/Catalogos.h"
#include "app/base/InterfazMensajes.h"

namespace vedrano {

void CargaCatalogos(const std::string& dirDatos, Catalogos& c, InterfazMensajes& n);

}  // namespace vedrano
