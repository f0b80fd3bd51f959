#include "config/ItemsConfiguracion.h"

#include <limits>

#include "app/base/Constantes.h"
#include "app/base/TablasControles.h"
#include "catalogue/Catalogos.h"

namespace vedrano {

namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
// The instants the calendar can show: 1 January 4713 BC, 0:00, to the end
// of 31 December 7999.
constexpr double PRIMER_DIA = -0.5, ULTIMO_DIA = 4642999.5;
// The telescope field, 0.5 to 30 degrees as its spin field allows, in
// radians rounded outward so that any value the field stores reads back.
constexpr double CAMPO_MINIMO = 0.0087, CAMPO_MAXIMO = 0.5236;

// A file is read back only within what the control that sets the item
// allows: a value beyond it would reach a table index, a pause or an integer
// conversion the program was never meant to meet.
#define LIMITES(indice) FormatoIndice(indice).Minimo, FormatoIndice(indice).Maximo

#define ENTERO(campo) CampoItem{CampoEntero{[](Estado& e) -> int16_t& { return e.campo; }}}
#define SINGLE(campo) CampoItem{CampoSingle{[](Estado& e) -> float& { return e.campo; }}}
#define DOUBLE(campo) CampoItem{CampoDouble{[](Estado& e) -> double& { return e.campo; }}}
#define BOOLEANO(campo) CampoItem{CampoBooleano{[](Estado& e) -> bool& { return e.campo; }}}
#define CADENA(campo) CampoItem{CampoCadena{[](Estado& e) -> std::string& { return e.campo; }}}

// A check box of the object options: any value is accepted, non-zero is on.
#define CAPA(campo) {"Capas." #campo, ENTERO(Capas.campo), -INF, INF, false}
#define PLANETA(i) {"Capas.Plane[" #i "]", ENTERO(Capas.Plane[i]), -INF, INF, false}

const ItemConfiguracion LINEA1[] = {
    {"FechaJuliana", DOUBLE(FechaJuliana), PRIMER_DIA, ULTIMO_DIA, true},
    {"IndiceLugar", ENTERO(IndiceLugar), 0, N_CIUDADES - 1, true},
    {"Longitud", DOUBLE(Longitud), -DOS_PI, DOS_PI, true},
    {"Latitud", DOUBLE(Latitud), -MEDIO_PI, MEDIO_PI, true},
    {"Direccion", DOUBLE(Direccion), 0, DOS_PI, true},
    {"Elevacion", DOUBLE(Elevacion), 0, MEDIO_PI, true},
    {"Zoom", SINGLE(Zoom), LIMITES(control::Zoom), true},
};

const ItemConfiguracion LINEA2[] = {
    {"TextoLugar", CADENA(TextoLugar), -INF, INF, true},
};

const ItemConfiguracion LINEA3[] = {
    {"NivelEstrellas", ENTERO(NivelEstrellas), LIMITES(control::MagnitudMinima), true},
    {"NivelConstelaciones", ENTERO(NivelConstelaciones), LIMITES(control::NivelConstelaciones), true},
    {"NivelGalaxias", ENTERO(NivelGalaxias), LIMITES(control::NivelGalaxias), true},
    {"NivelNebPlanetarias", ENTERO(NivelNebPlanetarias), LIMITES(control::NivelNebPlanetarias), true},
    {"NivelNebDifusas", ENTERO(NivelNebDifusas), LIMITES(control::NivelNebDifusas), true},
    {"NivelCumAbiertos", ENTERO(NivelCumAbiertos), LIMITES(control::NivelCumAbiertos), true},
    {"NivelCumGlobulares", ENTERO(NivelCumGlobulares), LIMITES(control::NivelCumGlobulares), true},
    // Identification choices: one value per option button of their frame.
    {"IdEstrellas", ENTERO(IdEstrellas), 0, 2, true},
    {"IdConstelaciones", ENTERO(IdConstelaciones), 0, 3, false},
    {"IdMessier", ENTERO(IdMessier), 0, 2, false},
    {"TipoPaso", ENTERO(TipoPaso), 0, 1, false},
    {"TeclaPaso", ENTERO(TeclaPaso), 1, 7, false},
    {"PasoUnidad", ENTERO(PasoUnidad), 1, 12, false},  // indexes the step table
    {"IncluirAnimacion", BOOLEANO(IncluirAnimacion), -INF, INF, false},
    CAPA(Sol), CAPA(Luna),
    PLANETA(0), PLANETA(1), PLANETA(2), PLANETA(3), PLANETA(4), PLANETA(5), PLANETA(6), PLANETA(7),
    PLANETA(8),
    CAPA(Galax), CAPA(NebPl), CAPA(NebDi), CAPA(CumAb), CAPA(CumGl), CAPA(Quasa), CAPA(Pulsa),
    CAPA(Aguje), CAPA(ARDEC30), CAPA(ARDEC15), CAPA(Horiz), CAPA(Eclip), CAPA(LimCo), CAPA(LuzDi),
    CAPA(ViaLa), CAPA(Messi),
    {"IdentificarObjetos", BOOLEANO(IdentificarObjetos), -INF, INF, true},
};

const ItemConfiguracion LINEA4[] = {
    {"AnchoMm", ENTERO(AnchoMm), LIMITES(control::AnchoImpresion), false},
    {"AltoMm", ENTERO(AltoMm), LIMITES(control::AltoImpresion), false},
    {"PanelControl", BOOLEANO(PanelControl), -INF, INF, false},
    {"PanelCursor", BOOLEANO(PanelCursor), -INF, INF, false},
    {"PanelLocalizacion", BOOLEANO(PanelLocalizacion), -INF, INF, false},
    {"PanelObjetos", BOOLEANO(PanelObjetos), -INF, INF, false},
    {"FormatoHora", ENTERO(FormatoHora), LIMITES(control::FormatoHora), true},
    {"Orientacion", ENTERO(Orientacion), LIMITES(control::OrientacionCielo), true},
    {"Precesion", BOOLEANO(Precesion), -INF, INF, false},
    {"Sonido", BOOLEANO(Sonido), -INF, INF, false},
    {"Telescopio", BOOLEANO(Telescopio), -INF, INF, false},
    {"CampoTelescopio", DOUBLE(CampoTelescopio), CAMPO_MINIMO, CAMPO_MAXIMO, true},
    {"Velocidad", ENTERO(Velocidad), LIMITES(control::Velocidad), true},
    {"ZonaHoraria", SINGLE(ZonaHoraria), -24, 24, true},
    {"HorarioVerano", BOOLEANO(HorarioVerano), -INF, INF, false},
    {"PasoCantidad", ENTERO(PasoCantidad), LIMITES(control::FactorAnimacion), true},
    {"TiempoReal", BOOLEANO(TiempoReal), -INF, INF, true},
    {"ImagenEnPantalla", BOOLEANO(ImagenEnPantalla), -INF, INF, true},
};

template <std::size_t N>
constexpr int Cuenta(const ItemConfiguracion (&)[N]) {
    return static_cast<int>(N);
}
static_assert(Cuenta(LINEA1) == ITEMS_POR_LINEA[0] && Cuenta(LINEA2) == ITEMS_POR_LINEA[1] &&
              Cuenta(LINEA3) == ITEMS_POR_LINEA[2] && Cuenta(LINEA4) == ITEMS_POR_LINEA[3]);

}  // namespace

std::span<const ItemConfiguracion> ItemsLinea(int linea) {
    switch (linea) {
        case 1: return LINEA1;
        case 2: return LINEA2;
        case 3: return LINEA3;
        default: return LINEA4;
    }
}

}  // namespace vedrano
