// The deep star file: what the generator wrote (counts, order within each
// zone, directions against the independent Hipparcos list), the zones a
// view visits, and files that are missing, cut, empty or damaged.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <tuple>

#include "astro/Coordenadas.h"
#include "catalogue/EstrellasProfundas.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

const std::string ARCHIVO = std::string(VEDRANO_DATOS) + "VDRDATP.DAT";

std::string Contenido(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

fs::path Escribe(const std::string& nombre, const std::string& bytes) {
    fs::path d = fs::temp_directory_path() / "vedrano_profundas";
    fs::create_directories(d);
    std::ofstream(d / nombre, std::ios::binary) << bytes;
    return d / nombre;
}

// From the chord, which keeps small angles between single-precision
// vectors (an arc cosine would blur them to a minute of arc).
double Angulo(const Vector3f& a, const Vector3f& b) {
    const double dx = double{a.x} - b.x, dy = double{a.y} - b.y, dz = double{a.z} - b.z;
    return 2 * std::asin(std::fmin(1.0, std::sqrt(dx * dx + dy * dy + dz * dz) / 2));
}

}  // namespace

TEST(EstrellasProfundas, TheFileHoldsTheFaintStarsZoneByZoneBrightestFirst) {
    EstrellasProfundas p;
    std::string mensaje;
    ASSERT_TRUE(p.Abre(ARCHIVO, mensaje)) << mensaje;
    EXPECT_GT(p.Cuenta(), 500000u);
    EXPECT_LT(p.Cuenta(), 650000u);
    std::size_t hastaTablas = 0;
    for (const ZonaProfunda& z : p.Zonas()) {
        float anterior = -10;
        for (uint32_t i = z.Primera; i < z.Primera + z.Cuenta; ++i) {
            const EstrellaProfunda s = p.Estrella(i);
            ASSERT_GE(s.Magnitud(), anterior) << "zone at star " << i;
            ASSERT_LE(s.Magnitud(), 10.5f);
            anterior = s.Magnitud();
            hastaTablas += s.Magnitud() <= 7.5f;
            // Every star lies within its zone's radius of the centre.
            ASSERT_LE(Angulo(DireccionProfunda(z, s), z.Centro), z.Radio + 1e-5) << i;
        }
    }
    // The program's tables hold the stars to 7.54: few brighter ones are left.
    EXPECT_LT(hastaTablas, p.Cuenta() / 100);
}

TEST(EstrellasProfundas, HipparcosStarsFainterThanTheTablesAreInTheFile) {
    // The Hipparcos list (XHIP) is independent of the star files the layer
    // is made from: its stars between V 7.7 and 8.0 must have a deep star
    // within a few seconds of arc and a tenth of a magnitude or so.
    EstrellasProfundas p;
    std::string mensaje;
    ASSERT_TRUE(p.Abre(ARCHIVO, mensaje)) << mensaje;
    std::ifstream hip(std::string(VEDRANO_FUENTES_DATOS) + "/estrellas/estrellas_hip_v8.csv");
    ASSERT_TRUE(hip);
    std::string linea;
    std::getline(hip, linea);
    int probadas = 0, halladas = 0;
    for (int n = 0; std::getline(hip, linea) && probadas < 300; ++n) {
        if (n % 37) continue;  // a sample over the whole sky
        std::istringstream s(linea);
        std::string campo[4];
        for (auto& c : campo) std::getline(s, c, ',');
        const double ar = std::stod(campo[1]), dec = std::stod(campo[2]), v = std::stod(campo[3]);
        if (v < 7.7 || v > 8.0) continue;
        ++probadas;
        const Vector3f d = AngulosAVector(ar * M_PI / 180, dec * M_PI / 180);
        const double dd[3] = {d.x, d.y, d.z};
        bool hallada = false;
        for (const ZonaProfunda& z : p.Zonas()) {
            if (!ZonaCerca(z, dd, 1e-4) || hallada) continue;
            for (uint32_t i = z.Primera; i < z.Primera + z.Cuenta && !hallada; ++i) {
                const EstrellaProfunda e = p.Estrella(i);
                hallada = Angulo(DireccionProfunda(z, e), d) < 10.0 / 206265 && std::fabs(e.Magnitud() - v) < 0.3;
            }
        }
        halladas += hallada;
    }
    EXPECT_GT(probadas, 100);
    // Magnitude systems differ a little (Hipparcos V against Tycho V): a
    // few stars sit just over the line.
    EXPECT_GE(halladas, probadas * 95 / 100) << halladas << " of " << probadas;
}

