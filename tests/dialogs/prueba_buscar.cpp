// The search form driven as a user does: a category of the index, a line
// found by typing part of its name, the search button, a double-click, or
// Enter; the object found must stand at the centre of the redrawn sky.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSet>
#include <cmath>

#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "ContextoPrueba.h"
#include "app/base/Constantes.h"
#include "app/estado/Astros.h"
#include "astro/Coordenadas.h"
#include "astro/Planetas.h"
#include "astro/Sidereo.h"
#include "dialogs/Buscar.h"
#include "sky/proyeccion/Proyeccion.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Pulsador.h"

using namespace vedrano;

namespace {

using pruebas::ClicLinea;
using pruebas::Escribe;
using pruebas::Pulsa;
using pruebas::Tecla;

// Pixels from the picture's centre to a direction, after the redraw.
double PixelesDelCentro(pruebas::EntornoDialogo& d, double ar, double dec) {
    PuntoProyectado p = ProyectaPunto(d.e, AngulosAVector(ar, dec));
    EXPECT_GT(p.Z, 0.9f);  // in front, near the line of sight
    return std::hypot(p.X, p.Y) * d.lienzo.PixelesPorUnidad();
}

// The pixels one degree spans at the centre of the 800 x 600 picture.
double PixelesPorGrado(pruebas::EntornoDialogo& d) {
    return GRADO * d.e.Zoom * d.lienzo.PixelesPorUnidad();
}

class BuscarObjetos : public ::testing::Test {
protected:
    void SetUp() override {
        FijaFechaJuliana(d.e, d.c.TablaPlanetas, 2460700.25);  // 24 January 2025, 18:00 UT: Mars near opposition, Orion up
        d.ctx.ActualizaCielo();
    }
    // Opens category `c`, types `filtro`, and presses the search button.
    void BuscaPorBoton(Buscar& b, int c, const QString& filtro) {
        ClicLinea(b.indice(), c);
        ASSERT_EQ(b.categoria(), c);
        Escribe(b.filtro(), filtro);
        Pulsa(b.botonBuscar());
    }
    // A context of its own at the test's instant.
    void Prepara(pruebas::EntornoDialogo& x) {
        FijaFechaJuliana(x.e, x.c.TablaPlanetas, d.e.FechaJuliana);
        x.ctx.ActualizaCielo();
    }
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
};

}  // namespace

TEST_F(BuscarObjetos, CategoriasConSuCabeceraYLeyenda) {
    Buscar b(d.ctx);
    b.show();
    EXPECT_EQ(b.titulo(), QStringLiteral("Índice General"));
    ASSERT_EQ(b.indice()->count(), 12);
    EXPECT_EQ(b.indice()->item(7)->text(), QStringLiteral("Cúmulos Abiertos"));
    ClicLinea(b.indice(), 3);
    EXPECT_TRUE(b.indice()->isHidden());
    EXPECT_TRUE(b.lista(3)->isVisible());
    EXPECT_EQ(b.titulo(), QStringLiteral("Estrellas"));
    EXPECT_EQ(b.cabecera(), QStringLiteral("   Código   A.R.     DEC.   Mag T   Nombre"));
    EXPECT_EQ(b.leyenda(), QStringList{QStringLiteral("Tipo =>    M : Múltiple     V : Variable     X : Múltiple variable")});
    EXPECT_EQ(b.lista(3)->count(), static_cast<int>(d.c.Listas.Estrellas.size()));
    // The caption leads back to the index; the solar system has nine legend lines.
    pruebas::Clic(b.rotulo(), {3, 3});
    EXPECT_EQ(b.categoria(), -1);
    EXPECT_TRUE(b.indice()->isVisible());
    ClicLinea(b.indice(), 0);
    EXPECT_EQ(b.leyenda().size(), 9);
    EXPECT_EQ(b.leyenda().front(), QStringLiteral(" 1 -> Diámetro ecuatorial (Kms.)"));
    ClicLinea(b.indice(), 10);
    EXPECT_EQ(b.cabecera(), QStringLiteral("   Código             A. R.           DEC"));
    EXPECT_TRUE(b.leyenda().isEmpty());
}

