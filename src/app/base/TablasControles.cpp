#include "app/base/TablasControles.h"

#include <array>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"

namespace vedrano {

namespace {

// Index: form and control that shows it. The dots and blanks inside the
// labels line up the values printed after them.
const std::array<std::string, NUM_ETIQUETAS>& Etiquetas() {
    static const std::array<std::string, NUM_ETIQUETAS> tabla = {
        A1252("Situación actual"),  // 0 heading of a listed configuration
        "Formato de hora",  // 1 Personal: selector, 24 hours or AM/PM
        "Imagen en pantalla",  // 2 Impresor: switch, colours as on screen
        "Panel de control",  // 3 Personal: switch
        "Panel de cursor",  // 4 Personal: switch, the cursor panel of the main window
        A1252("Panel de localización"),  // 5 Personal: switch
        "Panel de objetos",  // 6 Personal: switch
        A1252("Precesión"),  // 7 Personal: switch
        "Telescopio",  // 8 Personal: switch, the telescope circle
        "Sonido",  // 9 Personal: switch, the click sounds
        A1252("Incluir animación"),  // 10 CargaGuar: switch, animate after loading
        "Horario de verano",  // 11 Hora: switch
        "Identificar objetos",  // 12 Objetos: switch, names beside deep-sky objects
        A1252("Incluir datos de localización"),  // 13 Impresor: switch
        "Movimiento en tiempo real",  // 14 Animar: switch
        "Velocidad",  // 15 Personal: slider
        A1252("Orientación del cielo"),  // 16 Personal: selector, normal or mirrored sky
        "Animar tras un cambio",  // 17 Personal: switch
        "Marcar objetos",  // 18 Personal: switch, the marking of pointed objects
        "Nivel galaxias....:",  // 19 Objetos: spin, galaxies
        "Nivel neb. planet.:",  // 20 Objetos: spin, planetary nebulae
        "Nivel neb. difusas:",  // 21 Objetos: spin, diffuse nebulae
        A1252("Nivel cúm. abiert.:"),  // 22 Objetos: spin, open clusters
        A1252("Nivel cúm. globul.:"),  // 23 Objetos: spin, globular clusters
        A1252("Diámetro telescopio.:"),  // 24 Personal: spin, the telescope field in degrees
        "Longitud:",  // 25 Locali: spin, longitude in degrees, west positive
        "Latitud.....:",  // 26 Locali: spin, latitude in degrees
        "Zona horaria..............:",  // 27 Locali: spin, time zone in hours
        A1252("Dirección:"),  // 28 Locali: spin, view direction in degrees
        A1252("Elevación.........:"),  // 29 Locali: spin, view elevation in degrees
        "Zoom.............:",  // 30 Locali: spin, zoom
        "Zona horaria:",  // 31 Hora: spin, time zone in hours
        A1252("Magnitud mínima.:"),  // 32 Objetos: spin, star magnitude level
        "Nivel visualizar.....:",  // 33 Objetos: spin, constellation level
        "Ancho en mms.....:",  // 34 Impresor: spin, picture width on paper
        "Alto en mms........:",  // 35 Impresor: spin, picture height on paper
        "Factor.:",  // 36 Animar: spin, count of units per step
        "24 horas",  // 37 choice of selector 1
        "AM / PM",  // 38 choice of selector 1
        "Normal",  // 39 choice of selector 16
        "Invertido",  // 40 choice of selector 16
        "Fecha y Hora actuales",  // 41 Hora: push button, the present instant
        A1252("Mediodía"),  // 42 Hora: push button, today's noon
        "Medianoche",  // 43 Hora: push button, today's midnight
        A1252("Animación"),  // 44 Cielo: push button, opens the animation dialog
        A1252("Restaurar situación anterior"),  // 45 Cielo: push button, reads back the work file
        "Aceptar",  // 46 message box: accepting button
        "Cancelar",  // 47 message box: cancelling button
        "Cargar",  // 48 CargaGuar: push button
        "Guardar",  // 49 CargaGuar: push button
        "Borrar",  // 50 CargaGuar: push button
    };
    return tabla;
}

// Records not listed belong to switches and push buttons: a Boolean.
FormatoValor Registro(int i) {
    switch (i) {
        case control::FormatoHora: return {1.0f, 2.0f, 1.0f, "0", true};  // hour format choice: 1 24 hours, 2 AM/PM
        case control::Velocidad: return {0.0f, 100.0f, 1.0f, "##0", false};  // speed
        case control::OrientacionCielo: return {1.0f, 2.0f, 1.0f, "0", true};  // sky orientation choice: 1 normal, 2 mirrored
        case control::NivelGalaxias: return {1.0f, 4.0f, 1.0f, "0", false};  // galaxy detail level
        case control::NivelNebPlanetarias: return {1.0f, 2.0f, 1.0f, "0", false};  // planetary nebula detail level
        case control::NivelNebDifusas: return {1.0f, 2.0f, 1.0f, "0", false};  // diffuse nebula detail level
        case control::NivelCumAbiertos: return {1.0f, 2.0f, 1.0f, "0", false};  // open cluster detail level
        case control::NivelCumGlobulares: return {1.0f, 2.0f, 1.0f, "0", false};  // globular cluster detail level
        case control::DiametroTelescopio: return {0.5f, 30.0f, 0.5f, "#0.0", false};  // telescope field, degrees
        case control::Longitud: return {-180.0f, 180.0f, 0.5f, "##0.0", true};  // longitude, degrees west positive
        case control::Latitud: return {-90.0f, 90.0f, 0.5f, "#0.0", false};  // latitude, degrees
        case control::ZonaLocali: return {-12.0f, 14.0f, 0.5f, "#0.0", false};  // time zone, hours (location dialog)
        case control::Direccion: return {0.0f, 359.0f, 1.0f, "##0", true};  // view direction, degrees
        case control::Elevacion: return {0.0f, 90.0f, 1.0f, "#0", false};  // view elevation, degrees
        case control::Zoom: return {1.0f, 15.0f, 0.5f, "#0.0", false};  // zoom
        case control::ZonaHora: return {-12.0f, 14.0f, 0.5f, "#0.0", false};  // time zone, hours (date and time dialog)
        case control::MagnitudMinima: return {0.0f, 7.0f, 1.0f, "0", false};  // star magnitude level
        case control::NivelConstelaciones: return {0.0f, 4.0f, 1.0f, "0", false};  // constellation level
        case control::AnchoImpresion: return {50.0f, 280.0f, 5.0f, "##0", false};  // printed picture width, mm
        case control::AltoImpresion: return {50.0f, 200.0f, 5.0f, "##0", false};  // printed picture height, mm
        case control::FactorAnimacion: return {1.0f, 999.0f, 1.0f, "##0", false};  // animation count
        default: return {0.0f, 1.0f, 1.0f, "0", true};
    }
}

const std::array<FormatoValor, NUM_FORMATOS>& Formatos() {
    static const std::array<FormatoValor, NUM_FORMATOS> tabla = [] {
        std::array<FormatoValor, NUM_FORMATOS> t;
        for (int i = 0; i < NUM_FORMATOS; ++i) t[static_cast<std::size_t>(i)] = Registro(i);
        return t;
    }();
    return tabla;
}

}  // namespace

const std::string& Etiqueta(int indice) {
    if (indice < 0 || indice >= NUM_ETIQUETAS) throw ErrorEjecucion(ErrSubindice);
    return Etiquetas()[static_cast<std::size_t>(indice)];
}

const FormatoValor& FormatoIndice(int indice) {
    if (indice < 0 || indice >= NUM_FORMATOS) throw ErrorEjecucion(ErrSubindice);
    return Formatos()[static_cast<std::size_t>(indice)];
}

}  // namespace vedrano
