// Configuration files on disk: round trips, the samples, the name rules and
// the questions, a missing file, and files that are damaged in every way.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

#include "../Ayudas.h"
#include "app/base/Texto1252.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "config/EscribeConfiguracion.h"
#include "config/ItemsConfiguracion.h"
#include "config/LeeConfiguracion.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

using pruebas::LeeArchivo;

void Escribe(const fs::path& p, const std::string& texto) { std::ofstream(p, std::ios::binary) << texto; }

// Every item's written text, to compare states item by item.
std::vector<std::string> Items(const Estado& e) {
    std::vector<std::string> v;
    for (int linea = 1; linea <= 4; ++linea)
        for (const auto& item : ItemsLinea(linea)) v.push_back(TextoItem(e, item));
    return v;
}

class Configuracion : public ::testing::Test {
protected:
    void SetUp() override { e.DirArchivo = carpeta.string() + "/"; }
    std::vector<std::string> Archivos() { return dir.Nombres(); }
    pruebas::CarpetaPrueba dir{"vedrano_config"};
    const fs::path& carpeta = dir.ruta;
    Estado e;
    pruebas::Anota ui;
};

// A state that differs from a fresh one in every item.
Estado EstadoPoblado() {
    Estado e;
    const TablaPlanetas sinElementos{};  // the refreshes' values are not written
    FijaFechaJuliana(e, sinElementos, 2451545.12345678);  // 15 digits, all kept
    e.IndiceLugar = 177;
    FijaLugar(e, sinElementos, {6.1, -1.2, -9.5f, true});
    FijaVista(e, DOS_PI, MEDIO_PI);  // the ends of the ranges read back
    FijaZoom(e, 14.75f);
    e.TextoLugar = A1252("Tromsø, \"el norte\"");
    e.NivelEstrellas = 0;
    e.NivelConstelaciones = 4;
    e.NivelGalaxias = 1;
    for (int16_t* p : {&e.NivelNebPlanetarias, &e.NivelNebDifusas, &e.NivelCumAbiertos, &e.NivelCumGlobulares})
        *p = 2;
    e.IdEstrellas = 2;
    e.IdConstelaciones = 3;
    e.IdMessier = 2;
    e.TipoPaso = 0;
    e.TeclaPaso = 7;
    e.PasoUnidad = 12;
    e.IncluirAnimacion = true;
    e.Capas.Sol = 0;
    e.Capas.Plane[8] = 0;
    e.Capas.Messi = 1;
    e.IdentificarObjetos = false;
    e.AnchoMm = 210;
    e.AltoMm = 50;
    e.PanelCursor = true;
    e.FormatoHora = 2;
    FijaOrientacion(e, 2);
    e.Precesion = true;
    e.CampoTelescopio = 30 / 57.29577951289617;
    e.Velocidad = 99;
    e.PasoCantidad = 999;
    e.TiempoReal = true;
    e.ImagenEnPantalla = true;
    return e;
}

}  // namespace

TEST_F(Configuracion, EscribirLeerEscribirDaLosMismosBytes) {
    Estado poblado = EstadoPoblado();
    poblado.DirArchivo = e.DirArchivo;
    ASSERT_TRUE(EscribeConfiguracion(poblado, "Uno", ui, false).escrito);
    ResultadoConfiguracion r = LeeConfiguracion(e, "Uno.ls1", ui);
    EXPECT_EQ(r.error, 0);
    EXPECT_EQ(Items(e), Items(poblado));
    EXPECT_EQ(e.TextoLugar, poblado.TextoLugar);
    EXPECT_EQ(e.FechaJuliana, poblado.FechaJuliana);
    ASSERT_TRUE(EscribeConfiguracion(e, "Dos", ui, false).escrito);
    std::string uno = LeeArchivo(carpeta / "Uno.ls1");
    EXPECT_EQ(LeeArchivo(carpeta / "Dos.ls1"), uno);
    EXPECT_TRUE(ui.vistos.empty());
    // Four lines, each ended by CR LF, and no temporary file left behind.
    EXPECT_EQ(std::count(uno.begin(), uno.end(), '\n'), 4);
    EXPECT_EQ(std::count(uno.begin(), uno.end(), '\r'), 4);
    EXPECT_EQ(Archivos(), (std::vector<std::string>{"Dos.ls1", "Uno.ls1"}));
}

