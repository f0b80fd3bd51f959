// The sky picture under the mouse: the wheel zooms about the pointer, a
// drag turns the view and is no click, a still click keeps centring and a
// right click keeps marking.
#include <gtest/gtest.h>

#include <QWheelEvent>
#include <cmath>

#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "EntornoQt.h"
#include "../Ayudas.h"
#include "VentanaPrueba.h"
#include "app/base/Constantes.h"
#include "catalogue/CargaCatalogos.h"
#include "sky/apunta/Apunta.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/Paneles.h"
#include "ui/cielo/VistaCielo.h"

using namespace vedrano;

namespace {

const Catalogos& Datos() { return pruebas::CatalogosDatos(); }

struct Ventana : pruebas::VentanaPrueba {
    Ventana() {
        FijaFechaJuliana(e, Datos().TablaPlanetas, 2460700.5);
        FijaLugar(e, Datos().TablaPlanetas, {e.Longitud, 40.4 * GRADO, e.ZonaHoraria, e.HorarioVerano});
        FijaVista(e, 3.0, 0.5);
        FijaZoom(e, 3.0f);
        e.PanelCursor = true;
        Abre();
    }
    VistaCielo* vista() { return &cielo->Vista(); }
    // The horizon place under a pixel of the picture, with the view as it is.
    PuntoHorizonte Bajo(QPoint p) {
        QPointF u = vista()->AUsuario(p);
        PuntoHorizonte h;
        EXPECT_TRUE(HorizonteEn(e, static_cast<float>(u.x()), static_cast<float>(u.y()), h));
        return h;
    }
    void Rueda(QPoint p, int angulo) {
        QWheelEvent ev(QPointF(p), QPointF(vista()->mapToGlobal(p)), QPoint(), QPoint(0, angulo), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(vista(), &ev);
    }
    void Mueve(QPoint p, Qt::MouseButtons botones) {
        QMouseEvent ev(QEvent::MouseMove, QPointF(p), QPointF(vista()->mapToGlobal(p)), Qt::NoButton, botones,
                       Qt::NoModifier);
        QCoreApplication::sendEvent(vista(), &ev);
    }
    // A left drag from a to b in ten moves.
    void Arrastra(QPoint a, QPoint b) {
        pruebas::Raton(vista(), QEvent::MouseButtonPress, a);
        for (int k = 1; k <= 10; ++k) Mueve(a + (b - a) * k / 10, Qt::LeftButton);
        pruebas::Raton(vista(), QEvent::MouseButtonRelease, b);
    }
};

double DistanciaAngular(const PuntoHorizonte& a, const PuntoHorizonte& b) {
    double c = std::sin(a.altitud) * std::sin(b.altitud) +
               std::cos(a.altitud) * std::cos(b.altitud) * std::cos(a.azimut - b.azimut);
    return std::acos(std::min(1.0, c));
}

}  // namespace

TEST(Raton, WheelZoomsByTheStepAboutThePointerWithinLimits) {
    Ventana v;
    const QPoint p(v.vista()->width() / 2 + 120, v.vista()->height() / 2 - 60);
    const PuntoHorizonte antes = v.Bajo(p);
    const double jd = v.e.FechaJuliana;
    v.Rueda(p, 120);
    EXPECT_FLOAT_EQ(v.e.Zoom, 3.5f);
    // The place under the pointer stays there (within a pixel's angle).
    const double pixel = 1.0 / (v.vista()->height() / 2.6 * v.e.Zoom);
    EXPECT_LT(DistanciaAngular(antes, v.Bajo(p)), 1.5 * pixel);
    EXPECT_EQ(v.e.FechaJuliana, jd);
    v.Rueda(p, -240);
    EXPECT_FLOAT_EQ(v.e.Zoom, 2.5f);
    // Half notches add up; the zoom stays within 1..15.
    v.Rueda(p, 60);
    EXPECT_FLOAT_EQ(v.e.Zoom, 2.5f);
    v.Rueda(p, 60);
    EXPECT_FLOAT_EQ(v.e.Zoom, 3.0f);
    for (int k = 0; k < 40; ++k) v.Rueda(p, 120);
    EXPECT_FLOAT_EQ(v.e.Zoom, 15.0f);
    for (int k = 0; k < 40; ++k) v.Rueda(p, -120);
    EXPECT_FLOAT_EQ(v.e.Zoom, 1.0f);
    // The zoom field follows at once.
    EXPECT_EQ(pruebas::TextoCampo<CampoInfo>(*v.cielo, "Zoom"), QStringLiteral(" Zoom = 1,0"));
}

TEST(Raton, DragTurnsTheViewKeepsTheGripAndIsNoClick) {
    Ventana v;
    const QPoint centro(v.vista()->width() / 2, v.vista()->height() / 2);
    const QPoint a = centro + QPoint(-80, 30), b = centro + QPoint(70, -20);
    const PuntoHorizonte agarre = v.Bajo(a);
    const double jd = v.e.FechaJuliana, direccion = v.e.Direccion;
    v.Arrastra(a, b);
    EXPECT_EQ(v.e.FechaJuliana, jd);  // no centring
    EXPECT_FALSE(v.e.Centrado);
    EXPECT_NE(v.e.Direccion, direccion);
    const double pixel = 1.0 / (v.vista()->height() / 2.6 * v.e.Zoom);
    EXPECT_LT(DistanciaAngular(agarre, v.Bajo(b)), 2 * pixel);
    EXPECT_EQ(v.e.DireccionGirada, v.e.Direccion - PI);
    EXPECT_GE(v.e.Direccion, 0.0);
    EXPECT_LT(v.e.Direccion, DOS_PI);

    // Dragging the sky far up would lift the view past the zenith: it
    // stops at pi/2, as the elevation arrows stop.
    v.Arrastra(centro + QPoint(0, -150), centro + QPoint(0, 200));
    v.Arrastra(centro + QPoint(0, -150), centro + QPoint(0, 200));
    v.Arrastra(centro + QPoint(0, -150), centro + QPoint(0, 200));
    EXPECT_LE(v.e.Elevacion, MEDIO_PI);
    EXPECT_GT(v.e.Elevacion, 1.0);
    for (int k = 0; k < 4; ++k) v.Arrastra(centro + QPoint(0, 200), centro + QPoint(0, -200));
    EXPECT_EQ(v.e.Elevacion, 0.0);
}

TEST(Raton, StillClickCentresAndRightClickMarks) {
    Ventana v;
    const QPoint p(v.vista()->width() / 2 + 40, v.vista()->height() / 2 - 40);
    const double jd = v.e.FechaJuliana;
    // A tremble below the drag distance is still a click: it centres by
    // moving the time.
    pruebas::Raton(v.vista(), QEvent::MouseButtonPress, p);
    v.Mueve(p + QPoint(1, 1), Qt::LeftButton);
    pruebas::Raton(v.vista(), QEvent::MouseButtonRelease, p + QPoint(1, 1));
    EXPECT_NE(v.e.FechaJuliana, jd);
    EXPECT_TRUE(v.e.Centrado);

    v.e.Marcar = true;
    const double jd2 = v.e.FechaJuliana, direccion = v.e.Direccion;
    pruebas::Clic(v.vista(), p, Qt::RightButton);
    EXPECT_TRUE(v.e.MarcaVisible);
    EXPECT_EQ(v.e.FechaJuliana, jd2);
    EXPECT_EQ(v.e.Direccion, direccion);
}
