// The control bitmap for hi-DPI screens: the same cells at two device
// pixels a pixel, finer only where the 1x picture had to round.
#include <gtest/gtest.h>

#include <QImage>

namespace {

TEST(AltaDensidad, MapaDeControlesAlDoble) {
    const QImage uno(QStringLiteral(":/controles.png")), dos(QStringLiteral(":/controles@2x.png"));
    ASSERT_FALSE(uno.isNull());
    ASSERT_EQ(dos.size(), uno.size() * 2);
    // Each 1x pixel against the top-left of its 2x block: bevels, faces and
    // keys agree; only the edges of discs and slanted shapes may differ.
    int iguales = 0;
    for (int y = 0; y < uno.height(); ++y)
        for (int x = 0; x < uno.width(); ++x) iguales += uno.pixel(x, y) == dos.pixel(2 * x, 2 * y);
    EXPECT_GT(iguales, uno.width() * uno.height() * 9 / 10);
    EXPECT_LT(iguales, uno.width() * uno.height());  // finer somewhere, not a plain enlargement
}

}  // namespace