TEST_F(Configuracion, LasMuestrasCarganSinMensajeYSeReescribenIguales) {
    const char* nombres[] = {"Inicial.ls1", "Constelaciones.ls1", "Cúmula de Virgo.ls1", "Eclipse 1990.ls1",
                             "Eclipse 1991.ls1", "Eclipse 2005.ls1", "Marte retrógrado.ls1",
                             "Planetas 1986.ls1", "Planetas 2002.ls1", "Planetas Interiores.ls1",
                             "Pléyades.ls1", "Plutón.ls1", "Sol bisiesto.ls1", "Sol de medianoche.ls1"};
    const std::string archivo = std::string(VEDRANO_RAIZ) + "/Archivo/";
    for (const char* nombre : nombres) {
        Estado m;
        m.DirArchivo = archivo;
        ResultadoConfiguracion r = LeeConfiguracion(m, nombre, ui);
        EXPECT_EQ(r.error, 0) << nombre << ": " << DesdeA1252(r.texto);
        m.DirArchivo = e.DirArchivo;
        EscribeConfiguracion(m, nombre, ui, false);
        EXPECT_EQ(LeeArchivo(carpeta / nombre), LeeArchivo(fs::path(archivo) / nombre)) << nombre;
    }
    EXPECT_TRUE(ui.vistos.empty());
    // The start-up sky: stars to magnitude 5.5, figures and names, horizon and planets.
    Estado inicial;
    inicial.DirArchivo = archivo;
    LeeConfiguracion(inicial, "Inicial.ls1", ui);
    EXPECT_EQ(inicial.IndiceLugar, 95);
    EXPECT_EQ(inicial.Longitud, 0.0829029977321625);
    EXPECT_EQ(inicial.NivelEstrellas, 5);
    EXPECT_GT(inicial.NivelConstelaciones, 0);
    EXPECT_NE(inicial.IdConstelaciones, 0);
    EXPECT_TRUE(inicial.Capas.Horiz && inicial.Capas.Plane[0] && inicial.Capas.Plane[8]);
}

TEST_F(Configuracion, ArchivoQueNoExisteDejaLosValoresPorOmision) {
    FijaFechaJuliana(e, TablaPlanetas{}, 1);
    e.IndiceLugar = 3;
    FijaZoom(e, 9);
    e.TextoLugar = "x";
    e.NivelGalaxias = 7;
    e.IdentificarObjetos = false;
    e.IdConstelaciones = 3;  // items without a default keep their values
    e.AnchoMm = 99;
    ResultadoConfiguracion r = LeeConfiguracion(e, "Nada.ls1", ui);
    EXPECT_EQ(r.error, 53);
    ASSERT_EQ(ui.vistos.size(), 1u);
    EXPECT_EQ(ui.vistos[0].texto, A1252("No existe un archivo de configuración con ese nombre.\r\n") +
                                      e.DirArchivo + "Nada.ls1");
    EXPECT_EQ(ui.vistos[0].titulo, A1252("Cargar configuración"));
    EXPECT_EQ(ui.vistos[0].botones, 1);
    EXPECT_EQ(ui.vistos[0].icono, 1);
    EXPECT_EQ(e.FechaJuliana, 2482294.0);
    EXPECT_EQ(e.IndiceLugar, 95);
    EXPECT_EQ(e.Longitud, 0.0829029977321625);
    EXPECT_EQ(e.Latitud, 0.640890002250671);
    EXPECT_EQ(e.Direccion, 3.1415926536);
    EXPECT_EQ(e.Elevacion, 0.785398852000001);
    EXPECT_EQ(e.Zoom, 2.0f);
    EXPECT_EQ(e.TextoLugar, "");
    EXPECT_EQ(e.NivelGalaxias, 3);
    EXPECT_TRUE(e.IdentificarObjetos);
    EXPECT_EQ(e.IdConstelaciones, 3);
    EXPECT_EQ(e.AnchoMm, 99);
}