TEST(EstrellasProfundas, AViewVisitsEveryZoneWithStarsInsideItAndFewOthers) {
    EstrellasProfundas p;
    std::string mensaje;
    ASSERT_TRUE(p.Abre(ARCHIVO, mensaje)) << mensaje;
    // Deneb's field at a zoom of about 15, a band near the pole and one on
    // the equator: every star within the field is in a visited zone.
    for (auto [ar, dec, campo] : {std::tuple{310.35, 45.28, 0.05}, {12.0, 88.5, 0.1}, {180.0, 0.0, 0.3}}) {
        const Vector3f v = AngulosAVector(ar * M_PI / 180, dec * M_PI / 180);
        const double eje[3] = {v.x, v.y, v.z};
        std::size_t visitadas = 0, dentro = 0;
        for (const ZonaProfunda& z : p.Zonas()) {
            const bool cerca = ZonaCerca(z, eje, campo);
            visitadas += cerca;
            for (uint32_t i = z.Primera; i < z.Primera + z.Cuenta; ++i)
                if (Angulo(DireccionProfunda(z, p.Estrella(i)), v) <= campo) {
                    ++dentro;
                    ASSERT_TRUE(cerca) << "zone " << (&z - p.Zonas().data()) << " at " << ar << " " << dec;
                }
        }
        EXPECT_GT(dentro, 10u);
        EXPECT_LT(visitadas, p.Zonas().size() / 20) << ar << " " << dec;
    }
}

TEST(EstrellasProfundas, ABadFileIsRefusedWithASpanishMessageAndNothingOpen) {
    const std::string bueno = Contenido(ARCHIVO);
    ASSERT_GT(bueno.size(), 100000u);
    std::string danado = bueno;
    std::memset(&danado[16 + 52 * 7 + 48], 0xFF, 4);  // a zone claims too many stars
    std::string nan = bueno;
    std::memset(&nan[16 + 52 * 3], 0xFF, 4);  // a centre that is no number
    std::string otraVersion = bueno;
    otraVersion[4] = 2;
    const struct {
        std::string nombre, bytes, dice;
    } casos[] = {
        {"vacio.dat", "", "está vacío"},
        {"cabecera.dat", bueno.substr(0, 10), "no es válido"},
        {"cortado.dat", bueno.substr(0, bueno.size() - 5), "su tamaño no cuadra"},
        {"alargado.dat", bueno + "x", "su tamaño no cuadra"},
        {"zona.dat", danado, "no es válido"},
        {"nan.dat", nan, "no es válido"},
        {"version.dat", otraVersion, "no empieza como"},
        {"texto.dat", std::string(5000, 'A'), "no es válido"},
    };
    EstrellasProfundas p;
    for (const auto& c : casos) {
        std::string mensaje;
        EXPECT_FALSE(p.Abre(Escribe(c.nombre, c.bytes).string(), mensaje)) << c.nombre;
        EXPECT_NE(mensaje.find(c.dice), std::string::npos) << c.nombre << ": " << mensaje;
        EXPECT_NE(mensaje.find(c.nombre), std::string::npos) << mensaje;  // names the file
        EXPECT_FALSE(p.Abierto());
        EXPECT_TRUE(p.Zonas().empty());
    }
    std::string mensaje;
    EXPECT_FALSE(p.Abre((fs::temp_directory_path() / "vedrano_profundas" / "no-existe.dat").string(), mensaje));
    EXPECT_NE(mensaje.find("No se pueden leer las estrellas débiles"), std::string::npos) << mensaje;
    EXPECT_NE(mensaje.find("no existe"), std::string::npos) << mensaje;

    // A good file after bad ones opens; a bad one after it closes it.
    EXPECT_TRUE(p.Abre(ARCHIVO, mensaje));
    EXPECT_FALSE(p.Abre(Escribe("vacio.dat", "").string(), mensaje));
    EXPECT_FALSE(p.Abierto());
    EXPECT_EQ(p.Cuenta(), 0u);
}