int Visibles(QListWidget* l) {
    int n = 0;
    for (int i = 0; i < l->count(); ++i) n += !l->item(i)->isHidden();
    return n;
}

TEST_F(BuscarObjetos, ElFiltroIgnoraAcentosYMayusculas) {
    Buscar b(d.ctx);
    b.show();
    ClicLinea(b.indice(), 2);
    Escribe(b.filtro(), QStringLiteral("ORION"));
    EXPECT_EQ(Visibles(b.lista(2)), 1);
    EXPECT_TRUE(b.lista(2)->currentItem()->text().contains(QStringLiteral("Orión")));
    // Nothing matches: no line stays selected, and searching does nothing.
    b.filtro()->clear();
    Escribe(b.filtro(), QStringLiteral("zzzz"));
    const double antes = d.e.FechaJuliana;
    Tecla(b.filtro(), Qt::Key_Return);
    EXPECT_EQ(d.e.FechaJuliana, antes);
    EXPECT_TRUE(b.isVisible());
}

// M42 is NGC 1976. Written any of the ways people write it, it is found
// alone: the coordinate columns ("5h 35m 16s", "41m 42s") are never read.
TEST_F(BuscarObjetos, DesignacionesYNombresNuncaCoordenadas) {
    Buscar b(d.ctx);
    b.show();
    ClicLinea(b.indice(), 1);
    for (const char* escrito : {"M 42", "M42", "m 42", "NGC 1976"}) {
        b.filtro()->clear();
        Escribe(b.filtro(), QString::fromUtf8(escrito));
        EXPECT_EQ(Visibles(b.lista(1)), 1) << escrito;
        EXPECT_EQ(b.lista(1)->currentRow(), 41) << escrito;
    }
    b.filtro()->clear();
    Escribe(b.filtro(), QStringLiteral("41m"));
    EXPECT_EQ(Visibles(b.lista(1)), 0);
    // Galaxies by their designation, short or long; never by magnitude class.
    b.muestraIndice();
    ClicLinea(b.indice(), 4);
    Escribe(b.filtro(), QStringLiteral("NGC 224"));
    ASSERT_GE(b.lista(4)->currentRow(), 0);
    EXPECT_TRUE(b.lista(4)->currentItem()->text().startsWith(QStringLiteral("  N224 ")));
    for (int i = 0; i < b.lista(4)->count(); ++i)
        if (!b.lista(4)->item(i)->isHidden())
            EXPECT_TRUE(b.lista(4)->item(i)->text().startsWith(QStringLiteral("  N224"))) << i;
}

