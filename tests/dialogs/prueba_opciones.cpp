// The object options, personalisation and configuration forms driven with
// the mouse as a user would: what each control leaves in the state, what
// leaving the forms redraws, and the configuration files they write,
// read and delete.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <fstream>
#include <memory>

#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "../Ayudas.h"
#include "../ui/EntornoQt.h"
#include "ContextoPrueba.h"
#include "../ui/Falsos.h"
#include "config/LeeConfiguracion.h"
#include "config/Preferencias.h"
#include "dialogs/CargaGuar.h"
#include "dialogs/Objetos.h"
#include "dialogs/Personal.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Potenciometro.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/Selector.h"
#include "ui/controles/Spin.h"

using namespace vedrano;
using namespace vedrano::controles;

namespace {

using pruebas::CuandoAparezca;
using pruebas::Pulsa;

class Opciones : public ::testing::Test, public pruebas::ContextoSolo {
protected:
    void SetUp() override {
        e.Sonido = false;
        ctx.ActualizaCielo = [this] { ++actualizaciones; };
        ctx.DibujaCielo = [this] { ++dibujos; };
        ctx.Ayuda = [this](int t) { temas.push_back(t); };
    }
    int actualizaciones = 0, dibujos = 0;
    std::vector<int> temas;
};

TEST_F(Opciones, ObjetosCasillasOpcionesYNiveles) {
    Objetos d(ctx);
    ASSERT_NE(d.casilla(QStringLiteral("Galaxias")), nullptr);
    // Every layer of the picture has its box, the Earth's excepted.
    for (const char* t : {"Luz Diurna", "A.R./DEC 15º", "A.R./DEC 30º", "Lim. Constelac.", "Horizonte",
                          "Eclíptica", "Objetos Messier", "Nebul.Planet.", "Nebul.Difusas", "Cúm.Abiertos",
                          "Cúm.Globular.", "Quásares", "Púlsares", "Agujeros Negros", "Via Láctea", "Sol", "Luna",
                          "Mercurio", "Plutón"})
        EXPECT_NE(d.casilla(QString::fromUtf8(t)), nullptr) << t;
    EXPECT_EQ(d.casilla(QStringLiteral("Tierra")), nullptr);

    EXPECT_EQ(e.Capas.Galax, 0);
    Pulsa(d.casilla(QStringLiteral("Galaxias")));
    EXPECT_EQ(e.Capas.Galax, 1);
    Pulsa(d.casilla(QStringLiteral("Horizonte")));
    EXPECT_EQ(e.Capas.Horiz, 0);
    Pulsa(d.casilla(QString::fromUtf8("Plutón")));
    EXPECT_EQ(e.Capas.Plane[8], 0);
    EXPECT_EQ(e.Capas.Plane[7], 1);

    // Option buttons: exactly one on; the one on stays on when clicked.
    const auto& con = d.opcionesConstelaciones();
    ASSERT_EQ(con.size(), 4u);
    EXPECT_TRUE(con[0]->marcada());
    Pulsa(con[3]);
    EXPECT_EQ(e.IdConstelaciones, 3);
    EXPECT_FALSE(con[0]->marcada());
    EXPECT_TRUE(con[3]->marcada());
    Pulsa(con[3]);
    EXPECT_TRUE(con[3]->marcada());
    EXPECT_EQ(e.IdConstelaciones, 3);
    Pulsa(d.opcionesEstrellas()[2]);
    EXPECT_EQ(e.IdEstrellas, 2);
    Pulsa(d.opcionesMessier()[1]);
    EXPECT_EQ(e.IdMessier, 1);

    Pulsa(d.identificar());
    EXPECT_FALSE(e.IdentificarObjetos);
}

TEST_F(Opciones, ObjetosNivelesPorFlechasYTecleados) {
    Objetos d(ctx);
    Spin* magnitud = d.spin(32);
    ASSERT_NE(magnitud, nullptr);
    // Held on the upper key for three steps: level 1 becomes 4.
    f.reloj.alDormir = [this](int n) {
        if (n == 6) controles.SujecionSpin = false;
    };
    const QPoint arriba(magnitud->width() - 10, 8);
    pruebas::Raton(magnitud, QEvent::MouseMove, arriba);
    pruebas::Raton(magnitud, QEvent::MouseButtonPress, arriba);
    EXPECT_EQ(e.NivelEstrellas, 4);

    // Typed values are kept inside the level's range; letters change nothing.
    Spin* galaxias = d.spin(19);
    for (auto [texto, esperado] : {std::pair{"9", 4}, {"abc", 4}, {"-3", 1}, {"2", 2}}) {
        galaxias->campo()->setText(QString::fromLatin1(texto));
        emit galaxias->campo()->editingFinished();
        EXPECT_EQ(e.NivelGalaxias, esperado) << texto;
    }
}

TEST_F(Opciones, ObjetosAlSalirRedibuja) {
    CuandoAparezca<Objetos>([](Objetos& d) { Pulsa(d.botonSalir()); });
    AbreObjetos(ctx);
    EXPECT_EQ(dibujos, 1);
    EXPECT_FALSE(e.Cambiado);

    CuandoAparezca<Objetos>([](Objetos& d) {
        Pulsa(d.casilla(QStringLiteral("Luna")));
        Pulsa(d.botonAyuda());
        Pulsa(d.botonSalir());
    });
    AbreObjetos(ctx);
    EXPECT_EQ(dibujos, 2);
    EXPECT_TRUE(e.Cambiado);
    EXPECT_EQ(e.Capas.Luna, 0);
    EXPECT_EQ(temas, std::vector<int>{1080});
}

TEST_F(Opciones, PersonalInterruptoresSelectoresYVelocidad) {
    Personal d(ctx);
    Pulsa(d.interruptor(9));
    EXPECT_TRUE(e.Sonido);
    Pulsa(d.interruptor(17));
    EXPECT_TRUE(e.AnimarTrasCambio);
    Pulsa(d.interruptor(7));
    EXPECT_TRUE(e.Precesion);
    Pulsa(d.interruptor(4));
    EXPECT_TRUE(e.PanelCursor);
    Pulsa(d.interruptor(18));
    EXPECT_TRUE(e.Marcar);

    // The orientation redraws at once; the hour format waits for the exit.
    Pulsa(d.orientacion());
    EXPECT_EQ(e.Orientacion, 2);
    EXPECT_EQ(dibujos, 1);
    pruebas::Clic(d.orientacion(), QPoint(5, 20), Qt::RightButton);
    EXPECT_EQ(e.Orientacion, 1);
    Pulsa(d.formatoHora());
    EXPECT_NE(e.FormatoHora, 1);
    EXPECT_EQ(dibujos, 2);

    // A click on the track right of the thumb moves it ten steps.
    e.Velocidad = 50;
    d.velocidad()->setPosicion(50);
    pruebas::Clic(d.velocidad(), QPoint(120, 25));
    EXPECT_EQ(e.Velocidad, 60);
}

TEST_F(Opciones, PersonalActualizaSoloSiCambia) {
    CuandoAparezca<Personal>([](Personal& d) { Pulsa(d.botonSalir()); });
    AbrePersonal(ctx);
    EXPECT_EQ(actualizaciones, 0);
    EXPECT_FALSE(e.Cambiado);

    CuandoAparezca<Personal>([](Personal& d) {
        Pulsa(d.formatoHora());
        Pulsa(d.botonSalir());
    });
    AbrePersonal(ctx);
    EXPECT_EQ(actualizaciones, 1);
    EXPECT_TRUE(e.Cambiado);
    EXPECT_EQ(e.FormatoHora, 2);
}

TEST_F(Opciones, PersonalGuardaLasPreferenciasDelPrograma) {
    QTemporaryDir dir;
    e.ArchivoPreferencias = dir.filePath("vedrano/preferencias.ini").toStdString();
    CuandoAparezca<Personal>([](Personal& d) {
        Pulsa(d.precisionAlta());
        Pulsa(d.botonSalir());
    });
    AbrePersonal(ctx);
    EXPECT_TRUE(e.Pref.PrecisionAlta);
    EXPECT_EQ(actualizaciones, 1);
    EXPECT_TRUE(LeePreferencias(e.ArchivoPreferencias).PrecisionAlta);
    EXPECT_TRUE(m.vistos.empty());

    // A file that cannot be written is said once; the choice holds anyway.
    e.ArchivoPreferencias = "/proc/vedrano/preferencias.ini";
    CuandoAparezca<Personal>([](Personal& d) {
        Pulsa(d.precisionAlta());
        Pulsa(d.botonSalir());
    });
    AbrePersonal(ctx);
    EXPECT_FALSE(e.Pref.PrecisionAlta);
    ASSERT_EQ(m.vistos.size(), 1u);
    EXPECT_NE(m.vistos[0].texto.find("No se han podido guardar las preferencias"), std::string::npos);
}

TEST_F(Opciones, ObjetosGuardaSusInterruptoresComoPreferenciasYNoComoConfiguracion) {
    QTemporaryDir dir;
    e.ArchivoPreferencias = dir.filePath("vedrano/preferencias.ini").toStdString();
    {
        Objetos sinVentana(ctx);  // only the main window's picture has them
        EXPECT_EQ(sinVentana.casilla(QString::fromUtf8("Estrellas débiles")), nullptr);
    }
    ctx.preferenciasDibujo = true;
    CuandoAparezca<Objetos>([](Objetos& d) {
        Pulsa(d.casilla(QString::fromUtf8("Estrellas débiles")));
        Pulsa(d.casilla(QString::fromUtf8("Todos los rótulos")));
        Pulsa(d.casilla(QString::fromUtf8("Todos los rótulos")));
        Pulsa(d.botonSalir());
    });
    AbreObjetos(ctx);
    EXPECT_FALSE(e.Cambiado);  // nothing of the configuration changed
    EXPECT_EQ(dibujos, 1);
    EXPECT_TRUE(m.vistos.empty());

    // A new start reads them back, and the form shows them as they were left.
    Estado otro;
    otro.Pref = LeePreferencias(e.ArchivoPreferencias);
    EXPECT_TRUE(otro.Pref.EstrellasDebiles);
    EXPECT_FALSE(otro.Pref.TodosLosRotulos);
    ContextoDialogo ctx2{otro, controles, ventana, c, m, nullptr, {}, {}, {}, {}, {}, true};
    Objetos d(ctx2);
    EXPECT_TRUE(d.casilla(QString::fromUtf8("Estrellas débiles"))->marcada());
    EXPECT_FALSE(d.casilla(QString::fromUtf8("Todos los rótulos"))->marcada());
}

class Configuraciones : public Opciones {
protected:
    void SetUp() override {
        Opciones::SetUp();
        ASSERT_TRUE(dir.isValid());
        e.DirArchivo = dir.path().toStdString() + "/";
        for (const char* n : {"b.ls1", "Plut\xC3\xB3n.ls1", "A.LS1", "Temporal.wrk", "notas.txt", "\xCE\xA9mega.ls1",
                              "\xE6\x9D\xB1\xE4\xBA\xAC.ls1"})
            std::ofstream(e.DirArchivo + n) << "x";
    }
    QStringList Lista(CargaGuar& d) {
        QStringList r;
        for (int i = 0; i < d.lista()->count(); ++i) r << d.lista()->item(i)->text();
        return r;
    }
    std::string Lee(const std::string& n) { return pruebas::LeeArchivo(e.DirArchivo + n); }
    QTemporaryDir dir;
};

TEST_F(Configuraciones, ListaSoloLosArchivosDeConfiguracion) {
    CargaGuar d(ctx);
    EXPECT_EQ(Lista(d), (QStringList{"A.LS1", "b.ls1", QString::fromUtf8("Plutón.ls1"), QString::fromUtf8("Ωmega.ls1"),
                                     QString::fromUtf8("東京.ls1")}));
    d.lista()->setCurrentRow(2);
    EXPECT_EQ(d.nombre()->text(), QString::fromUtf8("Plutón.ls1"));
}

TEST_F(Configuraciones, NombresFueraDeLaPaginaDeCodigos) {
    CargaGuar d(ctx);
    FijaFechaJuliana(e, c.TablaPlanetas, 2451545.0);
    d.nombre()->setText(QString::fromUtf8("Ωmega-copia"));
    Pulsa(d.guardar());
    EXPECT_TRUE(QFile::exists(dir.filePath(QString::fromUtf8("Ωmega-copia.ls1"))));
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("?mega-copia.ls1"))));
    FijaFechaJuliana(e, c.TablaPlanetas, 0);
    d.nombre()->setText(QString::fromUtf8("Ωmega-copia.ls1"));
    Pulsa(d.cargar());
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2451545.0);
    EXPECT_TRUE(m.vistos.empty());
}

