// The shipped catalogue files: reproducible from the sources, with the
// record counts, lengths and orders the loader and the plotters rely on,
// and positions that agree with published coordinates.
#include <erfa.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <cstring>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <unistd.h>

#include "catalogue/Registros.h"

namespace {

using vedrano::LectorCampos;
namespace fs = std::filesystem;

std::string Lee(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
}

std::string Fichero(const std::string& nombre) { return Lee(std::string(VEDRANO_DATOS) + nombre); }

std::string_view Registro(const std::string& datos, int largo, int indice) {
    return std::string_view(datos).substr(static_cast<std::size_t>(indice) * largo, largo);
}

double Radianes(double grados, double minutos, double segundos) {
    double s = std::signbit(grados) ? -1.0 : 1.0;
    return s * (std::fabs(grados) + minutos / 60.0 + segundos / 3600.0) * M_PI / 180.0;
}
double Horas(double h, double m, double s) { return Radianes(h, m, s) * 15.0; }

double Separacion(double ar1, double d1, double ar2, double d2) { return eraSeps(ar1, d1, ar2, d2); }

const double UN_MINUTO = M_PI / 180.0 / 60.0;

struct Tabla {
    const char* nombre;
    int largo;
    int registros;
};

const Tabla TABLAS[] = {
    {"VDRDATH.DAT", 28, 178},  {"VDRDATG.DAT", 66, 109},   {"VDRDATE.DAT", 94, 88},
    {"VDRDATB.DAT", 14, 873},  {"VDRDAT3.DAT", 28, 1234},  {"VDRDAT4.DAT", 28, 142},
    {"VDRDAT5.DAT", 28, 174},  {"VDRDAT2.DAT", 44, 2583},  {"VDRDAT1.DAT", 18, 26520},
    {"VDRDATD.DAT", 12, 900},  {"VDRDATA.DAT", 16, 8},     {"VDRDATI.DAT", 28, 296},
    {"VDRDATJ.DAT", 28, 75},   {"VDRDATM.DAT", 32, 3},
};

TEST(DatosCatalogo, LosFicherosSeRegeneranIgualesDesdeLasFuentes) {
    ASSERT_TRUE(fs::is_directory(VEDRANO_FUENTES_DATOS)) << VEDRANO_FUENTES_DATOS;
    fs::path tmp = fs::temp_directory_path() / ("vedrano-datos-" + std::to_string(::getpid()));
    fs::remove_all(tmp);
    std::string orden = std::string("python3 \"") + VEDRANO_RAIZ + "/tools/genera_datos.py\" \"" +
                        VEDRANO_FUENTES_DATOS + "\" \"" + tmp.string() + "\"";
    ASSERT_EQ(std::system(orden.c_str()), 0);
    int comparados = 0;
    for (const auto& e : fs::directory_iterator(VEDRANO_DATOS)) {
        if (e.path().extension() != ".DAT") continue;
        SCOPED_TRACE(e.path().filename().string());
        EXPECT_EQ(Lee(tmp / e.path().filename()), Lee(e.path()));
        ++comparados;
    }
    EXPECT_GE(comparados, 18);
    fs::remove_all(tmp);
}

TEST(DatosCatalogo, CadaFicheroTieneSusRegistrosEnteros) {
    for (const auto& t : TABLAS) {
        SCOPED_TRACE(t.nombre);
        EXPECT_EQ(Fichero(t.nombre).size(), static_cast<std::size_t>(t.largo) * t.registros);
    }
    // Quasars and pulsars: whole 32-byte records, a few hundred at most.
    for (const char* n : {"VDRDATK.DAT", "VDRDATL.DAT"}) {
        auto d = Fichero(n);
        EXPECT_EQ(d.size() % 32, 0u) << n;
        EXPECT_GT(d.size() / 32, 50u) << n;
    }
    EXPECT_EQ(Fichero("VDRDATC.DAT").size() % 14, 0u);
}

// Checks the direction against RA and Dec read just before it.
void CompruebaDireccion(LectorCampos& l, double ar, double dec) {
    double x = l.Simple(), y = l.Simple(), z = l.Simple();
    EXPECT_NEAR(x * x + y * y + z * z, 1.0, 1e-6);
    EXPECT_NEAR(x, -std::sin(ar) * std::fabs(std::cos(dec)), 1e-6);
    EXPECT_NEAR(y, std::sin(dec), 1e-6);
    EXPECT_NEAR(z, std::cos(ar) * std::fabs(std::cos(dec)), 1e-6);
    EXPECT_GE(ar, 0.0);
    EXPECT_LT(ar, 2 * M_PI);
}

TEST(DatosCatalogo, LasDireccionesSonUnitariasYCoincidenConAscensionYDeclinacion) {
    struct Con { const char* nombre; int largo; int saltoAntes; int saltoEntre; };
    // Bytes before RA, bytes between Dec and the direction.
    const Con conPosicion[] = {
        {"VDRDATG.DAT", 66, 7, 39}, {"VDRDATE.DAT", 94, 94 - 20, 0},
        {"VDRDAT3.DAT", 28, 6, 2},  {"VDRDAT4.DAT", 28, 6, 2}, {"VDRDAT5.DAT", 28, 6, 2},
        {"VDRDATI.DAT", 28, 6, 2},  {"VDRDATJ.DAT", 28, 6, 2}, {"VDRDAT2.DAT", 44, 18, 6},
        {"VDRDATK.DAT", 32, 12, 0}, {"VDRDATL.DAT", 32, 12, 0}, {"VDRDATM.DAT", 32, 12, 0},
    };
    for (const auto& c : conPosicion) {
        SCOPED_TRACE(c.nombre);
        auto d = Fichero(c.nombre);
        for (std::size_t i = 0; i + c.largo <= d.size(); i += c.largo) {
            LectorCampos l(std::string_view(d).substr(i, c.largo));
            l.Salta(c.saltoAntes);
            double ar = l.Simple(), dec = l.Simple();
            l.Salta(c.saltoEntre);
            CompruebaDireccion(l, ar, dec);
        }
    }
    for (const char* n : {"VDRDAT1.DAT", "VDRDATB.DAT"}) {
        auto d = Fichero(n);
        int largo = n[6] == '1' ? 18 : 14;
        for (std::size_t i = 0; i + largo <= d.size(); i += largo) {
            LectorCampos l(std::string_view(d).substr(i + largo - 12, 12));
            double x = l.Simple(), y = l.Simple(), z = l.Simple();
            ASSERT_NEAR(x * x + y * y + z * z, 1.0, 1e-6) << n << " byte " << i;
        }
    }
}

TEST(DatosCatalogo, OrdenesYTablasDeCuentas) {
    auto estrellas = Fichero("VDRDAT1.DAT");
    std::vector<float> mag;
    for (int i = 0; i < 26520; ++i) {
        LectorCampos l(Registro(estrellas, 18, i));
        mag.push_back(l.Simple());
        int tipo = l.Entero();
        ASSERT_TRUE(tipo >= 0 && tipo <= 3);
        if (i) {
            ASSERT_LE(mag[i - 1], mag[i]);
        }
    }
    auto nombradas = Fichero("VDRDAT2.DAT");
    float previa = -9;
    for (int i = 0; i < 2583; ++i) {
        LectorCampos l(Registro(nombradas, 44, i));
        l.Salta(26);
        float m = l.Simple();
        ASSERT_LE(previa, m);
        previa = m;
    }
    auto cuentas = Fichero("VDRDATA.DAT");
    // The count tables' order: stars, names, figures, then the deep sky.
    const Tabla niveles[] = {TABLAS[8], TABLAS[7], TABLAS[3], TABLAS[4], TABLAS[5], TABLAS[6], TABLAS[11], TABLAS[12]};
    for (int t = 0; t < 8; ++t) {
        SCOPED_TRACE(niveles[t].nombre);
        LectorCampos l(Registro(cuentas, 16, t));
        auto d = Fichero(niveles[t].nombre);
        int anterior = -1;
        for (int nivel = 0; nivel < 8; ++nivel) {
            int n = l.Entero();
            EXPECT_GE(n, anterior);
            EXPECT_LT(n, niveles[t].registros);
            anterior = n;
            if (t < 3) continue;
            // Deep sky: level L draws exactly the classes 1..L, a prefix.
            auto clase = [&](int i) {
                LectorCampos r(Registro(d, 28, i));
                r.Salta(14);
                return static_cast<int>(r.Entero());
            };
            if (n >= 0) {
                EXPECT_LE(clase(n), nivel);
            }
            if (n + 1 < niveles[t].registros) {
                EXPECT_GT(clase(n + 1), nivel);
            }
        }
        // The last level draws the whole table (figures leave spare room,
        // star labels stop at magnitude 4.5).
        if (t != 1 && t != 2) {
            EXPECT_EQ(anterior, niveles[t].registros - 1);
        }
    }
    // Every star of the first level is brighter than the first of the next.
    LectorCampos l(Registro(cuentas, 16, 0));
    for (int nivel = 0; nivel < 7; ++nivel) {
        int n = l.Entero();
        EXPECT_LT(mag[n], mag[n + 1]);
    }
}

struct Conocido {
    const char* fichero;
    int largo;
    int campoNombre;  // characters of the name at the start of the record
    const char* nombre;
    int saltoPosicion;  // bytes from the start to RA
    double ar, dec;
};

// Published J2000 positions (SIMBAD, CDS Strasbourg) typed here.
const Conocido CONOCIDOS[] = {
    {"VDRDAT2.DAT", 44, 8, "Alf CMa", 18, Horas(6, 45, 8.917), Radianes(-16, 42, 58.02)},
    {"VDRDAT2.DAT", 44, 8, "Alf Car", 18, Horas(6, 23, 57.110), Radianes(-52, 41, 44.38)},
    {"VDRDAT2.DAT", 44, 8, "Alf Lyr", 18, Horas(18, 36, 56.336), Radianes(38, 47, 1.28)},
    {"VDRDAT2.DAT", 44, 8, "Alf UMi", 18, Horas(2, 31, 49.09), Radianes(89, 15, 50.8)},
    {"VDRDAT2.DAT", 44, 8, "Alf Ori", 18, Horas(5, 55, 10.305), Radianes(7, 24, 25.43)},
    {"VDRDAT2.DAT", 44, 8, "Alf Sco", 18, Horas(16, 29, 24.460), Radianes(-26, 25, 55.21)},
    {"VDRDAT3.DAT", 28, 6, "N5128", 6, Horas(13, 25, 27.62), Radianes(-43, 1, 8.8)},
    {"VDRDATL.DAT", 32, 12, "B0531+21", 12, Horas(5, 34, 31.94), Radianes(22, 0, 52.2)},
    {"VDRDATL.DAT", 32, 12, "B0833-45", 12, Horas(8, 35, 20.61), Radianes(-45, 10, 34.9)},
    {"VDRDATK.DAT", 32, 12, "3C 273", 12, Horas(12, 29, 6.70), Radianes(2, 3, 8.6)},
    {"VDRDATM.DAT", 32, 12, "Cygnus X-1", 12, Horas(19, 58, 21.68), Radianes(35, 12, 5.8)},
    {"VDRDATM.DAT", 32, 12, "Sagitario A*", 12, Horas(17, 45, 40.04), Radianes(-29, 0, 28.1)},
};

std::string Recorta(std::string_view t) { return std::string(t.substr(0, t.find_last_not_of(' ') + 1)); }

TEST(DatosCatalogo, ObjetosConocidosEnSuPosicionPublicada) {
    for (const auto& c : CONOCIDOS) {
        SCOPED_TRACE(c.nombre);
        auto d = Fichero(c.fichero);
        bool hallado = false;
        for (std::size_t i = 0; i + c.largo <= d.size() && !hallado; i += c.largo) {
            if (Recorta(d.substr(i, c.campoNombre)) != c.nombre) continue;
            hallado = true;
            LectorCampos l(std::string_view(d).substr(i, c.largo));
            l.Salta(c.saltoPosicion);
            double ar = l.Simple(), dec = l.Simple();
            EXPECT_LT(Separacion(ar, dec, c.ar, c.dec), UN_MINUTO);
        }
        EXPECT_TRUE(hallado);
    }
    // Messier: the record index is the number minus one. SIMBAD positions,
    // SEDS for the Pleiades (cluster centre).
    struct M { int numero; double ar, dec; double tolerancia = UN_MINUTO; };
    const M messier[] = {{1, Horas(5, 34, 31.94), Radianes(22, 0, 52.2)},
                         {13, Horas(16, 41, 41.24), Radianes(36, 27, 35.5)},
                         {31, Horas(0, 42, 44.33), Radianes(41, 16, 7.5)},
                         {42, Horas(5, 35, 17.3), Radianes(-5, 23, 28)},
                         // Two degrees across: its centre is a convention.
                         {45, Horas(3, 47, 24), Radianes(24, 7, 0), 2 * UN_MINUTO},
                         {57, Horas(18, 53, 35.08), Radianes(33, 1, 45.0)}};
    auto g = Fichero("VDRDATG.DAT");
    for (const auto& m : messier) {
        LectorCampos l(Registro(g, 66, m.numero - 1));
        l.Salta(7);
        double ar = l.Simple(), dec = l.Simple();
        EXPECT_LT(Separacion(ar, dec, m.ar, m.dec), m.tolerancia) << "M" << m.numero;
    }
    for (int i = 0; i < 109; ++i) ASSERT_TRUE(g[66 * i] >= '1' && g[66 * i] <= '6');
}

TEST(DatosCatalogo, LugaresConocidosYElPuntoInicialEnElIndice95) {
    auto h = Fichero("VDRDATH.DAT");
    auto lugar = [&](int i, double& oeste, double& latitud) {
        LectorCampos l(Registro(h, 28, i));
        std::string nombre = l.Texto<20>().texto();
        oeste = l.Simple();
        latitud = l.Simple();
        return nombre;
    };
    double oeste, latitud;
    std::string inicial = lugar(95, oeste, latitud);
    EXPECT_EQ(static_cast<float>(oeste), static_cast<float>(0.0829029977321625));
    EXPECT_EQ(static_cast<float>(latitud), static_cast<float>(0.640890002250671));
    EXPECT_EQ(inicial.substr(15), "(ESP)");
    // City coordinates as published (degrees, minutes, seconds; west and
    // south negative), Instituto Geografico Nacional and Wikipedia.
    struct L { const char* nombre; double lat, lon; };
    const L lugares[] = {{"Madrid         (ESP)", Radianes(40, 25, 0), Radianes(-3, 42, 0)},
                         {"M\xE1laga         (ESP)", Radianes(36, 43, 0), Radianes(-4, 25, 0)},
                         {"S.C. Tenerife  (ESP)", Radianes(28, 28, 0), Radianes(-16, 15, 0)},
                         {"Buenos Aires   (ARG)", Radianes(-34, 36, 12), Radianes(-58, 22, 54)}};
    for (const auto& esperado : lugares) {
        bool hallado = false;
        for (int i = 0; i < 178; ++i) {
            std::string n = lugar(i, oeste, latitud);
            if (n != esperado.nombre) continue;
            hallado = true;
            EXPECT_LE(oeste, 2 * M_PI);
            double este = oeste > M_PI ? 2 * M_PI - oeste : -oeste;
            EXPECT_LT(Separacion(este, latitud, esperado.lon, esperado.lat), UN_MINUTO)
                << esperado.nombre;
        }
        EXPECT_TRUE(hallado) << esperado.nombre;
    }
}

// Names and magnitudes as the sky has them: one star per proper name, no
// numbered members of old asterisms, each star under its own
// constellation's designation, Miras at maximum, globular clusters at their
// integrated visual magnitude (Harris 2010: M13 5.8, M71 8.2), and the
// zodiac as Spanish astronomers name it.
TEST(DatosCatalogo, NombresYMagnitudesComoLosDaElCielo) {
    const std::string estrellas = Fichero("VDRDAT2.DAT");
    std::map<std::string, int> nombres;
    std::map<std::string, std::string> porDesignacion;
    std::map<std::string, float> magnitud;
    for (int i = 0; i < 2583; ++i) {
        std::string_view r = Registro(estrellas, 44, i);
        std::string d = Recorta(r.substr(0, 8)), n = Recorta(r.substr(8, 10));
        float m;
        std::memcpy(&m, r.data() + 26, 4);
        porDesignacion[d] = n;
        magnitud[d] = m;
        if (n.empty()) continue;
        EXPECT_EQ(++nombres[n], 1) << n;
        EXPECT_EQ(n.find(" I"), std::string::npos) << n;  // "Alrial III", "Almizan I"
        EXPECT_EQ(n.find(" V"), std::string::npos) << n;
    }
    EXPECT_EQ(porDesignacion.count("Ups Per"), 0u);
    EXPECT_EQ(porDesignacion.count("Psi10Aur"), 0u);
    EXPECT_EQ(porDesignacion["51 And"], "Nembus");
    EXPECT_EQ(porDesignacion["16 Lyn"], "");
    EXPECT_EQ(porDesignacion["Alf Gru"], "Alnair");
    EXPECT_NEAR(magnitud["Omi Cet"], 2.0, 0.05);
    EXPECT_NEAR(magnitud["Chi Cyg"], 3.3, 0.05);

    const std::string messier = Fichero("VDRDATG.DAT");
    auto mag = [&messier](int m) { return std::stod(std::string(Registro(messier, 66, m - 1).substr(15, 4))); };
    const struct {
        int m;
        double v;
    } harris[] = {{13, 5.8}, {71, 8.2}, {14, 7.6}, {10, 6.6}, {19, 6.8}, {22, 5.1}};
    for (const auto& h : harris) EXPECT_NEAR(mag(h.m), h.v, 0.45) << "M" << h.m;

    const std::string constelaciones = Fichero("VDRDATE.DAT");
    std::map<std::string, std::string> espanol;
    for (int i = 0; i < 88; ++i) {
        std::string_view r = Registro(constelaciones, 94, i);
        std::string e(r.substr(45, 20));
        espanol[std::string(r.substr(2, 3))] = e.substr(0, e.find_last_not_of(' ') + 1);
    }
    const char* zodiaco[][2] = {{"Ari", "Aries"},  {"Tau", "Tauro"},       {"Gem", "G\xE9minis"}, {"Cnc", "C\xE1ncer"},
                                {"Vir", "Virgo"},  {"Lib", "Libra"},       {"Sco", "Escorpio"},  {"Sgr", "Sagitario"},
                                {"Cap", "Capricornio"}, {"Aqr", "Acuario"}, {"Psc", "Piscis"}};
    for (const auto& z : zodiaco) EXPECT_EQ(espanol[z[0]], z[1]) << z[0];
}

}  // namespace
