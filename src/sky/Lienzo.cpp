#include "sky/Lienzo.h"

#include <QPainterPath>
#include <cmath>

#include "app/base/Constantes.h"

namespace vedrano {

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
    clavePuesta_ = {0, 0, -1};
}

const QImage& Lienzo::Imagen() const {
    Vacia();
    return imagen_;
}

void Lienzo::Redimensiona(int ancho, int alto, double proporcion) {
    pendientes_.clear();
    propio_.reset();
    ancho_px_ = ancho;
    alto_px_ = alto;
    // Device pixels behind each logical one; the painter keeps drawing in
    // logical pixels and Qt scales lines, dots and text sharply.
    imagen_ = QImage(static_cast<int>(std::lround(ancho * proporcion)),
                     static_cast<int>(std::lround(alto * proporcion)), QImage::Format_RGB32);
    imagen_.setDevicePixelRatio(proporcion);
    propio_ = std::make_unique<QPainter>(&imagen_);
    pintor_ = propio_.get();
    directo_ = imagen_.width() == ancho && imagen_.height() == alto;
    PreparaPintor();
    // The painter draws into this buffer; stamps are written into it too.
    pixeles_ = imagen_.bits();
    linea_ = imagen_.bytesPerLine();
    anchoImagen_ = imagen_.width();
    altoImagen_ = imagen_.height();
    Cls();
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

double Lienzo::PixelesPorUnidad() const { return std::fabs(sx_); }

void Lienzo::Cls() {
    pendientes_.clear();  // drawn before the clear, they would be erased
    turno_ = 0;
    actualX_ = actualY_ = 0;
    if (vectorial_) {
        pintor_->fillRect(QRectF(0, 0, ancho_px_, alto_px_), Tono(fondo_));
        return;
    }
    const QRgb fondo = 0xFF000000u | fondo_.rgb();
    for (int y = 0; y < altoImagen_; ++y) {
        auto* fila = reinterpret_cast<QRgb*>(pixeles_ + y * linea_);
        std::fill(fila, fila + anchoImagen_, fondo);
    }
}

void Lienzo::FijaFondo(const QColor& c) {
    fondo_ = c;
    Cls();
}

void Lienzo::PonPluma(const ClavePluma& k) const {
    if (k == clavePuesta_) return;
    uint64_t h = uint64_t(k.color) | uint64_t(k.ancho & 0xFFFF) << 32 | uint64_t(k.estilo & 0xFF) << 48;
    auto it = plumas_.find(h);
    if (it == plumas_.end()) {
        QPen p{Tono(QColor::fromRgba(k.color))};
        p.setWidthF(k.ancho);
        p.setCapStyle(Qt::RoundCap);
        // A one-pixel pen is cosmetic: the painter then strokes it with its
        // fast line rasteriser rather than as a filled outline.
        p.setCosmetic(k.ancho <= 1);
        if (k.estilo == 2) p.setStyle(Qt::DotLine);
        if (k.estilo == 1) p.setStyle(Qt::DashLine);
        it = plumas_.emplace(h, p).first;
    }
    pintor_->setPen(it->second);
    clavePuesta_ = k;
}

void Lienzo::Vacia() const {
    if (pendientes_.empty()) return;
    PonPluma(clavePendiente_);
    pintor_->drawLines(pendientes_.data(), static_cast<int>(pendientes_.size()));
    pendientes_.clear();
}

bool Lienzo::FueraDeImagen(const QPointF& a, const QPointF& b, double m) const {
    const double w = ancho_px_ + m, h = alto_px_ + m;
    return (a.x() < -m && b.x() < -m) || (a.x() > w && b.x() > w) || (a.y() < -m && b.y() < -m) ||
           (a.y() > h && b.y() > h);
}

void Lienzo::LineaA(double x, double y) { Linea(actualX_, actualY_, x, y); }

void Lienzo::Linea(double x1, double y1, double x2, double y2) {
    actualX_ = x2;
    actualY_ = y2;
    if (estilo_ == 5 || soloMedida_) return;
    QPointF a = APixel(x1, y1), b = APixel(x2, y2);
    if (FueraDeImagen(a, b, anchoTrazo_ + 2)) return;
    ClavePluma k = Clave();
    if (!(k == clavePendiente_)) {
        Vacia();
        clavePendiente_ = k;
    }
    pendientes_.emplace_back(a, b);
}

void Lienzo::DibujaFigura(QPainter& p, const QPointF& c, double rx, double ry, double inicio, double fin,
                          bool arco, bool caja) const {
    QRectF marco(c.x() - rx, c.y() - ry, 2 * rx, 2 * ry);
    if (caja) {
        p.drawRect(marco);
    } else if (!arco) {
        p.drawEllipse(marco);
    } else {
        double a0 = std::fabs(inicio), a1 = std::fabs(fin);
        double barrido = a1 - a0;
        if (barrido <= 0) barrido += 2 * PI_COMPLETO;
        QPainterPath camino;
        if (inicio < 0 || fin < 0) {
            camino.moveTo(c);
            camino.arcTo(marco, a0 * 180 / PI_COMPLETO, barrido * 180 / PI_COMPLETO);
            camino.closeSubpath();
        } else {
            camino.arcMoveTo(marco, a0 * 180 / PI_COMPLETO);
            camino.arcTo(marco, a0 * 180 / PI_COMPLETO, barrido * 180 / PI_COMPLETO);
        }
        p.drawPath(camino);
    }
}

void Lienzo::Fase(double x, double y, double r, double iluminada, double haciaSol, const QColor& luz,
                  const QColor& sombra) {
    if (soloMedida_) return;
    Vacia();
    QPointF c = APixel(x, y);
    double rp = r * PixelesPorUnidad();
    pintor_->save();
    pintor_->translate(c);
    // The lit limb faces the Sun; screen y grows downward.
    pintor_->rotate(-haciaSol * 180 / PI_COMPLETO);
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
    OlvidaRotulos();
    QFontMetricsF m(fuente_);
    ascenso_ = m.ascent();
    altoLinea_ = m.height();
}

}  // namespace vedrano