TEST_F(Configuraciones, GuardarCargarYSobrescribir) {
    CargaGuar d(ctx);
    FijaFechaJuliana(e, c.TablaPlanetas, 2451545.0);
    e.Capas.Galax = 1;
    d.nombre()->setText(QStringLiteral("Prueba"));
    Pulsa(d.guardar());
    EXPECT_TRUE(QFile::exists(dir.filePath("Prueba.ls1")));
    EXPECT_TRUE(Lista(d).contains("Prueba.ls1"));
    EXPECT_EQ(d.lista()->currentItem()->text(), "Prueba.ls1");
    const std::string guardado = Lee("Prueba.ls1");

    // Saving again asks; Cancel leaves the file as it was.
    FijaFechaJuliana(e, c.TablaPlanetas, 2400000.0);
    m.respuesta = 0;
    Pulsa(d.guardar());
    ASSERT_EQ(m.vistos.size(), 1u);
    EXPECT_NE(m.vistos[0].texto.find("Ya existe un archivo"), std::string::npos);
    EXPECT_EQ(Lee("Prueba.ls1"), guardado);

    // Loading brings the saved situation back and updates the picture.
    e.Capas.Galax = 0;
    d.nombre()->setText(QStringLiteral("Prueba"));
    Pulsa(d.cargar());
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2451545.0);
    EXPECT_EQ(e.Capas.Galax, 1);
    EXPECT_TRUE(e.Cambiado);
    EXPECT_EQ(actualizaciones, 1);

    // A name that begins with a point is refused: nothing new is written.
    d.nombre()->setText(QStringLiteral(".ls1"));
    Pulsa(d.guardar());
    EXPECT_FALSE(QFile::exists(dir.filePath(".ls1")));
    EXPECT_NE(m.vistos.back().texto.find("nombre.ls1"), std::string::npos);
}