// Typed on the index, the search looks in every list at once; each line
// found carries its category, and choosing it opens its list on that line.
// A button leads back to the index.
TEST_F(BuscarObjetos, DesdeElIndiceBuscaEnTodasLasListas) {
    Buscar b(d.ctx);
    b.show();
    Escribe(b.filtro(), QStringLiteral("m 42"));
    ASSERT_TRUE(b.hallados()->isVisible());
    EXPECT_TRUE(b.indice()->isHidden());
    ASSERT_GE(b.hallados()->count(), 1);
    const QString primera = b.hallados()->item(0)->text();
    EXPECT_TRUE(primera.startsWith(QStringLiteral("Objetos Messier "))) << primera.toStdString();
    EXPECT_TRUE(primera.contains(QStringLiteral(" 42 1976 "))) << primera.toStdString();
    Tecla(b.filtro(), Qt::Key_Return);
    EXPECT_EQ(b.categoria(), 1);
    EXPECT_EQ(b.lista(1)->currentRow(), 41);
    EXPECT_EQ(b.titulo(), QStringLiteral("Objetos Messier"));
    ASSERT_TRUE(b.botonIndice()->isVisible());
    Pulsa(b.botonIndice());
    EXPECT_EQ(b.categoria(), -1);
    EXPECT_TRUE(b.indice()->isVisible());
    EXPECT_FALSE(b.botonIndice()->isVisible());

    // Orion is a constellation, a Messier nebula's name and part of star
    // names: each line found says where it comes from.
    Escribe(b.filtro(), QStringLiteral("orion"));
    QSet<QString> categorias;
    for (int i = 0; i < b.hallados()->count(); ++i) categorias << b.hallados()->item(i)->text().left(22).trimmed();
    EXPECT_TRUE(categorias.contains(QStringLiteral("Constelaciones")));
    EXPECT_TRUE(categorias.contains(QStringLiteral("Objetos Messier")));
    int fila = -1;
    for (int i = 0; i < b.hallados()->count() && fila < 0; ++i)
        if (b.hallados()->item(i)->text().startsWith(QStringLiteral("Constelaciones"))) fila = i;
    ClicLinea(b.hallados(), fila, true);
    EXPECT_EQ(b.categoria(), 2);
    EXPECT_TRUE(b.lista(2)->currentItem()->text().startsWith(QStringLiteral(" Ori ")));
    // Emptying the box gives the index back.
    b.muestraIndice();
    Escribe(b.filtro(), QStringLiteral("x"));
    b.filtro()->clear();
    EXPECT_TRUE(b.indice()->isVisible());
    EXPECT_TRUE(b.hallados()->isHidden());
}

TEST_F(BuscarObjetos, CentraEstrellasObjetosYConstelaciones) {
    struct Caso {
        int categoria;
        QString filtro;
        double ar, dec;  // where the object is, independently of the lists
    } casos[] = {
        {1, QStringLiteral("M42"), (5 + 35.3 / 60) * 15 * GRADO, -(5 + 23.0 / 60) * GRADO},
        {3, QStringLiteral("sirio"), (6 + 45.15 / 60) * 15 * GRADO, -(16 + 43.0 / 60) * GRADO},
        {2, QStringLiteral("Orión"), 5.5 * 15 * GRADO, 5 * GRADO},
    };
    for (const Caso& caso : casos) {
        pruebas::EntornoDialogo d2;
        Prepara(d2);
        Buscar b(d2.ctx);
        b.show();
        BuscaPorBoton(b, caso.categoria, caso.filtro);
        EXPECT_FALSE(b.isVisible()) << caso.filtro.toStdString();
        EXPECT_TRUE(d2.e.Centrado);
        EXPECT_TRUE(d2.e.Cambiado);
        EXPECT_EQ(d2.redibujos, 1);
        // Within the solar-day step's error (under a degree) of the centre;
        // a constellation's centre is its label's place, within a few degrees.
        const double px = PixelesDelCentro(d2, d2.e.ObjetivoAR, d2.e.ObjetivoDEC);
        EXPECT_LT(px, 1.0 * PixelesPorGrado(d2)) << caso.filtro.toStdString();
        const double deLaFuente = PixelesDelCentro(d2, caso.ar, caso.dec);
        EXPECT_LT(deLaFuente, (caso.categoria == 2 ? 15.0 : 1.2) * PixelesPorGrado(d2)) << caso.filtro.toStdString();
        std::printf("%s: %.1f px del centro (%.1f px por grado)\n", caso.filtro.toUtf8().constData(), px,
                    PixelesPorGrado(d2));
    }
}

