// The printing form's settings and the page it writes: the PDF is read back
// through poppler's pdftoppm and its pixels looked at.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "ContextoPrueba.h"
#include "dialogs/Impresor.h"
#include "sky/PaginaImpresa.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Spin.h"

using namespace vedrano;

namespace {

// Share of pixels in `r` darker than mid grey.
double Oscuros(const QImage& im, QRect r) {
    int n = 0, total = 0;
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x, ++total) n += qGray(im.pixel(x, y)) < 128;
    return total ? double(n) / total : 0;
}

QImage Renderiza(const QString& pdf) {
    const QString pdftoppm = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
    if (pdftoppm.isEmpty()) return {};
    const QString base = pdf + QStringLiteral("-pag");
    QProcess::execute(pdftoppm, {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("50"),
                                 QStringLiteral("-singlefile"), pdf, base});
    return QImage(base + QStringLiteral(".png"));
}

}  // namespace

TEST(Impresor, AjustesYPaginaEnPdf) {
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
    FijaVista(d.e, d.e.Direccion, 1.2);
    d.ctx.ActualizaCielo();
    Impresor forma(d.ctx);
    forma.show();
    // The switch of the screen's colours, by a click; the sizes as typed.
    pruebas::Clic(forma.enPantalla(), {8, 8});
    EXPECT_TRUE(d.e.ImagenEnPantalla);
    forma.ancho()->campo()->setText(QStringLiteral("abc"));
    emit forma.ancho()->campo()->editingFinished();
    EXPECT_EQ(d.e.AnchoMm, 180);  // letters change nothing
    forma.alto()->campo()->setText(QStringLiteral("9999"));
    emit forma.alto()->campo()->editingFinished();
    EXPECT_EQ(d.e.AltoMm, 200);  // brought to the largest height

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("cielo.pdf"));
    const double jd = d.e.FechaJuliana;
    ASSERT_TRUE(forma.guardaPdf(pdf));
    EXPECT_EQ(d.e.FechaJuliana, jd);  // printing leaves the state alone
    QImage pagina = Renderiza(pdf);
    if (pagina.isNull()) GTEST_SKIP() << "sin pdftoppm";
    // A4 portrait at 50 per inch; 180 x 200 mm of sky below the title block.
    ASSERT_NEAR(pagina.width(), 413, 2);
    const double mm = pagina.width() / 210.0;
    const QRect cielo(int(27 * mm), int(40 * mm), int(170 * mm), int(180 * mm));
    const QRect titulo(int(13 * mm), int(13 * mm), int(120 * mm), int(20 * mm));
    const QRect pie(int(13 * mm), int(250 * mm), int(180 * mm), int(30 * mm));
    EXPECT_GT(Oscuros(pagina, cielo), 0.5);   // the sky as on screen: black
    EXPECT_GT(Oscuros(pagina, titulo), 0.005);  // printed lines
    EXPECT_LT(Oscuros(pagina, titulo), 0.3);
    EXPECT_EQ(Oscuros(pagina, pie), 0.0);     // nothing under the picture

    // Black on white: the sky goes light, its stars and lines dark.
    pruebas::Clic(forma.enPantalla(), {8, 8});
    ASSERT_FALSE(d.e.ImagenEnPantalla);
    ASSERT_TRUE(forma.guardaPdf(pdf));
    pagina = Renderiza(pdf);
    const double tinta = Oscuros(pagina, cielo);
    EXPECT_GT(tinta, 0.0005);
    EXPECT_LT(tinta, 0.2);

    // A folder that does not exist: a message, no crash.
    EXPECT_FALSE(EscribePdf(dir.filePath(QStringLiteral("no/existe/cielo.pdf")), d.e, d.c));
}
