// The stars' proper motions in the precise model: the data against a
// hand computation, the picture and the pointing at the moved place, the
// classic picture untouched; the cursor's altitude without refraction;
// what a damaged motions file does.
#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "../Ayudas.h"
#include "CapasApagadas.h"
#include "astro/Calendario.h"
#include "astro/Precesion.h"
#include "astro/PrecisionAlta.h"
#include "app/estado/Rotaciones.h"
#include "app/estado/Tiempo.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/MovimientosPropios.h"
#include "sky/DibujaCielo.h"
#include "sky/apunta/Apunta.h"
#include "sky/apunta/DiaObjeto.h"
#include "sky/apunta/ObjetoBajo.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

using Avisos = pruebas::Anota;
const Catalogos& Datos() { return pruebas::CatalogosDatos(); }

// Arcturus's index in the table of all stars (the third brightest).
std::size_t Arturo(const Catalogos& c) {
    Vector3f v = AngulosAVector(213.9153 * ERFA_DD2R, 19.1824 * ERFA_DD2R);
    for (std::size_t i = 0; i < 10; ++i)
        if (std::fabs(c.TablaEstrellas[i].Direccion.x - v.x) + std::fabs(c.TablaEstrellas[i].Direccion.y - v.y) < 1e-5)
            return i;
    ADD_FAILURE() << "Arturo no est\xE1";
    return 0;
}

double Separacion(double a1, double d1, double a2, double d2) { return eraSeps(a1, d1, a2, d2) * ERFA_DR2AS; }

// A precise state at `jd` looking at the star's direction of the date.
Estado MirandoA(const Catalogos& c, std::size_t i, double jd, float zoom) {
    Estado e;
    e.Pref.PrecisionAlta = true;
    FijaLugar(e, c.TablaPlanetas, {0.06, 0.7, e.ZonaHoraria, e.HorarioVerano});
    FijaFechaJuliana(e, c.TablaPlanetas, jd);
    Vector3f v = DireccionesEnFecha(c.MovEstrellas, AnosMovimientoPropio(e))(i, c.TablaEstrellas[i].Direccion);
    AplicaPrecesion(e, v);
    Vector3f h = EcuatorialAHorizontal(e, v);
    double direccion = std::atan2(-double{h.x}, double{h.y});
    if (direccion < 0) direccion += 2 * M_PI;
    FijaVista(e, direccion, std::max(0.0, std::asin(double{h.z})));
    FijaZoom(e, zoom);
    GiraDireccion(e);
    return e;
}

}  // namespace

// Arcturus (HIP 69673) from J2000 (213.9153, +19.1824 degrees) with its
// Hipparcos motion (-1093.39, -2000.06 mas/yr), worked by hand on the
// tangent plane: xi = -5466.95", eta = -10000.30" in 5000 years, and back
// to the sphere with a = a0 + atan(xi / (cos d0 - eta sin d0)),
// d = atan((sin d0 + eta cos d0) cos(a - a0) / (cos d0 - eta sin d0)):
// 212.33450, +16.40080 in 7000 AD; 215.55031, +21.95000 in 3000 BC. (The
// first-order a0 + mu_a t / cos d0 would be 1.6' off in right ascension.)
TEST(MovimientosPropios, ArturoEnCincoMilAnosComoALaMano) {
    const Catalogos& c = Datos();
    ASSERT_EQ(c.MovEstrellas.size(), static_cast<std::size_t>(N_ESTRELLAS));
    const std::size_t i = Arturo(c);
    struct Caso {
        double anos, ar, dec;
    };
    for (Caso k : {Caso{5000, 212.33450, 16.40080}, Caso{-5000, 215.55031, 21.95000}}) {
        double ar = 0, dec = 0;
        ASSERT_TRUE(VectorAAngulos(DireccionesEnFecha(c.MovEstrellas, k.anos)(i, c.TablaEstrellas[i].Direccion), ar, dec));
        EXPECT_LT(Separacion(ar, dec, k.ar * ERFA_DD2R, k.dec * ERFA_DD2R), 1.0) << k.anos;
        // ERFA's space motion agrees, for the star at its distance
        // (parallax 88.83 mas) with no radial velocity.
        double a2, d2, pa, pd, px, rv;
        eraStarpm(213.9153 * ERFA_DD2R, 19.1824 * ERFA_DD2R, -1093.39e-3 * ERFA_DAS2R / std::cos(19.1824 * ERFA_DD2R),
                  -2000.06e-3 * ERFA_DAS2R, 0.08883, 0, ERFA_DJ00, 0, ERFA_DJ00 + k.anos * 365.25, 0, &a2, &d2, &pa, &pd, &px, &rv);
        EXPECT_LT(Separacion(ar, dec, a2, d2), 1.0) << k.anos;
    }
    // The same star in the table of names and at a figure's corner moves alike.
    const Vector3f& v = c.TablaEstrellas[i].Direccion;
    auto igual = [&](const Vector3f& w) { return w.x == v.x && w.y == v.y && w.z == v.z; };
    int vistos = 0;
    for (std::size_t k = 0; k < c.TablaEstrellasNombre.size() && k < c.MovEstrellasNombre.size(); ++k)
        if (igual(c.TablaEstrellasNombre[k].Direccion)) {
            EXPECT_EQ(c.MovEstrellasNombre[k].x, c.MovEstrellas[i].x);
            ++vistos;
        }
    for (std::size_t k = 0; k < c.TablaFiguras.size() && k < c.MovFiguras.size(); ++k)
        if (igual(c.TablaFiguras[k].Direccion)) {
            EXPECT_EQ(c.MovFiguras[k].y, c.MovEstrellas[i].y);
            ++vistos;
        }
    EXPECT_GE(vistos, 2);
}

