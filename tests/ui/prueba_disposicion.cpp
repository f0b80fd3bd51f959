// The main window's use of its room: grown, the sky takes the room and
// the side panels run the window's height and width; at its minimum size
// no field, arrow pair or button is cut; and at a scale factor of 2 on a
// 1920 x 1080 screen the window and every form fit the screen.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QListWidget>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QTemporaryDir>

#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "../dialogs/ContextoPrueba.h"
#include "EntornoQt.h"
#include "VentanaPrueba.h"
#include "app/base/Constantes.h"
#include "dialogs/Buscar.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/IndicesCielo.h"
#include "ui/cielo/PanelLeyenda.h"
#include "ui/cielo/Paneles.h"
#include "ui/cielo/VistaCielo.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/SubBaj.h"

using namespace vedrano;

namespace {

QRect EnVentana(const QWidget* w, const QWidget* ventana) {
    return QRect(w->mapTo(ventana, QPoint(0, 0)), w->size());
}

// Every part that a user reads or presses, as the window places it.
std::vector<const QWidget*> Partes(const Cielo& c) {
    std::vector<const QWidget*> r;
    for (const CampoInfo* f : c.findChildren<CampoInfo*>())
        if (f->isVisibleTo(&c)) r.push_back(f);
    for (int i = 1; i <= 5; ++i) r.push_back(c.SubBaj(i));
    for (int k = 1; k <= 9; ++k) r.push_back(c.Boton(k));
    for (const controles::Pulsador* p : c.findChildren<controles::Pulsador*>())
        if (p->isVisibleTo(&c)) r.push_back(p);
    return r;
}

// The window with the cursor panel on, shown.
struct Principal : pruebas::VentanaPrueba {
    Principal() {
        e.PanelCursor = true;
        Abre();
    }
};

}  // namespace

TEST(Disposicion, AlCrecerElCieloOcupaElSitioYLosPanelesLlegan) {
    Principal p;
    Cielo& c = *p.cielo;
    c.resize(1700, 1040);
    QCoreApplication::processEvents();
    const QRect cielo = EnVentana(&c.Vista(), &c);
    const QWidget* control = c.SubBaj(flechas::Direccion)->parentWidget();
    const QWidget* leyenda = c.findChild<PanelLeyenda*>();
    ASSERT_NE(leyenda, nullptr);
    // The sky takes what the panels leave: all but the left column, the
    // legend and the two lower panels.
    EXPECT_EQ(cielo.width(), 1700 - 150 - 132);
    EXPECT_EQ(cielo.height(), 1040 - 106);
    EXPECT_EQ(c.Vista().Canvas().Imagen().size(), cielo.size());
    // The control panel's frame runs down the column and the legend's
    // ground down its panel: no bare ground is left under either.
    EXPECT_GE(EnVentana(control, &c).bottom(), 1040 - 6);
    EXPECT_GE(EnVentana(leyenda, &c).bottom(), cielo.bottom() - 4);
    // The lower panels reach both sides of the window.
    int izquierda = 1700, derecha = 0;
    for (const CampoInfo* f : c.findChildren<CampoInfo*>()) {
        const QRect r = EnVentana(f->parentWidget(), &c);
        if (r.top() < cielo.bottom()) continue;
        izquierda = std::min(izquierda, r.left());
        derecha = std::max(derecha, r.right());
    }
    EXPECT_EQ(izquierda, cielo.left());
    EXPECT_EQ(derecha, 1700 - 1);
}

