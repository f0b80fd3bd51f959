#include "sky/Lienzo.h"

#include <QPainterPath>
#include <cmath>

#include "app/Texto1252.h"

namespace vedrano {

namespace {

// The widest dot kept as a sprite: the brightest star at the closest zoom
// is about a dozen pixels.
constexpr int ANCHO_MAXIMO_SPRITE = 64;

}  // namespace

QColor ColorVB(unsigned long bgr) {
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                  static_cast<int>((bgr >> 16) & 0xFF));
}

QColor ColorParaTinta(const QColor& c) {
    QColor h = c.toHsl();
    h.setHsl(h.hslHue(), h.hslSaturation(), 255 - h.lightness());
    return h.toRgb();
}

namespace {

QFont FuenteCielo() {
    QFont f("DejaVu Sans");
    f.setPixelSize(11);
    return f;
}

}  // namespace

Lienzo::Lienzo(int ancho, int alto, double proporcion) {
    Redimensiona(ancho, alto, proporcion);
    FijaFuente(FuenteCielo());
}

Lienzo::Lienzo(QPainter& pintor, int ancho, int alto, bool paraTinta)
    : pintor_(&pintor), vectorial_(true), paraTinta_(paraTinta), ancho_px_(ancho), alto_px_(alto) {
    PreparaPintor();
    Escala(izquierda_, superior_, ancho_, alto_);
    FijaFuente(FuenteCielo());
    Cls();
}

void Lienzo::PreparaPintor() {
    pintor_->setRenderHint(QPainter::Antialiasing, true);
    pintor_->setRenderHint(QPainter::TextAntialiasing, true);
    pintor_->setFont(fuente_);
}

void Lienzo::Redimensiona(int ancho, int alto, double proporcion) {
    propio_.reset();
    ancho_px_ = ancho;
    alto_px_ = alto;
    // Device pixels behind each logical one; the painter keeps drawing in
    // logical pixels and Qt scales lines, dots and text sharply.
    imagen_ = QImage(static_cast<int>(std::lround(ancho * proporcion)),
                     static_cast<int>(std::lround(alto * proporcion)), QImage::Format_RGB32);
    imagen_.setDevicePixelRatio(proporcion);
    imagen_.fill(fondo_);
    propio_ = std::make_unique<QPainter>(&imagen_);
    pintor_ = propio_.get();
    sprites_.clear();
    PreparaPintor();
    Escala(izquierda_, superior_, ancho_, alto_);
}

void Lienzo::Escala(float izquierda, float superior, float ancho, float alto) {
    izquierda_ = izquierda;
    superior_ = superior;
    ancho_ = ancho;
    alto_ = alto;
    sx_ = ancho_px_ / static_cast<double>(ancho_);
    sy_ = alto_px_ / static_cast<double>(alto_);
}

QPointF Lienzo::APixel(double x, double y) const {
    return {(x - izquierda_) * sx_, (y - superior_) * sy_};
}

double Lienzo::PixelesPorUnidad() const { return std::fabs(sx_); }

void Lienzo::Cls() {
    if (vectorial_)
        pintor_->fillRect(QRectF(0, 0, ancho_px_, alto_px_), Tono(fondo_));
    else
        imagen_.fill(fondo_);
    actualX_ = actualY_ = 0;
}

void Lienzo::FijaFondo(const QColor& c) {
    fondo_ = c;
    Cls();
}

QPen Lienzo::Pluma() const {
    QPen p(Tono(tinta_));
    p.setWidthF(anchoTrazo_);
    p.setCapStyle(Qt::RoundCap);
    if (estilo_ == 2) p.setStyle(Qt::DotLine);
    if (estilo_ == 1) p.setStyle(Qt::DashLine);
    return p;
}

const QPixmap& Lienzo::SpritePunto(int ancho, QRgb color) {
    auto clave = std::make_pair(ancho, color);
    auto it = sprites_.find(clave);
    if (it != sprites_.end()) return it->second;
    // A dot pre-rendered once: drawing thousands of stars is then a blit each.
    int lado = ancho + 2;
    const qreal proporcion = imagen_.devicePixelRatio();
    QPixmap p(static_cast<int>(std::ceil(lado * proporcion)), static_cast<int>(std::ceil(lado * proporcion)));
    p.setDevicePixelRatio(proporcion);
    p.fill(Qt::transparent);
    QPainter q(&p);
    q.setRenderHint(QPainter::Antialiasing, ancho > 1);
    q.setPen(Qt::NoPen);
    q.setBrush(QColor(color));
    if (ancho <= 1)
        q.fillRect(1, 1, 1, 1, QColor(color));
    else
        q.drawEllipse(QRectF(1, 1, ancho, ancho));
    return sprites_.emplace(clave, std::move(p)).first->second;
}

void Lienzo::Punto(double x, double y) {
    actualX_ = x;
    actualY_ = y;
    if (estilo_ == 5) return;
    QPointF c = APixel(x, y);
    // A disc of its own on a vector device, and for a dot wider than any
    // star: a damaged magnitude must not leave a pre-rendered dot of its
    // width (up to 32767 pixels a side) behind.
    if (vectorial_ || anchoTrazo_ > ANCHO_MAXIMO_SPRITE) {
        pintor_->setPen(Qt::NoPen);
        pintor_->setBrush(Tono(tinta_));
        const double r = anchoTrazo_ <= 1 ? 0.5 : anchoTrazo_ / 2.0;
        pintor_->drawEllipse(c, r, r);
        pintor_->setBrush(Qt::NoBrush);
        return;
    }
    const QPixmap& s = SpritePunto(anchoTrazo_, tinta_.rgb());
    double medio = anchoTrazo_ / 2.0 + 1;
    pintor_->drawPixmap(QPointF(std::floor(c.x() - medio + 0.5), std::floor(c.y() - medio + 0.5)), s);
}

