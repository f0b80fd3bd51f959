// Centring on a target and the cursor panel's texts.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "../Ayudas.h"
#include "app/acciones/Centrado.h"
#include "app/base/Texto1252.h"
#include "astro/Coordenadas.h"
#include "app/estado/Tiempo.h"
#include "catalogue/TablaPlanetas.h"
#include "sky/apunta/Apunta.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;

namespace {

using pruebas::Anota;

const TablaPlanetas& Planetas() { return pruebas::CatalogosDatos().TablaPlanetas; }

Estado Base() {
    Estado e;
    e.DirArchivo = (std::filesystem::temp_directory_path() / "vedrano_apunta").string() + "/";
    std::filesystem::create_directories(e.DirArchivo);
    FijaFechaJuliana(e, Planetas(), 2460300.3);
    return e;
}

}  // namespace

TEST(Apunta, CulminationAimsTheView) {
    Anota m;
    Estado e = Base();
    e.ObjetivoAR = 1.0;
    e.ObjetivoDEC = e.Latitud;  // culminates at the zenith
    ASSERT_TRUE(CentraObjeto(e, Planetas(), m));
    EXPECT_DOUBLE_EQ(e.Elevacion, 1.5707963268);
    EXPECT_EQ(e.Direccion, 0.0);
    EXPECT_TRUE(std::filesystem::exists(e.DirArchivo + "Temporal.wrk"));

    Estado s = Base();
    s.ObjetivoAR = 2.0;
    s.ObjetivoDEC = s.Latitud - 1.5707963268;  // just grazes the southern horizon: accepted
    ASSERT_TRUE(CentraObjeto(s, Planetas(), m));
    EXPECT_NEAR(s.Elevacion, 0.0, 1e-15);
    EXPECT_EQ(s.Direccion, 3.1415926536);

    Estado n = Base();
    double antes = n.FechaJuliana;
    n.ObjetivoAR = 2.0;
    n.ObjetivoDEC = n.Latitud - 1.5707963268 - 1e-9;  // never rises
    EXPECT_FALSE(CentraObjeto(n, Planetas(), m));
    EXPECT_EQ(n.FechaJuliana, antes);
    ASSERT_FALSE(m.vistos.empty());
    EXPECT_EQ(DesdeA1252(m.vistos.back().texto),
              "Ese punto  se  encuentra bajo  el  horizonte  y  no  es  visible desde la Latitud actual");
}

TEST(Apunta, AStarEndsNearTheCentre) {
    // After centring, the star's hour angle is left by the solar-day time
    // step: up to a day's 0.99 degrees of the Sun's motion.
    Anota m;
    double peor = 0;
    for (double ar = 0.1; ar < 6.28; ar += 0.37) {
        Estado e = Base();
        FijaZoom(e, 2);
        e.ObjetivoAR = ar;
        e.ObjetivoDEC = 0.3;
        Vector3f v = AngulosAVector(ar, 0.3);
        ASSERT_TRUE(CentraObjeto(e, Planetas(), m));
        AjustaEscala(e, 1024, 768);
        PuntoProyectado p = ProyectaPunto(e, v);
        double pixeles = std::hypot(p.X, p.Y) * 1024 / std::fabs(e.EscalaAncho);
        peor = std::max(peor, pixeles);
        double H = std::remainder(e.TiempoSidereo - ar, 2 * M_PI);
        EXPECT_LE(std::fabs(H), 0.0175) << ar;
    }
    EXPECT_LT(peor, 12.0);
    RecordProperty("peor_distancia_pixeles", std::to_string(peor));
}

TEST(Apunta, CursorTexts) {
    Estado e = Base();
    FijaVista(e, PI, 0.5);
    GiraDireccion(e);
    TextosCursor fuera = InformeCursor(e, 0.9f, 0.9f);
    EXPECT_EQ(fuera.AR, " ");
    EXPECT_EQ(fuera.Azimut, " ");
    TextosCursor centro = InformeCursor(e, 0.0f, 0.0f);
    EXPECT_EQ(centro.AR.rfind("A.R. = ", 0), 0u);
    EXPECT_EQ(DesdeA1252(centro.Altitud), "Altitud =  28° 38' 52\"");  // 0.5 rad
    EXPECT_NEAR(e.CursorAzimut, M_PI, 1e-5);
}
