// The drawing surface's ready-made images against the same figures drawn
// in place by the painter, and the choice of labels that can be read.
#include <gtest/gtest.h>

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "sky/Lienzo.h"
#include "sky/RotulosPasada.h"

using namespace vedrano;

namespace {

// Largest difference of any channel between two pictures, and how many
// pixels differ by more than `nivel`.
std::pair<int, int> Diferencia(const QImage& a, const QImage& b, int nivel = 0) {
    int maxima = 0, distintos = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            int d = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                              std::abs(qBlue(p) - qBlue(q))});
            maxima = std::max(maxima, d);
            distintos += d > nivel;
        }
    return {maxima, distintos};
}

}  // namespace

TEST(Lienzo, ReadyMadeFiguresMatchTheFiguresDrawnInPlace) {
    // A surface whose user scale is its pixels, over a coloured ground so
    // that blending shows; the reference is painted with QPainter directly.
    const QColor fondo(20, 40, 90);
    Lienzo l(200, 120);
    l.Escala(0, 0, 200, 120);
    l.FijaFondo(fondo);
    QImage ref(200, 120, QImage::Format_RGB32);
    ref.fill(fondo);
    QPainter p(&ref);
    p.setRenderHint(QPainter::Antialiasing, true);
    QPen pluma(QColor(200, 200, 160));
    pluma.setWidthF(1);
    pluma.setCapStyle(Qt::RoundCap);
    p.setPen(pluma);

    l.FijaColor(QColor(200, 200, 160));
    const double xs[] = {20.3, 61.77, 103.5, 150.06};
    for (double x : xs) {
        l.Circulo(x, 30.4, 9.3, 0.6);
        p.drawEllipse(QRectF(x - 9.3, 30.4 - 9.3 * 0.6, 18.6, 18.6 * 0.6));
        l.Caja(x - 4.2, 60.1, x + 4.2, 68.5);
        p.drawRect(QRectF(x - 4.2, 60.1, 8.4, 8.4));
        // A half disc with its radius lines, as the black holes.
        l.Circulo(x, 95.6, 6, 1.0, -M_PI, -2 * M_PI, true);
        QPainterPath camino;
        camino.moveTo(x, 95.6);
        camino.arcTo(QRectF(x - 6, 95.6 - 6, 12, 12), 180, 180);
        camino.closeSubpath();
        p.drawPath(camino);
    }
    // Lines gathered per pen are drawn when the picture is read.
    l.Linea(5.5, 5.25, 190.75, 15.5);
    p.drawLine(QPointF(5.5, 5.25), QPointF(190.75, 15.5));
    p.end();

    // The figures are made once for a sixteenth-of-a-pixel grid of places:
    // their edges may differ by some levels of antialiasing, never more.
    auto [maxima, distintos] = Diferencia(l.Imagen(), ref, 16);
    EXPECT_LE(maxima, 40);
    EXPECT_LT(distintos, 40);
}

TEST(Lienzo, LabelsAndDotsLieWhereThePainterPutsThem) {
    Lienzo l(160, 60);
    l.Escala(0, 0, 160, 60);
    l.FijaFondo(QColor(0, 0, 0));
    QImage ref(160, 60, QImage::Format_RGB32);
    ref.fill(Qt::black);
    QPainter p(&ref);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
    QFont f("DejaVu Sans");
    f.setPixelSize(11);
    p.setFont(f);
    p.setPen(Qt::white);

    l.FijaColor(Qt::white);
    l.FijaPosicion(10.4, 8.6);
    l.Escribe("Betelgeuse  ");  // trailing blanks of a fixed-width field
    p.drawText(QRectF(10.4, 8.6, 200, 40), Qt::AlignLeft | Qt::AlignTop, QStringLiteral("Betelgeuse"));
    // A dot three pixels wide.
    l.FijaAnchoTrazo(3);
    l.Punto(100.2, 40.7);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QRectF(std::floor(100.2 - 2.5 + 0.5) + 1, std::floor(40.7 - 2.5 + 0.5) + 1, 3, 3));
    p.end();

    auto [maxima, distintos] = Diferencia(l.Imagen(), ref);
    EXPECT_LE(maxima, 64);
    EXPECT_LT(distintos, 40);
}

TEST(Lienzo, PlacesFarOffThePictureOrNoNumberDrawNothing) {
    // A damaged catalogue projects stars to huge places or to NaN (found by
    // fuzzing the loader: the dot's pixel conversion overflowed). They must
    // leave the picture as it was; under UBSan a conversion out of range fails.
    const QColor fondo(0, 0, 0);
    Lienzo l(64, 48);
    l.Escala(0, 0, 64, 48);
    l.FijaFondo(fondo);
    const QImage antes = l.Imagen().copy();
    const double lejos[] = {1e12, -1e12, 1e300, -1e300, std::nan("")};
    l.FijaColor(QColor(255, 255, 255));
    for (double v : lejos) {
        for (int ancho : {1, 3, 200}) {
            l.FijaAnchoTrazo(ancho);
            l.Punto(v, 10);
            l.Punto(10, v);
        }
        l.FijaAnchoTrazo(1);
        l.Circulo(v, v, 2);
        l.Caja(v, v, v + 4, v + 4);
        l.FijaPosicion(v, 5);
        l.Escribe("Sirius");
    }
    EXPECT_EQ(Diferencia(antes, l.Imagen()).first, 0);
}

TEST(Rotulos, TheHigherRankWinsWhateverTheOrderAndEveryLabelOnRequest) {
    RotulosPasada r;
    r.EmpiezaMedida(100, 50);
    r.Mide(QRect(10, 10, 40, 12), 1);    // a faint star
    r.Mide(QRect(30, 15, 40, 12), 5);    // a brighter one over it
    r.Mide(QRect(10, 30, 30, 12), 1);    // alone
    r.Mide(QRect(200, 10, 30, 12), 9);   // outside the picture
    r.Mide(QRect(60, 28, 30, 12), 0.5);  // touches the brighter one's box? no: below it
    r.Resuelve();
    EXPECT_FALSE(r.Toca(true));
    EXPECT_TRUE(r.Toca(true));
    EXPECT_TRUE(r.Toca(true));
    EXPECT_FALSE(r.Toca(false));
    EXPECT_TRUE(r.Toca(true));
    EXPECT_EQ(r.Dibujados(), 3);
    // Labels the measuring run never saw are printed.
    EXPECT_TRUE(r.Toca(true));

    r.Todos();
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(r.Toca(i != 3));
    EXPECT_EQ(r.Dibujados(), 4);
}