TEST_F(Configuracion, ReglasDelNombreYPreguntaAntesDeSustituir) {
    struct Caso {
        const char* dado;
        const char* escrito;
    };
    for (Caso c : {Caso{"Prueba", "Prueba.ls1"}, Caso{"Prueba.txt", "Prueba.ls1"}, Caso{"PRUEBA.LS1", "PRUEBA.LS1"},
                   Caso{"x.wrk", "x.wrk"}, Caso{"a.b.ls1", "a.b.ls1"}, Caso{"a.b.c", "a.ls1"}}) {
        fs::remove_all(carpeta);
        fs::create_directories(carpeta);
        ResultadoConfiguracion r = EscribeConfiguracion(e, c.dado, ui, false);
        EXPECT_TRUE(r.escrito) << c.dado;
        EXPECT_EQ(Archivos(), std::vector<std::string>{c.escrito}) << c.dado;
    }
    EXPECT_TRUE(ui.vistos.empty());

    for (const char* malo : {".ls1", "", "../fuera", "a/b.ls1"}) {
        ResultadoConfiguracion r = EscribeConfiguracion(e, malo, ui, false);
        EXPECT_FALSE(r.escrito) << malo;
        ASSERT_FALSE(ui.vistos.empty());
        EXPECT_EQ(ui.vistos.back().texto, "El archivo debe tener el formato:  nombre.ls1");
        EXPECT_EQ(ui.vistos.back().titulo, A1252("Guardar configuración"));
    }
    EXPECT_EQ(Archivos(), std::vector<std::string>{"a.ls1"});
    ui.vistos.clear();

    // Declining leaves the old file, with no error.
    std::string antes = LeeArchivo(carpeta / "a.ls1");
    FijaZoom(e, 7);
    ui.respuesta = 0;
    ResultadoConfiguracion r = EscribeConfiguracion(e, "a", ui, false);
    EXPECT_FALSE(r.escrito);
    EXPECT_EQ(r.error, 0);
    ASSERT_EQ(ui.vistos.size(), 1u);
    EXPECT_EQ(ui.vistos[0].botones, 2);
    EXPECT_EQ(ui.vistos[0].texto.rfind(A1252("Ya existe un archivo con ese  nombre.  ¿Desea"), 0), 0u);
    EXPECT_EQ(LeeArchivo(carpeta / "a.ls1"), antes);
    // Accepting replaces it; the work file is replaced without asking.
    ui.respuesta = -1;
    EXPECT_TRUE(EscribeConfiguracion(e, "a", ui, false).escrito);
    EXPECT_NE(LeeArchivo(carpeta / "a.ls1"), antes);
    ui.vistos.clear();
    EXPECT_TRUE(EscribeConfiguracion(e, "Temporal.wrk", ui, true).escrito);
    EXPECT_TRUE(EscribeConfiguracion(e, "Temporal.wrk", ui, true).escrito);
    EXPECT_TRUE(ui.vistos.empty());
    EXPECT_EQ(Archivos(), (std::vector<std::string>{"Temporal.wrk", "a.ls1"}));
}

TEST_F(Configuracion, CarpetaInexistenteSeInformaSinEscribirNada) {
    e.DirArchivo = (carpeta / "no" / "hay").string() + "/";
    ResultadoConfiguracion r = EscribeConfiguracion(e, "x", ui, false);
    EXPECT_FALSE(r.escrito);
    EXPECT_EQ(r.error, 76);
    ASSERT_EQ(ui.vistos.size(), 1u);
    EXPECT_NE(ui.vistos[0].texto.find("76"), std::string::npos);
    EXPECT_TRUE(Archivos().empty());
}

