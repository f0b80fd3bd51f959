// The catalogue tables, filled once at start-up from the files of Datos/
// and read-only afterwards. Record counts are fixed constants; the arrays
// have their final size from the start. Texts are Windows-1252, fixed
// width; angles are radians; directions are unit vectors
// x = -sin a |cos d|, y = sin d, z = cos a |cos d|.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "astro/Vector3f.h"
#include "catalogue/Registros.h"
#include "catalogue/TablaPlanetas.h"

namespace vedrano {

struct Ciudad {  // VDRDATH.DAT, 28 bytes
    CadenaFija<20> Nombre;  // 15 characters of name and the country code: "Madrid         (ESP)"
    float Longitud = 0;     // west positive
    float Latitud = 0;
};

struct ObjetoMessier {  // VDRDATG.DAT, 66 bytes
    CadenaFija<1> Clase;    // "1".."6": the symbol
    CadenaFija<6> Numero;   // NGC number as listed
    float AR = 0, DEC = 0;
    CadenaFija<4> Magnitud;  // visual magnitude as text, right-aligned
    CadenaFija<20> Tipo;     // type in Spanish and the constellation
    CadenaFija<15> Nombre;   // common name
    Vector3f Direccion;
};

struct Constelacion {  // VDRDATE.DAT, 94 bytes
    int16_t Nivel = 0;
    CadenaFija<3> Abreviatura;
    CadenaFija<20> NombreLatino, Genitivo, NombreCastellano;
    CadenaFija<9> Visible;
    float AR = 0, DEC = 0;  // the label's place
    Vector3f Direccion;
};

struct PuntoTrazo {  // VDRDATB.DAT and VDRDATC.DAT, 14 bytes
    int16_t Pluma = 0;  // non-zero starts a new stroke
    Vector3f Direccion;
};

struct ObjetoProfundo {  // galaxies, nebulae and clusters, 28 bytes
    CadenaFija<6> Designacion;
    float AR = 0, DEC = 0;
    int16_t Clase = 0;  // size class, 1 the largest
    Vector3f Direccion;
};

struct EstrellaNombre {  // VDRDAT2.DAT, 44 bytes
    CadenaFija<8> Designacion;
    CadenaFija<10> Nombre;
    float AR = 0, DEC = 0, Magnitud = 0;
    int16_t Tipo = 0;  // 0 ordinary, 1 variable, 2 multiple, 3 both
    Vector3f Direccion;
};

struct Estrella {  // VDRDAT1.DAT, 18 bytes
    float Magnitud = 0;
    int16_t Tipo = 0;
    Vector3f Direccion;
};

struct ObjetoExotico {  // quasars, pulsars, black holes, 32 bytes
    CadenaFija<12> Nombre;
    float AR = 0, DEC = 0;
    Vector3f Direccion;
};

// Index of the last record drawn at each detail level 0..7 (-1 draws none).
using TablaCuentas = std::array<int16_t, 8>;

struct Cuentas {  // VDRDATA.DAT, 8 records of 8 Integers
    TablaCuentas Estrellas{}, Rotulos{}, Figuras{}, Galaxias{}, NebPlanetarias{}, NebDifusas{},
        CumAbiertos{}, CumGlobulares{};
};

inline constexpr int N_CIUDADES = 178, N_MESSIER = 109, N_CONSTELACIONES = 88, N_FIGURAS = 873,
                     N_GALAXIAS = 1234, N_NEB_PLANETARIAS = 142, N_NEB_DIFUSAS = 174,
                     N_ESTRELLAS_NOMBRE = 2583, N_ESTRELLAS = 26520, N_PUNTOS_CIELO = 900,
                     N_LIMITES = 7262, N_CUM_ABIERTOS = 296, N_CUM_GLOBULARES = 75, N_CUASARES = 148,
                     N_PULSARES = 185, N_AGUJEROS = 3;

// The lists that the search and location forms show, built while loading.
struct ListasCatalogo {
    std::vector<std::string> Lugares, Messier, Constelaciones, Galaxias, NebPlanetarias, NebDifusas,
        Estrellas, CumAbiertos, CumGlobulares, Cuasares, Pulsares, Agujeros, SistemaSolar;
};

struct Catalogos {
    std::vector<Ciudad> TablaCiudades = std::vector<Ciudad>(N_CIUDADES);
    ::vedrano::TablaPlanetas TablaPlanetas{};
    std::vector<ObjetoMessier> TablaMessier = std::vector<ObjetoMessier>(N_MESSIER);
    std::vector<Constelacion> TablaConstelaciones = std::vector<Constelacion>(N_CONSTELACIONES);
    std::vector<PuntoTrazo> TablaFiguras = std::vector<PuntoTrazo>(N_FIGURAS);
    std::vector<ObjetoProfundo> TablaGalaxias = std::vector<ObjetoProfundo>(N_GALAXIAS);
    std::vector<ObjetoProfundo> TablaNebPlanetarias = std::vector<ObjetoProfundo>(N_NEB_PLANETARIAS);
    std::vector<ObjetoProfundo> TablaNebDifusas = std::vector<ObjetoProfundo>(N_NEB_DIFUSAS);
    std::vector<EstrellaNombre> TablaEstrellasNombre = std::vector<EstrellaNombre>(2586);  // 2583 read
    std::vector<Estrella> TablaEstrellas = std::vector<Estrella>(26527);                   // 26520 read
    std::vector<Vector3f> TablaPuntosCielo = std::vector<Vector3f>(N_PUNTOS_CIELO);  // Milky Way; (0,0,0) ends a stroke
    std::vector<PuntoTrazo> TablaLimites = std::vector<PuntoTrazo>(N_LIMITES);
    std::vector<ObjetoProfundo> TablaCumAbiertos = std::vector<ObjetoProfundo>(N_CUM_ABIERTOS);
    std::vector<ObjetoProfundo> TablaCumGlobulares = std::vector<ObjetoProfundo>(N_CUM_GLOBULARES);
    std::vector<ObjetoExotico> TablaCuasares = std::vector<ObjetoExotico>(N_CUASARES);
    std::vector<ObjetoExotico> TablaPulsares = std::vector<ObjetoExotico>(N_PULSARES);
    std::vector<ObjetoExotico> TablaAgujeros = std::vector<ObjetoExotico>(N_AGUJEROS);
    Cuentas TablasCuentas;
    std::vector<int16_t> IndiceListaEstrellas;  // star-list line k -> TablaEstrellasNombre index
    // Proper motions of TablaEstrellas, TablaEstrellasNombre and TablaFiguras,
    // record by record, as directions per Julian year; empty without VDRDATN.DAT.
    std::vector<Vector3f> MovEstrellas, MovEstrellasNombre, MovFiguras;
    ListasCatalogo Listas;
};

}  // namespace vedrano
