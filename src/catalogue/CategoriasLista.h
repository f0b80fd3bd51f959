// The lists by the names the user knows them by: the twelve categories of
// the search form's general index, in its order, then the places list.
#pragma once
#include <array>
#include <string>
#include <vector>

#include "catalogue/Catalogos.h"

namespace vedrano {

struct CategoriaLista {
    const char* nombre;  // Windows-1252
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
    {"C\xFAmulos Abiertos", &ListasCatalogo::CumAbiertos},
    {"C\xFAmulos Globulares", &ListasCatalogo::CumGlobulares},
    {"Qu\xE1sares", &ListasCatalogo::Cuasares},
    {"P\xFAlsares", &ListasCatalogo::Pulsares},
    {"Agujeros Negros", &ListasCatalogo::Agujeros},
    {"Lugares", &ListasCatalogo::Lugares},
}};

}  // namespace vedrano