// Arcturus's place of the date in the precise model against ERFA's
// ICRS-to-CIRS transformation (space motion, light deflection,
// aberration, precession-nutation), taken to the true equinox of the date.
TEST(MovimientosPropios, ElLugarDeFechaDeUnaEstrellaComoEnERFA) {
    const Catalogos& c = Datos();
    const std::size_t i = Arturo(c);
    const double a0 = 213.9153 * ERFA_DD2R, d0 = 19.1824 * ERFA_DD2R, mas = ERFA_DAS2R / 1000;
    for (double jd : {2433282.5, 2460400.25, 2484000.75}) {
        Estado e = MirandoA(c, i, jd, 1);
        Vector3f v = DireccionesEnFecha(c.MovEstrellas, AnosMovimientoPropio(e))(i, c.TablaEstrellas[i].Direccion);
        LugarDeFecha(e, v);
        double ar, dec, ri, di, eo;
        VectorAAngulos(v, ar, dec);
        eraAtci13(a0, d0, -1093.39 * mas / std::cos(d0), -2000.06 * mas, 0, 0, jd + DeltaT(jd) / 86400, 0, &ri, &di, &eo);
        EXPECT_LT(Separacion(ar, dec, eraAnp(ri - eo), di), 0.3) << jd;
    }
}

// In 7000 AD the precise picture shows Arcturus 3 degrees from its J2000
// place, and the pointer finds it there; the classic picture is the same
// with or without the motions.
TEST(MovimientosPropios, ElModoPrecisoDibujaYSenalaLaEstrellaMovida) {
    const Catalogos& c = Datos();
    const std::size_t i = Arturo(c);
    const double jd = ERFA_DJ00 + 5000 * 365.25;
    Estado e = MirandoA(c, i, jd, 4);
    Vector3f movida = AngulosAVector(212.33450 * ERFA_DD2R, 16.40080 * ERFA_DD2R);
    Estado dibujo = e;
    ApagaCapas(dibujo);
    dibujo.NivelEstrellas = 1;
    Lienzo l(800, 600);
    ActualizaCielo(dibujo, c, l);
    auto luz = [&](const Vector3f& v) {
        PuntoProyectado p = ProyectaPunto(dibujo, v);
        QPointF px = l.APixel(p.X, p.Y);
        return qGray(l.Imagen().pixel(static_cast<int>(px.x()), static_cast<int>(px.y())));
    };
    EXPECT_GT(luz(movida), 100);
    EXPECT_EQ(luz(c.TablaEstrellas[i].Direccion), 0);

    PuntoProyectado p = ProyectaPunto(dibujo, movida);
    // The pass's one matrix (aberration, refraction) puts it where the pointer looks.
    PuntoProyectado q = Proyecta(PreparaVistas(dibujo).catalogo, movida);
    EXPECT_LT(std::hypot(q.X - p.X, q.Y - p.Y), 2e-6);
    ObjetoSenalado o = ObjetoBajo(dibujo, c, p.X, p.Y, 0.003f);
    EXPECT_EQ(o.clase, ClaseObjeto::Estrella);
    EXPECT_EQ(o.indice, static_cast<int>(i));

    dibujo.Pref.PrecisionAlta = false;
    Catalogos sinMovimientos = c;
    sinMovimientos.MovEstrellas.clear();
    sinMovimientos.MovFiguras.clear();
    dibujo.NivelEstrellas = 7;
    dibujo.NivelConstelaciones = 4;
    Lienzo otro(800, 600);
    ActualizaCielo(dibujo, c, l);
    ActualizaCielo(dibujo, sinMovimientos, otro);
    EXPECT_TRUE(l.Imagen() == otro.Imagen());
}