void Lienzo::LineaA(double x, double y) { Linea(actualX_, actualY_, x, y); }

void Lienzo::Linea(double x1, double y1, double x2, double y2) {
    actualX_ = x2;
    actualY_ = y2;
    if (estilo_ == 5) return;
    pintor_->setPen(Pluma());
    pintor_->drawLine(APixel(x1, y1), APixel(x2, y2));
}

void Lienzo::Caja(double x1, double y1, double x2, double y2, bool relleno) {
    actualX_ = x2;
    actualY_ = y2;
    if (estilo_ == 5) return;
    pintor_->setPen(Pluma());
    pintor_->setBrush(relleno ? QBrush(Tono(tinta_)) : Qt::NoBrush);
    pintor_->drawRect(QRectF(APixel(x1, y1), APixel(x2, y2)).normalized());
    pintor_->setBrush(Qt::NoBrush);
}

void Lienzo::Circulo(double x, double y, double r, double aspecto, double inicio, double fin, bool arco,
                     const QColor* relleno) {
    actualX_ = x;
    actualY_ = y;
    if (estilo_ == 5) return;
    QPointF c = APixel(x, y);
    double rx = r * PixelesPorUnidad();
    double ry = rx * aspecto;
    QRectF caja(c.x() - rx, c.y() - ry, 2 * rx, 2 * ry);
    pintor_->setPen(Pluma());
    pintor_->setBrush(relleno ? QBrush(Tono(*relleno)) : Qt::NoBrush);
    if (!arco) {
        pintor_->drawEllipse(caja);
    } else {
        double a0 = std::fabs(inicio), a1 = std::fabs(fin);
        double barrido = a1 - a0;
        if (barrido <= 0) barrido += 2 * M_PI;
        QPainterPath camino;
        bool alCentro0 = inicio < 0, alCentro1 = fin < 0;
        if (alCentro0 || alCentro1) {
            camino.moveTo(c);
            camino.arcTo(caja, a0 * 180 / M_PI, barrido * 180 / M_PI);
            camino.closeSubpath();
        } else {
            camino.arcMoveTo(caja, a0 * 180 / M_PI);
            camino.arcTo(caja, a0 * 180 / M_PI, barrido * 180 / M_PI);
        }
        pintor_->drawPath(camino);
    }
    pintor_->setBrush(Qt::NoBrush);
}

void Lienzo::Fase(double x, double y, double r, double iluminada, double haciaSol, const QColor& luz,
                  const QColor& sombra) {
    QPointF c = APixel(x, y);
    double rp = r * PixelesPorUnidad();
    pintor_->save();
    pintor_->translate(c);
    // The lit limb faces the Sun; screen y grows downward.
    pintor_->rotate(-haciaSol * 180 / M_PI);
    pintor_->setPen(Qt::NoPen);
    pintor_->setBrush(Tono(sombra));
    pintor_->drawEllipse(QPointF(0, 0), rp, rp);
    // Lit region: the half disc toward the Sun plus or minus a half ellipse
    // whose semi-axis is |1 - 2 f| of the radius (the terminator).
    double k = 1 - 2 * iluminada;
    QPainterPath limbo;
    limbo.moveTo(0, -rp);
    limbo.arcTo(QRectF(-rp, -rp, 2 * rp, 2 * rp), 90, -180);
    double e = std::fabs(k) * rp;
    QRectF terminador(-e, -rp, 2 * e, 2 * rp);
    if (k >= 0)
        limbo.arcTo(terminador, 270, 180);  // crescent: back along the near side
    else
        limbo.arcTo(terminador, 270, -180);  // gibbous: bulge away from the Sun
    limbo.closeSubpath();
    pintor_->setBrush(Tono(luz));
    pintor_->drawPath(limbo);
    pintor_->restore();
}

void Lienzo::FijaFuente(const QFont& f) {
    fuente_ = f;
    pintor_->setFont(fuente_);
    textos_.clear();
    QFontMetricsF m(fuente_);
    ascenso_ = m.ascent();
    altoLinea_ = m.height();
}

void Lienzo::Escribe(std::string_view cp1252) {
    QPointF p = APixel(actualX_, actualY_);
    // The pen moves to the start of the next line, as Print leaves it.
    actualY_ += altoLinea_ / sy_;
    std::size_t fin = cp1252.find_last_not_of(' ');
    if (fin == std::string_view::npos) return;  // blanks draw nothing
    std::string clave(cp1252.substr(0, fin + 1));
    auto it = textos_.find(clave);
    if (it == textos_.end()) {
        QStaticText t(QString::fromUtf8(DesdeA1252(clave)));
        t.setTextFormat(Qt::PlainText);
        t.prepare(QTransform(), fuente_);
        it = textos_.emplace(std::move(clave), std::move(t)).first;
    }
    pintor_->setPen(Tono(tinta_));
    pintor_->drawStaticText(QPointF(p.x(), p.y()), it->second);
}

}  // namespace vedrano