TEST_F(BuscarObjetos, CentraMarteYLaLuna) {
    for (int linea : {3, 10}) {
        pruebas::EntornoDialogo d2;
        Prepara(d2);
        Buscar b(d2.ctx);
        b.show();
        ClicLinea(b.indice(), 0);
        ClicLinea(b.lista(0), linea);
        Pulsa(b.botonBuscar());
        ASSERT_TRUE(d2.e.Centrado) << linea;
        // Where the body is at the new instant.
        HallaSol(d2.e, d2.c.TablaPlanetas);
        if (linea == 3) HallaPlaneta(d2.e, d2.c.TablaPlanetas, 4);
        else HallaLuna(d2.e);
        const PosicionCuerpo& p = d2.e.Planetas[linea == 3 ? 4 : 11];
        const double px = PixelesDelCentro(d2, p.AscRecta, p.Declinacion);
        // The Moon's one-shot correction makes up most of its own motion.
        EXPECT_LT(px, (linea == 3 ? 1.0 : 2.5) * PixelesPorGrado(d2)) << linea;
        EXPECT_FALSE(d2.e.CorreccionLuna);
        std::printf("%s: %.1f px del centro\n", linea == 3 ? "Marte" : "Luna", px);
    }
}

TEST_F(BuscarObjetos, ListasDeLecturaYTierraNoCentranNada) {
    Buscar b(d.ctx);
    b.show();
    const double antes = d.e.FechaJuliana;
    for (int c = 7; c <= 11; ++c) {
        b.muestraIndice();
        ClicLinea(b.indice(), c);
        ClicLinea(b.lista(c), 0);
        // The button says why it cannot be used here.
        EXPECT_FALSE(b.botonBuscar()->isEnabled()) << c;
        EXPECT_TRUE(b.botonBuscar()->toolTip().contains(QStringLiteral("no se pueden centrar"))) << c;
        Pulsa(b.botonBuscar());
        EXPECT_TRUE(b.isVisible()) << c;
    }
    for (int c = 0; c <= 6; ++c) {
        b.muestraIndice();
        ClicLinea(b.indice(), c);
        EXPECT_TRUE(b.botonBuscar()->isEnabled()) << c;
    }
    b.muestraIndice();
    ClicLinea(b.indice(), 0);
    ClicLinea(b.lista(0), 2);  // the Earth
    Pulsa(b.botonBuscar());
    // No line selected at all.
    b.muestraIndice();
    ClicLinea(b.indice(), 1);
    Pulsa(b.botonBuscar());
    EXPECT_TRUE(b.isVisible());
    EXPECT_EQ(d.e.FechaJuliana, antes);
    EXPECT_EQ(d.redibujos, 0);
    EXPECT_TRUE(d.mensajes.textos.empty());
}

TEST_F(BuscarObjetos, DobleClicEsElegirYBuscar) {
    pruebas::EntornoDialogo a, b;
    Prepara(a);
    Prepara(b);
    Buscar fa(a.ctx), fb(b.ctx);
    fa.show();
    fb.show();
    ClicLinea(fa.indice(), 4);
    ClicLinea(fa.lista(4), 0);
    Pulsa(fa.botonBuscar());
    ClicLinea(fb.indice(), 4);
    ClicLinea(fb.lista(4), 0, true);
    ASSERT_TRUE(a.e.Centrado);
    EXPECT_EQ(a.e.FechaJuliana, b.e.FechaJuliana);
    EXPECT_EQ(a.e.Direccion, b.e.Direccion);
    EXPECT_EQ(a.e.Elevacion, b.e.Elevacion);
    EXPECT_FALSE(fb.isVisible());
}

TEST_F(BuscarObjetos, NuncaSaleRechazaConSuMensaje) {
    FijaLugar(d.e, d.c.TablaPlanetas, {d.e.Longitud, 60 * GRADO, d.e.ZonaHoraria, d.e.HorarioVerano});  // the southern sky's pole region never rises
    d.ctx.ActualizaCielo();
    Buscar b(d.ctx);
    b.show();
    ClicLinea(b.indice(), 3);
    Escribe(b.filtro(), QStringLiteral("Canopus"));
    const double antes = d.e.FechaJuliana;
    Tecla(b.filtro(), Qt::Key_Return);
    ASSERT_EQ(d.mensajes.textos.size(), 1u);
    EXPECT_NE(d.mensajes.textos[0].find("bajo  el  horizonte"), std::string::npos);
    EXPECT_EQ(d.e.FechaJuliana, antes);
    EXPECT_TRUE(b.isVisible());
}
