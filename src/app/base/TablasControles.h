// The two tables shared by the custom-drawn controls, addressed by the
// control's index: its label, and for adjustable quantities the limits,
// step, display picture and wrap of the value. Texts are Windows-1252.
#pragma once
#include <string>

namespace vedrano {

struct FormatoValor {
    float Minimo = 0, Maximo = 0, Paso = 0;
    std::string Formato;  // a Format picture (app/base/Formato.h)
    bool Ciclico = false;  // past one end the value comes round from the other
};

constexpr int NUM_ETIQUETAS = 51;
constexpr int NUM_FORMATOS = 41;

// Label `indice` (0..50); any other index raises ErrorEjecucion 9.
const std::string& Etiqueta(int indice);
// Value record `indice` (0..40); any other index raises ErrorEjecucion 9.
const FormatoValor& FormatoIndice(int indice);

}  // namespace vedrano
