// The main window with its real dialogs, driven as a user drives it: every
// dialog that changes the situation leaves the sky drawn for the new one
// when it closes, and a configuration name that leads nowhere changes
// nothing. The picture is compared with one drawn afresh from the state.
#include <gtest/gtest.h>

#include <QApplication>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "app/base/TablasControles.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "EntornoQt.h"
#include "../Ayudas.h"
#include "VentanaPrueba.h"
#include "catalogue/CargaCatalogos.h"
#include "config/EscribeConfiguracion.h"
#include "dialogs/Animar.h"
#include "dialogs/CargaGuar.h"
#include "dialogs/Hora.h"
#include "dialogs/Locali.h"
#include "dialogs/piezas/Mensajes.h"
#include "dialogs/piezas/MensajesVentana.h"
#include "dialogs/Objetos.h"
#include "dialogs/Personal.h"
#include "sky/DibujaCielo.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/IndicesCielo.h"
#include "ui/cielo/VistaCielo.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/Selector.h"

using namespace vedrano;

namespace {

const Catalogos& Datos() { return pruebas::CatalogosDatos(); }

using pruebas::CuandoAparezca;
using pruebas::Pulsa;

class Ventana : public ::testing::Test, public pruebas::VentanaPrueba {
protected:
    void SetUp() override {
        ASSERT_TRUE(carpeta.isValid());
        e.DirArchivo = carpeta.path().toStdString() + "/";
        e.Velocidad = 100;
        FijaFechaJuliana(e, Datos().TablaPlanetas, 2460700.5);
        DialogosCielo& d = dialogos;
        d.CargaGuar = AbreCargaGuar;
        d.Personal = AbrePersonal;
        d.Locali = AbreLocali;
        d.Hora = AbreHora;
        d.Objetos = AbreObjetos;
        d.Animar = AbreAnimar;
        d.Mensaje = [this](QWidget* p, const std::string& t, const std::string& ti, int16_t b, int16_t i) {
            return MuestraMensaje(e, k, p, t, ti, b, i);
        };
        Abre();
    }

    QImage Imagen() const { return cielo->Vista().Canvas().Imagen().copy(); }
    // The picture of the present state, drawn apart from the window.
    QImage Fresca() const {
        Estado copia = e;
        Lienzo l(cielo->Vista().width(), cielo->Vista().height());
        ActualizaCielo(copia, Datos(), l);
        return l.Imagen().copy();
    }
    // Opens form T with `abre`, lets `accion` drive it, and checks that the
    // picture changed and is the one the new state draws.
    template <class T>
    void CambiaYRedibuja(std::function<void(T&)> accion, const std::function<void()>& abre) {
        const QImage antes = Imagen();
        CuandoAparezca<T>(accion);
        abre();
        EXPECT_NE(Imagen(), antes);
        EXPECT_EQ(Imagen(), Fresca());
    }

    QTemporaryDir carpeta;
};

// 1 March 2025, 12:00 UT, as the system's clock reads it.
double RelojFijo() { return 2460736.0 - 2415018.5; }

TEST_F(Ventana, CadaFormaQueCambiaLaSituacionDejaElCieloDibujado) {
    CambiaYRedibuja<Hora>(
        [](Hora& h) {
            h.setReloj(RelojFijo);
            h.pulsador(control::Mediodia)->pulsa();  // today's noon
            Pulsa(h.botonSalir());
        },
        [this] { cielo->BotonSoltado(boton::FechaHora); });
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2460736.0);
    CambiaYRedibuja<Locali>(
        [](Locali& l) {
            l.eligeLugar(10);
            Pulsa(l.botonSalir());
        },
        [this] { cielo->BotonSoltado(boton::Localizacion); });
    EXPECT_EQ(e.IndiceLugar, 10);
    CambiaYRedibuja<Objetos>(
        [](Objetos& o) {
            Pulsa(o.casilla(QStringLiteral("Galaxias")));
            Pulsa(o.botonSalir());
        },
        [this] { cielo->BotonSoltado(boton::Objetos); });
    EXPECT_EQ(e.Capas.Galax, 1);
    CambiaYRedibuja<Personal>(
        [](Personal& p) {
            Pulsa(p.orientacion());
            Pulsa(p.botonSalir());
        },
        [this] { cielo->BotonSoltado(boton::Personalizar); });
    EXPECT_EQ(e.Orientacion, 2);
}

TEST_F(Ventana, LaAnimacionEnTiempoRealYSinElDejanElCieloDibujado) {
    CambiaYRedibuja<Animar>(
        [](Animar& a) {
            a.setReloj(RelojFijo);
            pruebas::Clic(a.tiempoReal(), QPoint(5, 5));
            Pulsa(a.botonSalir());
        },
        [this] { cielo->PulsadorAccionado(44); });
    EXPECT_TRUE(cielo->TiempoRealActivo());
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2460736.0);

    // Switched off, with another unit: the clock stops, the sky stays true.
    CuandoAparezca<Animar>([](Animar& a) {
        pruebas::Clic(a.tiempoReal(), QPoint(5, 5));
        Pulsa(a.botonSalir());
    });
    cielo->PulsadorAccionado(44);
    EXPECT_FALSE(cielo->TiempoRealActivo());
    EXPECT_EQ(Imagen(), Fresca());
}

// A misspelt name is told and changes nothing; a real one replaces the
// situation, is drawn, and ends what "Restaurar situación anterior" could
// restore.
TEST_F(Ventana, LasConfiguracionesDejanElCieloDibujadoYUnNombreMaloNoCambiaNada) {
    Estado otro = e;
    FijaFechaJuliana(otro, Datos().TablaPlanetas, 2451545.0);
    FijaVista(otro, 1.0, otro.Elevacion);
    MensajesVentana m(otro, k, nullptr);
    ASSERT_TRUE(EscribeConfiguracion(otro, "Prueba", m, false).escrito);

    e.Centrado = true;  // as a centring leaves it
    cielo->RefrescaCampos();
    EXPECT_TRUE(cielo->Restaurar()->isVisible());

    const QImage antes = Imagen();
    QString aviso;
    double trasNombreMalo = 0;
    CuandoAparezca<CargaGuar>([&](CargaGuar& d) {
        d.nombre()->setText(QStringLiteral("NoExiste.ls1"));
        CuandoAparezca<Mensajes>([&](Mensajes& msg) {
            aviso = msg.windowTitle();
            Pulsa(msg.botonAceptar());
        });
        Pulsa(d.cargar());
        trasNombreMalo = e.FechaJuliana;
        d.nombre()->setText(QStringLiteral("Prueba"));
        Pulsa(d.cargar());
        Pulsa(d.botonSalir());
    });
    cielo->BotonSoltado(boton::Configuraciones);
    EXPECT_EQ(aviso, QString::fromUtf8("Cargar configuración"));
    EXPECT_DOUBLE_EQ(trasNombreMalo, 2460700.5);
    EXPECT_DOUBLE_EQ(e.FechaJuliana, 2451545.0);
    EXPECT_DOUBLE_EQ(e.Direccion, 1.0);
    EXPECT_FALSE(cielo->Restaurar()->isVisible());
    EXPECT_NE(Imagen(), antes);
    EXPECT_EQ(Imagen(), Fresca());
}

// Placed by the program in the middle of the screen, so that the start-up
// messages centred on it are in the middle too.
TEST_F(Ventana, CentradaEnLaPantalla) {
    const QRect util = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_LE((cielo->frameGeometry().center() - util.center()).manhattanLength(), 12);
    EXPECT_LE(cielo->width(), util.width());
    EXPECT_LE(cielo->height(), util.height());
}

}  // namespace
