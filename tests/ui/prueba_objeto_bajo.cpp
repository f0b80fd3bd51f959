// The object under the pointer: the hit-test finds what the picture shows
// there and tells it (against published facts: Sirius in Canis Major, the
// Moon full and new at the instants the almanacs give); Ctrl and a click
// ask for its information form, while the plain click still centres.
#include <gtest/gtest.h>

#include <QKeyEvent>

#include "../dialogs/ContextoPrueba.h"
#include "EntornoQt.h"
#include "Falsos.h"
#include "app/base/Constantes.h"
#include "dialogs/InfoObjeto.h"
#include "sky/apunta/ObjetoBajo.h"
#include "sky/proyeccion/Proyeccion.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/VistaCielo.h"

using namespace vedrano;

namespace {

// A state looking at the zenith at zoom 1, so that the whole sky above
// the horizon is in the picture.
Estado Cenit(double jd, double lonEste, double lat) {
    Estado e;
    FijaFechaJuliana(e, pruebas::CatalogosDatos().TablaPlanetas, jd);
    FijaLugar(e, pruebas::CatalogosDatos().TablaPlanetas, {-lonEste * GRADO, lat * GRADO, e.ZonaHoraria, e.HorarioVerano});
    FijaVista(e, e.Direccion, MEDIO_PI);
    FijaZoom(e, 1.0f);
    return e;
}

std::string Todo(const std::vector<std::string>& lineas) {
    std::string t;
    for (const std::string& l : lineas) t += DesdeA1252(l) + "\n";
    return t;
}

constexpr float RADIO = 0.01f;

}  // namespace

TEST(ObjetoBajo, SiriusAndTheMoonAreToldWithTheirData) {
    const Catalogos& c = pruebas::CatalogosDatos();
    // Sirius at 2025-01-25 0h UT from Madrid, high in the south.
    Estado e = Cenit(2460700.5, -3.70, 40.42);
    Lienzo l(800, 600);
    ActualizaCielo(e, c, l);
    const Vector3f sirio = AngulosAVector((6 + 45.15 / 60) * 15 * GRADO, -(16 + 43.0 / 60) * GRADO);
    const PuntoProyectado p = ProyectaPunto(e, sirio);
    ASSERT_TRUE(EsVisible(e, p));
    ObjetoSenalado o = ObjetoBajo(e, c, p.X + 0.003f, p.Y, RADIO);
    ASSERT_EQ(o.clase, ClaseObjeto::Estrella);
    std::string t = Todo(DescribeObjeto(e, c, o));
    EXPECT_NE(t.find("Sirio"), std::string::npos) << t;
    EXPECT_NE(t.find("Alf CMa"), std::string::npos) << t;
    EXPECT_NE(t.find("magnitud -1,"), std::string::npos) << t;
    EXPECT_NE(t.find("Constelación: Can Mayor"), std::string::npos) << t;
    EXPECT_NE(t.find("A.R. = 6h 45m"), std::string::npos) << t;
    // Nothing there: an empty patch away from every star at level 1.
    EXPECT_EQ(ObjetoBajo(e, c, 5.0f, 5.0f, RADIO).clase, ClaseObjeto::Ninguno);

    // Full Moon 2024 January 25, 17:54 UT; new Moon 2024 February 9,
    // 22:59 UT (USNO phases of the Moon). Seen where it is night then.
    struct Fase {
        double jd, lonEste;
        const char* texto;
    } fases[] = {{2460335.246, 90, "Fase: 100 % iluminada"}, {2460350.458, 165, "Fase: 0 % iluminada"}};
    for (const Fase& f : fases) {
        Estado m = Cenit(f.jd, f.lonEste, 0);
        ActualizaCielo(m, c, l);
        const PosicionCuerpo& luna = m.Planetas[11];
        if (!(luna.Z >= m.Umbral)) {
            // The new Moon stands by the Sun: look from where it is noon.
            m = Cenit(f.jd, f.lonEste - 180, 0);
            ActualizaCielo(m, c, l);
        }
        ASSERT_GE(m.Planetas[11].Z, m.Umbral) << f.texto;
        o = ObjetoBajo(m, c, m.Planetas[11].X, m.Planetas[11].Y + 0.004f, RADIO);
        ASSERT_EQ(o.clase, ClaseObjeto::Cuerpo) << f.texto;
        ASSERT_EQ(o.indice, 11);
        t = Todo(DescribeObjeto(m, c, o));
        EXPECT_NE(t.find(f.texto), std::string::npos) << t;
        EXPECT_EQ(t.substr(0, 5), "Luna\n") << t;
    }
}

TEST(ObjetoBajo, CtrlClickOpensTheInformationAndThePlainClickStillCentres) {
    pruebas::Falsos falsos;
    Estado e = Cenit(2460700.5, -3.70, 40.42);
    ObjetoSenalado pedido;
    int pedidos = 0;
    DialogosCielo d;
    d.Informacion = [&](ContextoDialogo&, const ObjetoSenalado& o) {
        pedido = o;
        ++pedidos;
    };
    controles::Contexto k{e.Sonido, e.Velocidad};
    Cielo cielo(e, k, pruebas::CatalogosDatos(), d);
    cielo.show();
    cielo.ActualizaCielo();
    VistaCielo& v = cielo.Vista();
    // Sirius's pixel.
    const PuntoProyectado p =
        ProyectaPunto(e, AngulosAVector((6 + 45.15 / 60) * 15 * GRADO, -(16 + 43.0 / 60) * GRADO));
    const QPoint pixel((p.X - e.EscalaIzquierda) / e.EscalaAncho * v.Canvas().Ancho(),
                       (p.Y - e.EscalaSuperior) / e.EscalaAlto * v.Canvas().Alto());
    const double jd = e.FechaJuliana;
    auto clic = [&](Qt::KeyboardModifiers mod) {
        for (QEvent::Type t : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent ev(t, QPointF(pixel), QPointF(v.mapToGlobal(pixel)), Qt::LeftButton,
                           t == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, mod);
            QCoreApplication::sendEvent(&v, &ev);
        }
    };
    clic(Qt::ControlModifier);
    EXPECT_EQ(pedidos, 1);
    EXPECT_EQ(pedido.clase, ClaseObjeto::Estrella);
    EXPECT_EQ(e.FechaJuliana, jd);  // no centring
    clic(Qt::NoModifier);
    EXPECT_EQ(pedidos, 1);
    EXPECT_NE(e.FechaJuliana, jd);

    // The form shows the description and the day.
    pruebas::EntornoDialogo entorno;
    InfoObjeto forma(entorno.ctx, pedido);
    const QString todo = forma.lineas().join('\n');
    EXPECT_TRUE(todo.startsWith(QStringLiteral("Sirio"))) << todo.toStdString();
    EXPECT_TRUE(todo.contains(QStringLiteral("Tránsito: "))) << todo.toStdString();
}