// Damaged files: the fault is reported with its number and place, the items
// before it are kept, the rest keep their earlier values.
TEST_F(Configuracion, ArchivosDanadosSeInformanYConservanLoLeido) {
    const std::string bueno = TextoConfiguracion(EstadoPoblado());
    std::vector<std::string> lineas;
    for (std::size_t i = 0, j; (j = bueno.find("\r\n", i)) != std::string::npos; i = j + 2)
        lineas.push_back(bueno.substr(i, j - i));
    ASSERT_EQ(lineas.size(), 4u);
    auto junta = [](std::vector<std::string> v) {
        std::string t;
        for (auto& l : v) t += l + "\r\n";
        return t;
    };
    auto cambia = [&](int linea, int dato, const std::string& texto) {
        std::vector<std::string> v = lineas;
        std::string& l = v[static_cast<std::size_t>(linea - 1)];
        std::size_t inicio = 0;
        for (int k = 1; k < dato; ++k) inicio = l.find(',', inicio) + 1;
        std::size_t fin = l.find(',', inicio);
        l.replace(inicio, fin == std::string::npos ? std::string::npos : fin - inicio, texto);
        return junta(v);
    };
    struct Caso {
        std::string nombre, contenido;
        int error, linea, dato;
    };
    const std::vector<Caso> casos = {
        {"dos lineas", lineas[0] + "\r\n" + lineas[1] + "\r\n", 62, 3, 1},
        {"vacio", "", 62, 1, 1},
        {"no numerico", cambia(1, 3, "abc"), 13, 1, 3},
        {"numero enorme", cambia(1, 1, "1E+300"), 380, 1, 1},
        {"desbordamiento", cambia(1, 7, "1E+39"), 6, 1, 7},
        {"entero enorme", cambia(4, 13, "99999"), 6, 4, 13},
        {"lugar fuera", cambia(1, 2, "178"), 380, 1, 2},
        {"nivel fuera", cambia(3, 1, "8"), 380, 3, 1},
        {"booleano malo", cambia(3, 14, "#SI#"), 13, 3, 14},
        {"dato de mas", cambia(1, 7, "2,3"), 13, 1, 8},
        {"dato de menos", junta({lineas[0], lineas[1], lineas[2], lineas[3].substr(0, lineas[3].rfind(','))}), 62, 4, 18},
        {"linea cortada", lineas[0] + "\r\n\"Madr\"", 62, 2, 1},
        {"comillas abiertas", junta({lineas[0], "\"abc", lineas[2], lineas[3]}), 13, 2, 0},
        // The ranges of the controls hold on loading: beyond them a direction
        // overflowed its degrees at start-up, a speed froze the window.
        {"direccion 600", cambia(1, 5, "600"), 380, 1, 5},
        {"direccion negativa", cambia(1, 5, "-600"), 380, 1, 5},
        {"direccion maxima", cambia(1, 5, "1.7976931348623157E+308"), 380, 1, 5},
        {"elevacion bajo el horizonte", cambia(1, 6, "-0.1"), 380, 1, 6},
        {"zoom cero", cambia(1, 7, "0"), 380, 1, 7},
        {"nivel de galaxias", cambia(3, 3, "5"), 380, 3, 3},
        {"nivel de nebulosas", cambia(3, 4, "0"), 380, 3, 4},
        {"ancho", cambia(4, 1, "0"), 380, 4, 1},
        {"alto", cambia(4, 2, "30000"), 380, 4, 2},
        {"formato de hora", cambia(4, 7, "3"), 380, 4, 7},
        {"orientacion", cambia(4, 8, "0"), 380, 4, 8},
        {"campo del telescopio", cambia(4, 12, "-1"), 380, 4, 12},
        {"velocidad -32768", cambia(4, 13, "-32768"), 380, 4, 13},
        {"cantidad de pasos", cambia(4, 16, "0"), 380, 4, 16},
    };
    for (const Caso& c : casos) {
        Escribe(carpeta / "d.ls1", c.contenido);
        Estado fresco;
        fresco.DirArchivo = e.DirArchivo;
        Estado leido = fresco;
        ui.vistos.clear();
        ResultadoConfiguracion r = LeeConfiguracion(leido, "d.ls1", ui);
        EXPECT_EQ(r.error, c.error) << c.nombre;
        EXPECT_EQ(r.linea, c.linea) << c.nombre;
        EXPECT_EQ(r.dato, c.dato) << c.nombre;
        EXPECT_EQ(ui.vistos.size(), c.error == 6 ? 0u : 1u) << c.nombre;
        EXPECT_NE(r.texto.find(std::to_string(c.error)), std::string::npos) << c.nombre;
        if (c.dato >= 1 && c.dato <= ITEMS_POR_LINEA[static_cast<std::size_t>(c.linea - 1)]) {
            const std::string item = ItemsLinea(c.linea)[static_cast<std::size_t>(c.dato - 1)].nombre;
            EXPECT_NE(r.texto.find("(" + item + ")"), std::string::npos) << c.nombre << ": " << r.texto;
        }
        // Items before the faulty one (and never those of a line with the
        // wrong count) come from the file; all others are untouched.
        std::vector<std::string> obtenidos = Items(leido), esperados = Items(EstadoPoblado()),
                                 iniciales = Items(fresco);
        bool lineaEntera = c.dato >= 1 && c.dato <= ITEMS_POR_LINEA[static_cast<std::size_t>(c.linea - 1)] &&
                           c.error != 62;
        std::size_t k = 0;
        for (int linea = 1; linea <= 4; ++linea)
            for (int dato = 1; dato <= ITEMS_POR_LINEA[static_cast<std::size_t>(linea - 1)]; ++dato, ++k) {
                bool antes = linea < c.linea || (linea == c.linea && lineaEntera && dato < c.dato);
                EXPECT_EQ(obtenidos[k], antes ? esperados[k] : iniciales[k]) << c.nombre << " " << linea << "." << dato;
            }
    }
}

