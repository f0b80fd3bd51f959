// The location form: the zone each place proposes, a restored
// configuration's zone kept, typed angles corrected, and the map's clicks.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <cmath>

#include "app/base/TablasControles.h"
#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "ContextoPrueba.h"
#include "app/base/Constantes.h"
#include "app/base/TextosAngulo.h"
#include "dialogs/Locali.h"
#include "dialogs/MapaMundi.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Spin.h"

using namespace vedrano;

namespace {

using pruebas::ClicLinea;

int Fila(const Catalogos& c, const char* nombre) {
    for (std::size_t i = 0; i < c.Listas.Lugares.size(); ++i)
        if (c.Listas.Lugares[i].rfind(nombre, 0) == 0) return static_cast<int>(i);
    return -1;
}

// Types into a field key by key, as the keyboard does, over what it held.
void Teclea(QLineEdit* campo, const QString& texto) {
    campo->setFocus();
    pruebas::EscribeEncima(campo, texto);
}
void Intro(QLineEdit* campo) { pruebas::Tecla(campo, Qt::Key_Return); }

Ciudad Lugar(const char* nombre20, double gradosOeste, double latitud) {
    Ciudad c;
    for (int i = 0; i < 20; ++i) c.Nombre.c[static_cast<std::size_t>(i)] = nombre20[i];
    c.Longitud = static_cast<float>(gradosOeste < 0 ? DOS_PI + gradosOeste * GRADO : gradosOeste * GRADO);
    c.Latitud = static_cast<float>(latitud * GRADO);
    return c;
}

}  // namespace

TEST(Locali, ZonaPropuestaPorCadaLugar) {
    pruebas::Falsos f;
    // Three places of our own in the first rows, where the whole degrees
    // of longitude decide the zone.
    static Catalogos c = pruebas::CatalogosDatos();
    c.TablaCiudades[0] = Lugar("Prueba uno     (PRT)", 7 + 50.0 / 60, 40);
    c.TablaCiudades[1] = Lugar("Prueba dos     (PRT)", 8 + 10.0 / 60, 40);
    c.TablaCiudades[2] = Lugar("Prueba tres    (FRA)", -0.5, 45);
    pruebas::EntornoDialogo d(c);
    Locali l(d.ctx);
    l.show();
    struct Caso {
        int fila;
        float zona;
    } casos[] = {{0, 0.0f}, {1, -1.0f}, {2, 0.0f},
                 {Fila(c, "Barcelona"), 1.0f},        // east of Greenwich, yet Spain's zone
                 {Fila(c, "Madrid"), 1.0f},
                 {Fila(c, "Las Palmas"), 0.0f},       // the Canary Islands
                 {Fila(c, "S.C. Tenerife"), 0.0f},
                 {Fila(c, "Londres"), 0.0f}};
    for (const Caso& caso : casos) {
        ASSERT_GE(caso.fila, 0);
        FijaLugar(d.e, d.c.TablaPlanetas, {d.e.Longitud, d.e.Latitud, 9.5f, d.e.HorarioVerano});
        ClicLinea(l.lugares(), caso.fila);
        EXPECT_EQ(d.e.ZonaHoraria, caso.zona) << caso.fila;
        EXPECT_EQ(l.spin(control::ZonaLocali)->valor(), caso.zona);
        EXPECT_EQ(d.e.IndiceLugar, caso.fila);
        EXPECT_EQ(d.e.Longitud, c.TablaCiudades[static_cast<std::size_t>(caso.fila)].Longitud);
    }
    // The field shows the place's own longitude text, and the local date its new zone.
    const Ciudad& londres = c.TablaCiudades[static_cast<std::size_t>(Fila(c, "Londres"))];
    EXPECT_EQ(l.spin(control::Longitud)->campo()->text().toStdString(), DesdeA1252(TextoLongitud(londres.Longitud)));
    EXPECT_EQ(l.spin(control::Longitud)->campo()->text().left(8), QStringLiteral("  0° 07'"));
    EXPECT_EQ(d.e.TextoLugar, "Londres (GBR)");
}

