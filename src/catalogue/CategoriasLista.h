// The lists by the names the user knows them by: the twelve categories of
// the search form's general index, in its order, then the places list.
#pragma once
#include <array>
#include <string>
#include <vector>

#include "catalogue/Catalogos.h"

namespace vedrano {

struct CategoriaLista {
    const char* nombre;  // UTF-8
    std::vector<std::string> ListasCatalogo::*lista;
};

inline const std::array<CategoriaLista, 13> CATEGORIAS_LISTA = {{
    {"Sistema Solar", &ListasCatalogo::SistemaSolar},
    {"Objetos Messier", &ListasCatalogo::Messier},
    {"Constelaciones", &ListasCatalogo::Constelaciones},
    {"Estrellas", &ListasCatalogo::Estrellas},
    {"Galaxias", &ListasCatalogo::Galaxias},
    {"Nebulosas Planetarias", &ListasCatalogo::NebPlanetarias},
    {"Nebulosas Difusas", &ListasCatalogo::NebDifusas},
    {"Cúmulos Abiertos", &ListasCatalogo::CumAbiertos},
    {"Cúmulos Globulares", &ListasCatalogo::CumGlobulares},
    {"Quásares", &ListasCatalogo::Cuasares},
    {"Púlsares", &ListasCatalogo::Pulsares},
    {"Agujeros Negros", &ListasCatalogo::Agujeros},
    {"Lugares", &ListasCatalogo::Lugares},
}};

}  // namespace vedrano