// Cut anywhere, or filled with noise, a file never yields a value that was
// not in it, and the reader always comes back.
TEST_F(Configuracion, ArchivosTruncadosOBasuraNuncaDanValoresFalsos) {
    const std::string bueno = TextoConfiguracion(EstadoPoblado());
    const std::vector<std::string> completo = Items(EstadoPoblado()), iniciales = Items(Estado{});
    for (std::size_t largo = 0; largo < bueno.size(); ++largo) {
        Estado leido;
        ResultadoConfiguracion r = LeeTextoConfiguracion(leido, std::string_view(bueno).substr(0, largo));
        bool entero = largo >= bueno.size() - 2;  // only the last line end is missing
        EXPECT_EQ(r.error == 0, entero) << largo;
        std::vector<std::string> obtenidos = Items(leido);
        for (std::size_t k = 0; k < obtenidos.size(); ++k)
            EXPECT_TRUE(obtenidos[k] == completo[k] || obtenidos[k] == iniciales[k]) << largo << " " << k;
    }
    std::mt19937 azar(7);
    for (int i = 0; i < 300; ++i) {
        std::string basura(static_cast<std::size_t>(azar() % 2000), '\0');
        for (char& c : basura) c = static_cast<char>(azar());
        Escribe(carpeta / "b.ls1", basura);
        Estado leido;
        leido.DirArchivo = e.DirArchivo;
        EXPECT_NE(LeeConfiguracion(leido, "b.ls1", ui).error, 0);
    }
    // A folder in place of the file, and a file far longer than any configuration.
    fs::create_directory(carpeta / "c.ls1");
    EXPECT_EQ(LeeConfiguracion(e, "c.ls1", ui).error, 75);
    Escribe(carpeta / "l.ls1", bueno.substr(0, bueno.size() - 2) + std::string(1 << 20, '9') + "\r\n");
    ResultadoConfiguracion r = LeeConfiguracion(e, "l.ls1", ui);
    EXPECT_EQ(r.error, 13);
    EXPECT_EQ(r.linea, 4);
    EXPECT_EQ(r.dato, 18);
}
