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

// The controls' indices into the two tables, by what each control is (the
// label table's comments say which form shows it).
namespace control {
enum : int {
    SituacionActual = 0,
    FormatoHora = 1,
    ImagenEnPantalla = 2,
    PanelControl = 3,
    PanelCursor = 4,
    PanelLocalizacion = 5,
    PanelObjetos = 6,
    Precesion = 7,
    Telescopio = 8,
    Sonido = 9,
    IncluirAnimacion = 10,
    HorarioVerano = 11,
    IdentificarObjetos = 12,
    IncluirLocalizacion = 13,
    TiempoReal = 14,
    Velocidad = 15,
    OrientacionCielo = 16,
    AnimarTrasCambio = 17,
    MarcarObjetos = 18,
    NivelGalaxias = 19,
    NivelNebPlanetarias = 20,
    NivelNebDifusas = 21,
    NivelCumAbiertos = 22,
    NivelCumGlobulares = 23,
    DiametroTelescopio = 24,
    Longitud = 25,
    Latitud = 26,
    ZonaLocali = 27,
    Direccion = 28,
    Elevacion = 29,
    Zoom = 30,
    ZonaHora = 31,
    MagnitudMinima = 32,
    NivelConstelaciones = 33,
    AnchoImpresion = 34,
    AltoImpresion = 35,
    FactorAnimacion = 36,
    Hora24 = 37,
    HoraAmPm = 38,
    CieloNormal = 39,
    CieloInvertido = 40,
    FechaHoraActuales = 41,
    Mediodia = 42,
    Medianoche = 43,
    Animacion = 44,
    Restaurar = 45,
    Aceptar = 46,
    Cancelar = 47,
    Cargar = 48,
    Guardar = 49,
    Borrar = 50,
};
}  // namespace control

constexpr int NUM_ETIQUETAS = 51;
constexpr int NUM_FORMATOS = 41;

// Label `indice` (0..50); any other index raises ErrorEjecucion 9.
const std::string& Etiqueta(int indice);
// Value record `indice` (0..40); any other index raises ErrorEjecucion 9.
const FormatoValor& FormatoIndice(int indice);

}  // namespace vedrano
