// The numbers of the main window's own controls: the nine dialog buttons
// and the five hold-to-repeat arrow pairs, as their control arrays count
// them (from 1, in the order they stand on the panels).
#pragma once

namespace vedrano {

namespace boton {
enum : int { Configuraciones = 1, Personalizar, Localizacion, FechaHora, Objetos, Buscar, Imprimir, Ayuda, Salir };
constexpr int NUM = Salir;
}  // namespace boton

namespace flechas {
enum : int { Direccion = 1, Elevacion, Zoom, Tiempo, Animacion };
constexpr int NUM = Animacion;
}  // namespace flechas

}  // namespace vedrano
