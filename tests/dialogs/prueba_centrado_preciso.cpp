// Centring from the search in the precise model: the view aims where the
// star is drawn, moved by its proper motion and referred to the date.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "../Ayudas.h"
#include "astro/Calendario.h"
#include "app/estado/Tiempo.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/MovimientosPropios.h"
#include "app/acciones/Centrado.h"
#include "app/acciones/ObjetivoBusqueda.h"
#include "sky/apunta/Apunta.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;
namespace fs = std::filesystem;

// Centring from the search in the precise model puts the star where it is
// drawn at the centre of the picture.
TEST(MovimientosPropios, ElModoPrecisoCentraDondeDibuja) {
    pruebas::Anota m;
    const Catalogos& c = pruebas::CatalogosDatos();
    ASSERT_FALSE(c.MovEstrellasNombre.empty());
    Estado e;
    e.DirArchivo = (fs::temp_directory_path() / "vedrano_movimientos").string() + "/";
    fs::create_directories(e.DirArchivo);
    e.Pref.PrecisionAlta = true;
    FijaFechaJuliana(e, c.TablaPlanetas, FechaAJuliana(ArmaCadenaFecha(-1500, 3, 1, 20, 0)));
    for (int linea : {0, 3, 10}) {
        FijaObjetivo(e, c, 3, linea);
        ASSERT_TRUE(CentraObjeto(e, c.TablaPlanetas, m));
        AjustaEscala(e);
        const std::size_t k = static_cast<std::size_t>(c.IndiceListaEstrellas[static_cast<std::size_t>(linea)]);
        const Vector3f v = DireccionesEnFecha(c.MovEstrellasNombre, AnosMovimientoPropio(e))(k, c.TablaEstrellasNombre[k].Direccion);
        PuntoProyectado p = ProyectaPunto(e, v);
        EXPECT_LT(std::hypot(p.X, p.Y) * 180 / M_PI * 60, 1.0) << linea;
    }
}