TEST(Disposicion, EnElTamanoMinimoNadaSeCorta) {
    Principal p;
    Estado& e = p.e;
    // The widest texts the fields can get: the earliest year, AM/PM, the
    // longest place name, a south-western direction and the greatest zoom.
    FijaFechaJuliana(e, pruebas::CatalogosDatos().TablaPlanetas, 0.4);
    e.FormatoHora = 2;
    FijaVista(e, 225 * GRADO, e.Elevacion);
    FijaLugar(e, pruebas::CatalogosDatos().TablaPlanetas, {-179.99 * GRADO, -89.99 * GRADO, e.ZonaHoraria, e.HorarioVerano});
    FijaZoom(e, 15.0f);
    const auto& ciudades = pruebas::CatalogosDatos().TablaCiudades;
    std::size_t larga = 0;
    for (std::size_t i = 0; i < ciudades.size(); ++i)
        if (ciudades[i].Nombre.texto().find_last_not_of(' ') > ciudades[larga].Nombre.texto().find_last_not_of(' '))
            larga = i;
    e.IndiceLugar = static_cast<int16_t>(larga);
    Cielo& c = *p.cielo;
    c.resize(c.minimumSize());
    c.ActualizaCielo();
    pruebas::Raton(&c.Vista(), QEvent::MouseMove, QPoint(c.Vista().width() - 3, c.Vista().height() - 3));
    QCoreApplication::processEvents();
    EXPECT_GE(c.minimumHeight(), 580);

    const auto* columna = c.findChild<QScrollArea*>();
    ASSERT_NE(columna, nullptr);
    const QRect vistaColumna = EnVentana(columna->viewport(), &c);
    for (const QWidget* w : Partes(c)) {
        const QRect r = EnVentana(w, &c);
        EXPECT_TRUE(c.rect().contains(r)) << w->metaObject()->className() << " " << r.y() << "+" << r.height();
        if (columna->isAncestorOf(w)) EXPECT_TRUE(vistaColumna.contains(r)) << w->metaObject()->className();
        if (const auto* f = qobject_cast<const CampoInfo*>(w)) {
            const int texto = QFontMetrics(f->font()).horizontalAdvance(f->Texto());
            EXPECT_LE(texto + 5, f->width()) << f->Texto().toStdString();
        }
    }
    const auto* leyenda = c.findChild<PanelLeyenda*>();
    EXPECT_GE(leyenda->height(), 27 * PanelLeyenda::ALTO_LINEA + 8);
}

// At scale 2 a 1920 x 1080 screen is 960 x 540 to the program. The test
// runs itself again on such a screen.
TEST(Disposicion, AEscala2TodoCabeEnUnaPantallaDe1080) {
    if (qEnvironmentVariableIsEmpty("VEDRANO_PRUEBA_ESCALA2")) {
        QTemporaryDir dir;
        ASSERT_TRUE(dir.isValid());
        const QString config = dir.filePath("pantalla.json");
        QFile f(config);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(R"({"screens": [{"name": "P", "x": 0, "y": 0, "width": 1920, "height": 1080,
                    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        f.close();
        QProcess hijo;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + config);
        env.insert("QT_SCALE_FACTOR", "2");
        env.insert("VEDRANO_PRUEBA_ESCALA2", "1");
        hijo.setProcessEnvironment(env);
        hijo.setProcessChannelMode(QProcess::MergedChannels);
        hijo.start(QCoreApplication::applicationFilePath(),
                   {"--gtest_filter=Disposicion.AEscala2TodoCabeEnUnaPantallaDe1080"});
        ASSERT_TRUE(hijo.waitForFinished(120000));
        const QString salida = QString::fromUtf8(hijo.readAll());
        EXPECT_EQ(hijo.exitCode(), 0) << salida.toStdString();
        EXPECT_TRUE(salida.contains("[  PASSED  ] 1 test")) << salida.toStdString();
        return;
    }
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    ASSERT_EQ(pantalla.size(), QSize(960, 540));
    // Seen whole: within the screen, with room above for a title bar.
    auto cabe = [&pantalla](const QWidget& w, const char* nombre) {
        EXPECT_TRUE(pantalla.contains(w.frameGeometry())) << nombre;
        EXPECT_LE(w.frameGeometry().height() + 30, pantalla.height()) << nombre << " " << w.height();
    };
    Principal p;
    cabe(*p.cielo, "Cielo");
    EXPECT_LE(p.cielo->minimumHeight() + 30, pantalla.height());
    const auto* leyenda = p.cielo->findChild<PanelLeyenda*>();
    EXPECT_GE(leyenda->height(), 27 * PanelLeyenda::ALTO_LINEA_MINIMO + 8);

    pruebas::EntornoDialogo d;
    d.ctx.cielo = p.cielo.get();
    auto forma = [&](QDialog& f, const char* nombre) {
        ColocaCentrado(f, p.cielo.get());
        f.show();
        QCoreApplication::processEvents();
        cabe(f, nombre);
    };
    for (const auto& f : pruebas::Formas(d.ctx)) forma(*f, f->metaObject()->className());
    Buscar b(d.ctx);
    forma(b, "Buscar");
    // The solar system's list comes with nine lines of legend.
    for (int categoria : {0, 3, 1}) {
        b.eligeCategoria(categoria);
        QCoreApplication::processEvents();
        cabe(b, "Buscar con su lista");
        EXPECT_GE(b.lista(categoria)->height(), 5 * QFontMetrics(b.lista(categoria)->font()).height());
    }
}