TEST(Locali, AbrirYSalirConservaLaZonaRestaurada) {
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
    // As a configuration leaves it: its place and its own zone.
    d.e.IndiceLugar = static_cast<int16_t>(Fila(d.c, "Madrid"));
    const Ciudad& lugar = d.c.TablaCiudades[static_cast<std::size_t>(d.e.IndiceLugar)];
    FijaLugar(d.e, d.c.TablaPlanetas, {lugar.Longitud, lugar.Latitud, 2.0f, d.e.HorarioVerano});  // summer time entered as a zone
    Locali l(d.ctx);
    l.show();
    EXPECT_EQ(l.lugares()->currentRow(), d.e.IndiceLugar);
    EXPECT_EQ(l.spin(control::ZonaLocali)->valor(), 2.0f);
    pruebas::Clic(l.botonSalir(), {16, 16});
    EXPECT_EQ(d.e.ZonaHoraria, 2.0f);
    EXPECT_FALSE(l.isVisible());
    EXPECT_EQ(d.actualizaciones, 1);
    EXPECT_TRUE(d.e.Cambiado);
}

TEST(Locali, AngulosTecleadosSeCorrigen) {
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
    Locali l(d.ctx);
    l.show();
    QLineEdit* lat = l.spin(control::Latitud)->campo();
    QLineEdit* lon = l.spin(control::Longitud)->campo();
    const double latAntes = d.e.Latitud;

    Teclea(lat, QStringLiteral("abc"));  // letters vanish as they are typed
    EXPECT_EQ(lat->text(), QString());
    Intro(lat);
    EXPECT_EQ(d.e.Latitud, latAntes);  // nothing typed: the value stays, shown again
    EXPECT_EQ(lat->text(), l.spin(control::Latitud)->campo()->text());
    EXPECT_FALSE(lat->text().isEmpty());

    Teclea(lat, QStringLiteral("-"));
    Intro(lat);
    EXPECT_EQ(d.e.Latitud, latAntes);

    Teclea(lat, QStringLiteral("95"));
    Intro(lat);
    EXPECT_NEAR(d.e.Latitud, MEDIO_PI, 1e-6);
    EXPECT_EQ(lat->text(), QStringLiteral("90° 00' 00\" N"));

    Teclea(lat, QStringLiteral("33 51 s"));
    Intro(lat);
    EXPECT_NEAR(d.e.Latitud, -(33 + 51.0 / 60) * GRADO, 1e-6);

    Teclea(lon, QStringLiteral("151° 12' 30\" W"));  // W is taken as O
    EXPECT_EQ(lon->text(), QStringLiteral("151° 12' 30\" O"));
    Intro(lon);
    EXPECT_NEAR(d.e.Longitud, (151 + 12.5 / 60) * GRADO, 1e-5);

    Teclea(lon, QStringLiteral("3,5 E"));
    Intro(lon);
    EXPECT_NEAR(d.e.Longitud, DOS_PI - 3.5 * GRADO, 1e-5);
    EXPECT_EQ(lon->text(), QStringLiteral("  3° 30' 00\" E"));

    Teclea(lon, QStringLiteral("99999999999"));
    Intro(lon);
    EXPECT_NEAR(d.e.Longitud, PI, 1e-5);
}

TEST(Locali, ElMapaEligeLugaresYPuntos) {
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
    Locali l(d.ctx);
    l.show();
    MapaMundi* mapa = l.mapa();
    // A place with no other near it on the map; East Africa keeps UTC+3.
    const int adis = Fila(d.c, "Ad\xEDs Abeba");
    ASSERT_GE(adis, 0);
    const Ciudad& a = d.c.TablaCiudades[static_cast<std::size_t>(adis)];
    FijaLugar(d.e, d.c.TablaPlanetas, {d.e.Longitud, d.e.Latitud, 5.0f, d.e.HorarioVerano});
    const QPoint sobreAdis = mapa->Punto(a.Longitud, a.Latitud).toPoint() + QPoint(1, 1);
    pruebas::Clic(mapa, sobreAdis);
    EXPECT_EQ(d.e.IndiceLugar, adis);
    EXPECT_EQ(d.e.ZonaHoraria, 3.0f);
    EXPECT_EQ(l.lugares()->currentRow(), adis);

    // The middle of the Pacific: no place near, the point itself is taken.
    const QPoint pacifico = mapa->Punto(150 * GRADO, -20 * GRADO).toPoint();
    ASSERT_EQ(mapa->LugarCercano(pacifico), -1);
    pruebas::Clic(mapa, pacifico);
    EXPECT_NEAR(d.e.Longitud, 150 * GRADO, 1.5 * GRADO);
    EXPECT_NEAR(d.e.Latitud, -20 * GRADO, 1.5 * GRADO);
    EXPECT_EQ(d.e.ZonaHoraria, -10.0f);
    EXPECT_EQ(d.e.TextoLugar, "Lugar propio");
    EXPECT_EQ(l.lugares()->currentRow(), -1);
    EXPECT_FALSE(LineasCosta().empty());
}