TEST_F(Configuraciones, NombreVacioYCarpetaSinEscritura) {
    CargaGuar d(ctx);
    d.nombre()->setText(QStringLiteral("   "));
    for (Pulsador* b : {d.cargar(), d.guardar(), d.borrar()}) Pulsa(b);
    EXPECT_EQ(m.vistos.size(), 3u);
    EXPECT_EQ(actualizaciones, 0);

    // A folder that cannot be written: told, and the old file untouched.
    e.DirArchivo = e.DirArchivo + "notas.txt/";
    d.nombre()->setText(QStringLiteral("Nueva"));
    Pulsa(d.guardar());
    EXPECT_EQ(m.vistos.size(), 4u);
    EXPECT_EQ(Lee("../notas.txt"), "");
    e.DirArchivo = dir.path().toStdString() + "/";
    EXPECT_EQ(Lee("notas.txt"), "x");
}

TEST_F(Configuraciones, BorrarPideConfirmacion) {
    CargaGuar d(ctx);
    d.nombre()->setText(QStringLiteral("b"));
    m.respuesta = 0;
    Pulsa(d.borrar());
    EXPECT_TRUE(QFile::exists(dir.filePath("b.ls1")));
    m.respuesta = -1;
    Pulsa(d.borrar());
    EXPECT_FALSE(QFile::exists(dir.filePath("b.ls1")));
    EXPECT_FALSE(Lista(d).contains("b.ls1"));
    EXPECT_TRUE(d.nombre()->text().isEmpty());

    d.nombre()->setText(QStringLiteral("noexiste.ls1"));
    Pulsa(d.borrar());
    EXPECT_EQ(m.vistos.back().texto, "No existe un archivo de configuraci\xF3n con ese nombre.\r\n" + e.DirArchivo +
                                   "noexiste.ls1");

    // The switch belongs to the configuration's state.
    Pulsa(d.incluirAnimacion());
    EXPECT_TRUE(e.IncluirAnimacion);
}

}  // namespace