// The day of Arcturus chosen from the star list in 7000 AD follows its
// moved place: its rising, transit and setting are those of the place
// worked by hand above.
TEST(MovimientosPropios, ElDiaDeUnaEstrellaDeLaListaSigueSuMovimiento) {
    const Catalogos& c = Datos();
    Estado e = MirandoA(c, Arturo(c), ERFA_DJ00 + 5000 * 365.25, 1);
    int linea = -1;
    for (std::size_t k = 0; k < c.IndiceListaEstrellas.size(); ++k)
        if (c.TablaEstrellasNombre[static_cast<std::size_t>(c.IndiceListaEstrellas[k])].Designacion.texto().rfind("Alf Boo", 0) == 0)
            linea = static_cast<int>(k);
    ObjetoDelDia o;
    ASSERT_TRUE(ObjetoDeLista(c, 3, linea, o));
    const DiaObjeto lista = HallaDia(e, c.TablaPlanetas, o);
    const DiaObjeto mano = HallaDia(e, c.TablaPlanetas, {0, 212.33450 * ERFA_DD2R, 16.40080 * ERFA_DD2R});
    for (auto evento : {&OrtoTransitoOcaso::orto, &OrtoTransitoOcaso::transito, &OrtoTransitoOcaso::ocaso}) {
        ASSERT_TRUE((lista.horizonte.*evento).hay && (mano.horizonte.*evento).hay);
        EXPECT_NEAR((lista.horizonte.*evento).jd, (mano.horizonte.*evento).jd, 0.5 / 1440);
    }
}

// The cursor reads a star's true altitude: the inverse takes off the lift
// the picture gave it, which matches Bennett's formula for the apparent
// altitude (Meeus eq. 16.3) to 0.1'.
TEST(MovimientosPropios, ElCursorQuitaLaRefraccion) {
    const Catalogos& c = Datos();
    const std::size_t i = Arturo(c);
    double peor = 0;
    for (int paso = 0; paso < 300; ++paso) {
        Estado e = MirandoA(c, i, 2460400.0 + paso * 0.004, 1);
        const Vector3f movida = DireccionesEnFecha(c.MovEstrellas, AnosMovimientoPropio(e))(i, c.TablaEstrellas[i].Direccion);
        Vector3f v = movida;
        LugarDeFecha(e, v);
        const double verdadera = std::asin(double{EcuatorialAHorizontal(e, v).z});
        if (verdadera < -0.5 * ERFA_DD2R || verdadera > 80 * ERFA_DD2R) continue;
        PuntoProyectado p = ProyectaPunto(e, movida);
        double ar, dec;
        float alt = 0, az = 0;
        PuntoACielo(e, p.X, p.Y, ar, dec, alt, az);
        EXPECT_NEAR(alt, verdadera, 2e-6) << paso;
        double ar0, dec0;
        VectorAAngulos(v, ar0, dec0);
        EXPECT_LT(Separacion(ar, dec, ar0, dec0), 1.0) << paso;
        e.Pref.PrecisionAlta = false;  // the classic inverse reads the altitude as drawn
        PuntoACielo(e, p.X, p.Y, ar, dec, alt, az);
        const double aparente = alt * ERFA_DR2D;
        const double bennett = 1 / std::tan((aparente + 7.31 / (aparente + 4.4)) * ERFA_DD2R);
        EXPECT_NEAR((aparente - verdadera * ERFA_DR2D) * 60, bennett, 0.1) << aparente;
        peor = std::max(peor, std::fabs((aparente - verdadera * ERFA_DR2D) * 60 - bennett));
    }
    EXPECT_GT(peor, 0.0);  // some altitudes were tried
}

// A damaged motions file is told and leaves every table without motions;
// a missing one is no error.
TEST(MovimientosPropios, SinFicheroODanadoLasEstrellasSeQuedanEnJ2000) {
    fs::path dir = fs::temp_directory_path() / "vedrano_sin_movimientos";
    fs::create_directories(dir);
    Catalogos c = Datos();
    Avisos a;
    CargaMovimientos(dir.string() + "/", c, a);
    EXPECT_TRUE(a.vistos.empty());
    EXPECT_TRUE(c.MovEstrellas.empty() && c.MovEstrellasNombre.empty() && c.MovFiguras.empty());

    const std::string bueno = pruebas::LeeArchivo(std::string(VEDRANO_DATOS) + "VDRDATN.DAT");
    std::string enorme = bueno;
    enorme[20 + 8 * 100 + 3] = 0x7f;  // a motion of 3e38 mas/yr
    for (const std::string& malo : {bueno.substr(0, bueno.size() - 8), enorme, std::string(bueno.size(), 'x')}) {
        std::ofstream(dir / "VDRDATN.DAT", std::ios::binary) << malo;
        c = Datos();
        a.vistos.clear();
        CargaMovimientos(dir.string() + "/", c, a);
        ASSERT_EQ(a.vistos.size(), 1u);
        EXPECT_NE(a.vistos[0].texto.find("movimientos propios"), std::string::npos);
        EXPECT_TRUE(c.MovEstrellas.empty() && c.MovEstrellasNombre.empty() && c.MovFiguras.empty());
    }
    fs::remove_all(dir);
}
