#include "dialogs/Careta.h"

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "app/estado/Estado.h"
#include "platform/Pausa.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

using namespace controles;

namespace {

constexpr int ANCHO = 460, ALTO = 280, MARGEN = 10;
constexpr int TIEMPO_BASE = 800;  // ms at speed 100

// Orion, in picture fractions, with the figure's strokes: the shoulders,
// the belt, the feet and the sword.
struct Astro {
    double x, y, brillo;
};
constexpr Astro ORION[] = {
    {0.30, 0.20, 1.00},  // Betelgeuse
    {0.52, 0.24, 0.75},  // Bellatrix
    {0.37, 0.47, 0.70},  // Alnitak
    {0.41, 0.45, 0.70},  // Alnilam
    {0.45, 0.43, 0.70},  // Mintaka
    {0.33, 0.72, 0.65},  // Saiph
    {0.56, 0.70, 0.95},  // Rigel
    {0.41, 0.09, 0.45},  // Meissa
};
constexpr int TRAZOS[][2] = {{0, 1}, {0, 2}, {1, 4}, {2, 3}, {3, 4}, {2, 5}, {4, 6}, {0, 7}, {1, 7}};

void DibujaCieloCareta(QPainter& p, const QRect& r) {
    QLinearGradient fondo(r.topLeft(), r.bottomLeft());
    fondo.setColorAt(0, QColor(0, 0, 24));
    fondo.setColorAt(1, QColor(10, 20, 70));
    p.fillRect(r, fondo);
    p.setRenderHint(QPainter::Antialiasing);
    // Faint stars always at the same places: the picture does not change.
    QRandomGenerator azar(1992);
    for (int i = 0; i < 260; ++i) {
        const QPointF s(r.left() + azar.bounded(r.width()), r.top() + azar.bounded(r.height()));
        const int g = 110 + azar.bounded(146);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(g, g, std::min(255, g + 30)));
        p.drawEllipse(s, 0.6 + azar.bounded(0.7), 0.6 + azar.bounded(0.7));
    }
    auto punto = [&](const Astro& a) {
        return QPointF(r.left() + a.x * r.width() * 0.50 + r.width() * 0.47, r.top() + a.y * r.height());
    };
    p.setPen(QPen(QColor(70, 110, 200), 1));
    for (const auto& t : TRAZOS) p.drawLine(punto(ORION[t[0]]), punto(ORION[t[1]]));
    p.setPen(Qt::NoPen);
    for (const Astro& a : ORION) {
        p.setBrush(QColor(255, 255, 255));
        p.drawEllipse(punto(a), 1.2 + 2.2 * a.brillo, 1.2 + 2.2 * a.brillo);
    }
    // A crescent Moon low at the left.
    const QPointF luna(r.left() + r.width() * 0.14, r.top() + r.height() * 0.70);
    p.setBrush(QColor(250, 245, 210));
    p.drawEllipse(luna, 15, 15);
    p.setBrush(QColor(8, 16, 58));
    p.drawEllipse(luna + QPointF(6, -3), 14, 14);
    // The horizon.
    p.setBrush(QColor(20, 40, 20));
    p.drawRect(QRectF(r.left(), r.bottom() - 18, r.width(), 19));
    p.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

Careta::Careta(const Estado& e)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), e_(e) {
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(ANCHO, ALTO);
    setWindowTitle(QStringLiteral("VEDRANO"));
    reloj_.start();
    qApp->installEventFilter(this);
}

bool Careta::eventFilter(QObject* objeto, QEvent* ev) {
    // The show event comes before the window is mapped, so the cover is
    // gone by the time the message appears.
    if (ev->type() == QEvent::Show && objeto != this && objeto->isWidgetType()) {
        auto* w = static_cast<QWidget*>(objeto);
        if (w->isWindow() && w->isModal() && isVisible()) {
            qApp->removeEventFilter(this);
            close();
        }
    }
    return QWidget::eventFilter(objeto, ev);
}

int Careta::tiempoMinimo() const {
    return static_cast<int>(TIEMPO_BASE * plataforma::FactorVelocidad(e_.Velocidad));
}

void Careta::cierraCuandoListo(QWidget* cielo) {
    cielo_ = cielo;
    // The main window was shown after the cover: without a window manager
    // that keeps the cover on top it would now be hidden behind it.
    raise();
    cierraPronto();
}

void Careta::cierraPronto() {
    if (cerrando_) return;
    cerrando_ = true;
    const int resta = std::max<qint64>(0, tiempoMinimo() - reloj_.elapsed());
    QTimer::singleShot(resta, this, &QWidget::close);
}

void Careta::mouseReleaseEvent(QMouseEvent*) {
    // A click dismisses the cover only once the program is ready for it.
    if (cerrando_) close();
}

void Careta::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QRect r = rect();
    DibujaForma(p, r);

    const QRect cielo(MARGEN, MARGEN, r.width() - 2 * MARGEN, r.height() - 2 * MARGEN - 32);
    DibujaCieloCareta(p, cielo);
    // Sunken frame round the picture.
    p.setPen(GRIS_OSCURO);
    p.drawLine(cielo.left() - 1, cielo.top() - 1, cielo.right() + 1, cielo.top() - 1);
    p.drawLine(cielo.left() - 1, cielo.top() - 1, cielo.left() - 1, cielo.bottom() + 1);
    p.setPen(BLANCO);
    p.drawLine(cielo.left() - 1, cielo.bottom() + 1, cielo.right() + 1, cielo.bottom() + 1);
    p.drawLine(cielo.right() + 1, cielo.top() - 1, cielo.right() + 1, cielo.bottom() + 1);

    // The name over the sky, the version and the subject below it.
    QFont nombre = FuenteControles();
    nombre.setPixelSize(40);
    nombre.setBold(true);
    nombre.setLetterSpacing(QFont::AbsoluteSpacing, 4);
    p.setFont(nombre);
    const QRect zonaNombre(cielo.left() + 18, cielo.top() + 14, cielo.width() / 2, 50);
    p.setPen(QColor(0, 0, 160));
    p.drawText(zonaNombre.translated(2, 2), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("VEDRANO"));
    p.setPen(BLANCO);
    p.drawText(zonaNombre, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("VEDRANO"));

    QFont sub = FuenteControles();
    sub.setPixelSize(15);
    sub.setBold(true);
    p.setFont(sub);
    const int y = cielo.bottom() + 14;
    const QString planetario = QStringLiteral("Planetario");
    const QString version = QStringLiteral("Versión 3.2");
    const QFontMetrics fm(sub);
    for (const auto& [texto, x] : {std::pair{planetario, MARGEN + 4},
                                   std::pair{version, r.width() - MARGEN - 4 - fm.horizontalAdvance(version)}}) {
        p.setPen(BLANCO);
        p.drawText(x, y + fm.ascent(), texto);
        p.setPen(AZUL);
        p.drawText(x + 1, y + fm.ascent() + 1, texto);
    }
}

Careta* AbreCareta(const Estado& e) {
    auto* c = new Careta(e);
    if (QScreen* s = QGuiApplication::primaryScreen())
        c->move(s->availableGeometry().center() - QPoint(ANCHO / 2, ALTO / 2));
    c->show();
    c->repaint();
    return c;
}

}  // namespace vedrano
