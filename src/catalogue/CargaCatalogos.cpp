#include "catalogue/CargaCatalogos.h"

#include <filesystem>
#include <span>

#include "catalogue/ArchivoRegistros.h"
#include "catalogue/DatosFisicosPlanetas.h"
#include "catalogue/DecodificaRegistros.h"
#include "catalogue/LineasLista.h"
#include "catalogue/MovimientosPropios.h"
#include "catalogue/TrampaCarga.h"

namespace vedrano {

namespace {

struct SinLista {};

// One file: open, one read of the whole table, the list line of each
// record in record order, close. Every statement runs under the trap: when
// it fails it is reported and the next one runs, so a missing file gives
// the message of the open, then those of the read and the close of a file
// that is not open, and the lines are built from what the table held.
template <class Registro, class PorRegistro = SinLista>
void CargaTabla(TrampaCarga& siFalla, const std::string& dirDatos, const char* fichero, std::size_t largo,
                long primerRegistro, std::span<Registro> tabla, PorRegistro porRegistro = {}) {
    ArchivoRegistros f;
    const std::string ruta = (std::filesystem::path(dirDatos) / fichero).string();
    siFalla.Archivo(ruta);
    siFalla.AvisaYSigue([&] { f.Abre(ruta, largo); });
    siFalla.AvisaYSigue([&] { f.Lee(primerRegistro, tabla); });
    if constexpr (!std::is_same_v<PorRegistro, SinLista>) {
        for (std::size_t i = 0; i < tabla.size(); ++i) siFalla.AvisaYSigue([&] { porRegistro(i, tabla[i]); });
    }
    siFalla.AvisaYSigue([&] { f.Cierra(); });
}

template <class Registro>
std::span<Registro> Primeros(std::vector<Registro>& v, std::size_t n) {
    return std::span<Registro>(v.data(), n);
}

// Each line goes to the end of its list; a line whose building fails is
// left out (the trap reports why).
auto Anade(std::vector<std::string>& lista, auto linea) {
    return [&lista, linea](std::size_t i, const auto& registro) { lista.push_back(linea(i, registro)); };
}

// The star list: walks the named stars in order and lists at most 1483 of
// them. The counter moves and the index is stored even when building the
// line fails, as separate statements do under the trap.
void ListaEstrellas(TrampaCarga& siFalla, Catalogos& c) {
    c.IndiceListaEstrellas.assign(MAX_LINEAS_ESTRELLAS, 0);
    int16_t contador = -1;
    for (int16_t i = 0; i < N_ESTRELLAS_NOMBRE; ++i) {
        const EstrellaNombre& e = c.TablaEstrellasNombre[static_cast<std::size_t>(i)];
        if (!EntraEnListaEstrellas(e) || contador >= MAX_LINEAS_ESTRELLAS - 1) continue;
        siFalla.AvisaYSigue([&] { c.Listas.Estrellas.push_back(LineaEstrella(e)); });
        ++contador;
        c.IndiceListaEstrellas[static_cast<std::size_t>(contador)] = i;
    }
    c.IndiceListaEstrellas.resize(static_cast<std::size_t>(contador + 1));
}

// A count names the last record drawn at a level; one beyond its table
// would send a plotter past the table's end. Such counts are brought within
// the table and reported as a subscript out of range.
void AjustaCuentas(TablaCuentas& cuentas, int tamano) {
    bool fuera = false;
    for (int16_t& v : cuentas) {
        if (v >= -1 && v < tamano) continue;
        v = static_cast<int16_t>(v < -1 ? -1 : tamano - 1);
        fuera = true;
    }
    if (fuera) throw ErrorEjecucion(ErrSubindice);
}

}  // namespace

void CargaCatalogos(const std::string& dirDatos, Catalogos& c, InterfazMensajes& n) {
    TrampaCarga siFalla(n);
    ListasCatalogo& l = c.Listas;
    l = ListasCatalogo{};
    l.SistemaSolar.assign(FILAS_SISTEMA_SOLAR.begin(), FILAS_SISTEMA_SOLAR.end());

    CargaTabla(siFalla, dirDatos, "VDRDATH.DAT", LARGO_CIUDAD, 1, Primeros(c.TablaCiudades, N_CIUDADES),
               Anade(l.Lugares, [](std::size_t, const Ciudad& r) { return r.Nombre.texto(); }));
    // The planet table starts at index 1: records 2 to 12.
    CargaTabla(siFalla, dirDatos, "VDRDATF.DAT", LARGO_REGISTRO_PLANETA, 2,
               std::span<ElementosPlaneta>(c.TablaPlanetas.data() + 1, 11));
    CargaTabla(siFalla, dirDatos, "VDRDATG.DAT", LARGO_MESSIER, 1, Primeros(c.TablaMessier, N_MESSIER),
               Anade(l.Messier, [](std::size_t i, const ObjetoMessier& r) {
                   return LineaMessier(static_cast<int>(i) + 1, r);
               }));
    CargaTabla(siFalla, dirDatos, "VDRDATE.DAT", LARGO_CONSTELACION, 1,
               Primeros(c.TablaConstelaciones, N_CONSTELACIONES),
               Anade(l.Constelaciones, [](std::size_t, const Constelacion& r) { return LineaConstelacion(r); }));
    CargaTabla(siFalla, dirDatos, "VDRDATB.DAT", LARGO_PUNTO_TRAZO, 1, Primeros(c.TablaFiguras, N_FIGURAS));

    auto profundo = [](std::size_t, const ObjetoProfundo& r) { return LineaProfundo(r); };
    CargaTabla(siFalla, dirDatos, "VDRDAT3.DAT", LARGO_PROFUNDO, 1, Primeros(c.TablaGalaxias, N_GALAXIAS),
               Anade(l.Galaxias, profundo));
    CargaTabla(siFalla, dirDatos, "VDRDAT4.DAT", LARGO_PROFUNDO, 1,
               Primeros(c.TablaNebPlanetarias, N_NEB_PLANETARIAS), Anade(l.NebPlanetarias, profundo));
    CargaTabla(siFalla, dirDatos, "VDRDAT5.DAT", LARGO_PROFUNDO, 1, Primeros(c.TablaNebDifusas, N_NEB_DIFUSAS),
               Anade(l.NebDifusas, profundo));

    // The named stars are read whole before their list is built.
    CargaTabla(siFalla, dirDatos, "VDRDAT2.DAT", LARGO_ESTRELLA_NOMBRE, 1,
               Primeros(c.TablaEstrellasNombre, N_ESTRELLAS_NOMBRE));
    ListaEstrellas(siFalla, c);

    CargaTabla(siFalla, dirDatos, "VDRDAT1.DAT", LARGO_ESTRELLA, 1, Primeros(c.TablaEstrellas, N_ESTRELLAS));
    CargaTabla(siFalla, dirDatos, "VDRDATD.DAT", LARGO_PUNTO_CIELO, 1,
               Primeros(c.TablaPuntosCielo, N_PUNTOS_CIELO));

    // The further tables that the plotters and the search form read.
    CargaTabla(siFalla, dirDatos, "VDRDATC.DAT", LARGO_PUNTO_TRAZO, 1, Primeros(c.TablaLimites, N_LIMITES));
    auto cumulo = [](std::size_t, const ObjetoProfundo& r) {
        return LineaCodigoPosicion(SANGRIA_CUMULOS, r.Designacion.texto(), r.AR, r.DEC);
    };
    CargaTabla(siFalla, dirDatos, "VDRDATI.DAT", LARGO_PROFUNDO, 1, Primeros(c.TablaCumAbiertos, N_CUM_ABIERTOS),
               Anade(l.CumAbiertos, cumulo));
    CargaTabla(siFalla, dirDatos, "VDRDATJ.DAT", LARGO_PROFUNDO, 1,
               Primeros(c.TablaCumGlobulares, N_CUM_GLOBULARES), Anade(l.CumGlobulares, cumulo));
    auto exotico = [](std::string_view sangria) {
        return [sangria](std::size_t, const ObjetoExotico& r) {
            return LineaCodigoPosicion(sangria, r.Nombre.texto(), r.AR, r.DEC);
        };
    };
    CargaTabla(siFalla, dirDatos, "VDRDATK.DAT", LARGO_EXOTICO, 1, Primeros(c.TablaCuasares, N_CUASARES),
               Anade(l.Cuasares, exotico(SANGRIA_CUASARES)));
    CargaTabla(siFalla, dirDatos, "VDRDATL.DAT", LARGO_EXOTICO, 1, Primeros(c.TablaPulsares, N_PULSARES),
               Anade(l.Pulsares, exotico(SANGRIA_PULSARES)));
    CargaTabla(siFalla, dirDatos, "VDRDATM.DAT", LARGO_EXOTICO, 1, Primeros(c.TablaAgujeros, N_AGUJEROS),
               Anade(l.Agujeros, exotico(SANGRIA_AGUJEROS)));

    // The count tables: eight records, one per table, in this order.
    Cuentas& k = c.TablasCuentas;
    TablaCuentas* destinos[] = {&k.Estrellas, &k.Rotulos,       &k.Figuras,     &k.Galaxias,
                                &k.NebPlanetarias, &k.NebDifusas, &k.CumAbiertos, &k.CumGlobulares};
    std::array<TablaCuentas, 8> cuentas;
    for (std::size_t i = 0; i < cuentas.size(); ++i) cuentas[i] = *destinos[i];
    CargaTabla(siFalla, dirDatos, "VDRDATA.DAT", LARGO_CUENTAS, 1, std::span<TablaCuentas>(cuentas));
    const int tamanos[] = {N_ESTRELLAS,       N_ESTRELLAS_NOMBRE, N_FIGURAS,      N_GALAXIAS,
                           N_NEB_PLANETARIAS, N_NEB_DIFUSAS,      N_CUM_ABIERTOS, N_CUM_GLOBULARES};
    for (std::size_t i = 0; i < cuentas.size(); ++i) {
        siFalla.AvisaYSigue([&] { AjustaCuentas(cuentas[i], tamanos[i]); });
        *destinos[i] = cuentas[i];
    }
    // Read after the tables whose directions the motions are tangent to.
    CargaMovimientos(dirDatos, c, n);
}

}  // namespace vedrano
