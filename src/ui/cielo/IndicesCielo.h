// The numbers of the main window's own controls: the nine dialog buttons
// and the five hold-to-repeat arrow pairs, as their control arrays count
// them (from 1, in the order they stand on the panels).
#pragma once

namespace vedrano {

namespace boton {
enum : int {
    Configuraciones = 1,
    Personalizar = 2,
    Localizacion = 3,
    FechaHora = 4,
    Objetos = 5,
    Buscar = 6,
    Imprimir = 7,
    Ayuda = 8,
    Salir = 9,
};
constexpr int NUM = 9;
}  // namespace boton

namespace flechas {
enum : int {
    Direccion = 1,
    Elevacion = 2,
    Zoom = 3,
    Tiempo = 4,
    Animacion = 5,
};
constexpr int NUM = 5;
}  // namespace flechas

}  // namespace vedrano
