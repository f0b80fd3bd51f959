#include "sky/Lienzo.h"

#include <QPainterPath>
#include <QStaticText>
#include <cmath>

#include "app/base/Texto1252.h"

namespace vedrano {

namespace {

// The widest dot kept as a sprite: the brightest star at the closest zoom
// is about a dozen pixels.
constexpr int ANCHO_MAXIMO_SPRITE = 64;

// Nothing this far off the picture can be seen. A damaged catalogue can
// project to huge places or to no number at all; leaving those out keeps
// every conversion to whole pixels defined.
constexpr double LIMITE_PIXEL = 1e6;

bool Dibujable(const QPointF& p) { return std::fabs(p.x()) < LIMITE_PIXEL && std::fabs(p.y()) < LIMITE_PIXEL; }

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

// Symbols larger than this radius in pixels are drawn directly, not kept
// as ready-made images.
constexpr double RADIO_FIGURA_MAXIMO = 40;
// Ready-made symbols are kept for a quarter-pixel grid of positions, labels
// for an eighth of a pixel across (glyphs are placed at fractions of a
// pixel horizontally, on whole pixels vertically).
constexpr double FASES = 16;
constexpr double FASES_TEXTO = 16;
// Beyond this many ready-made images (zooming makes new sizes) they are
// made afresh.
constexpr std::size_t IMAGENES_MAXIMAS = 4096;

QImage ImagenVacia(int ancho, int alto) {
    QImage i(ancho, alto, QImage::Format_ARGB32_Premultiplied);
    i.fill(Qt::transparent);
    return i;
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

Lienzo::Estampa Lienzo::Compacta(const QImage& imagen, int dx, int dy) {
    Estampa e{dx, dy, imagen.width(), imagen.height(), {}, {}};
    for (int y = 0; y < imagen.height(); ++y) {
        const auto* f = reinterpret_cast<const QRgb*>(imagen.constScanLine(y));
        for (int x = 0; x < imagen.width();) {
            if (qAlpha(f[x]) == 0) {
                ++x;
                continue;
            }
            Tramo t{static_cast<int16_t>(y), static_cast<int16_t>(x), 0, true,
                    static_cast<uint32_t>(e.pixeles.size())};
            for (; x < imagen.width() && qAlpha(f[x]) != 0; ++x, ++t.n) {
                t.opaco = t.opaco && qAlpha(f[x]) == 255;
                e.pixeles.push_back(f[x]);
            }
            e.tramos.push_back(t);
        }
    }
    return e;
}

void Lienzo::Estampa1(const Estampa& s, int x0, int y0) {
    // Source-over of premultiplied runs, with the rounding of Qt's own
    // blending so that a stamp equals the same figure drawn in place.
    if (x0 >= anchoImagen_ || y0 >= altoImagen_ || x0 + s.ancho <= 0 || y0 + s.alto <= 0) return;
    for (const Tramo& t : s.tramos) {
        const int y = y0 + t.y;
        if (y < 0 || y >= altoImagen_) continue;
        const int xa = std::max(0, x0 + t.x), xb = std::min(anchoImagen_, x0 + t.x + t.n);
        if (xa >= xb) continue;
        const QRgb* f = s.pixeles.data() + t.desde + (xa - x0 - t.x);
        auto* d = reinterpret_cast<QRgb*>(pixeles_ + y * linea_) + xa;
        const int n = xb - xa;
        if (t.opaco && n > 8) {  // a short run is quicker copied below than by a call
            std::copy(f, f + n, d);
            continue;
        }
        for (int x = 0; x < n; ++x) {
            const QRgb p = f[x];
            const uint a = qAlpha(p);
            if (a == 255) {
                d[x] = p;
                continue;
            }
            const uint ia = 255 - a;
            uint u = (d[x] & 0xFF00FF) * ia;
            u = ((u + ((u >> 8) & 0xFF00FF) + 0x800080) >> 8) & 0xFF00FF;
            uint v = ((d[x] >> 8) & 0xFF00FF) * ia;
            v = (v + ((v >> 8) & 0xFF00FF) + 0x800080) & 0xFF00FF00;
            d[x] = 0xFF000000u | ((p + (u | v)) & 0xFFFFFF);
        }
    }
}

const Lienzo::Estampa& Lienzo::SpritePunto(int ancho, QRgb color) {
    uint64_t clave = uint64_t(ancho) << 32 | (color & 0xFFFFFF);
    if (clave == ultimoPunto_) return *ultimaEstampaPunto_;  // runs of stars share a pen
    auto it = puntos_.find(clave);
    if (it != puntos_.end()) {
        ultimoPunto_ = clave;
        ultimaEstampaPunto_ = &it->second;
        return it->second;
    }
    // A dot pre-rendered once: drawing thousands of stars is then a stamp each.
    int lado = ancho + 2;
    QImage p = ImagenVacia(lado, lado);
    QPainter q(&p);
    q.setRenderHint(QPainter::Antialiasing, ancho > 1);
    q.setPen(Qt::NoPen);
    q.setBrush(QColor(color));
    if (ancho <= 1)
        q.fillRect(1, 1, 1, 1, QColor(color));
    else
        q.drawEllipse(QRectF(1, 1, ancho, ancho));
    q.end();
    return puntos_.emplace(clave, Compacta(p, 0, 0)).first->second;
}

void Lienzo::Punto(double x, double y) {
    actualX_ = x;
    actualY_ = y;
    if (estilo_ == 5 || soloMedida_) return;
    Vacia();
    QPointF c = APixel(x, y);
    if (!Dibujable(c)) return;
    // A disc of its own on a vector device or a hi-DPI image, and for a dot
    // wider than any star: a damaged magnitude must not leave a pre-rendered
    // dot of its width (up to 32767 pixels a side) behind.
    if (!directo_ || anchoTrazo_ > ANCHO_MAXIMO_SPRITE) {
        pintor_->setPen(Qt::NoPen);
        pintor_->setBrush(Tono(tinta_));
        const double r = anchoTrazo_ <= 1 ? 0.5 : anchoTrazo_ / 2.0;
        pintor_->drawEllipse(c, r, r);
        pintor_->setBrush(Qt::NoBrush);
        clavePuesta_ = {0, 0, -1};
        return;
    }
    const double medio = anchoTrazo_ / 2.0 + 1;
    Estampa1(SpritePunto(anchoTrazo_, tinta_.rgb()), static_cast<int>(std::floor(c.x() - medio + 0.5)),
             static_cast<int>(std::floor(c.y() - medio + 0.5)));
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
        if (barrido <= 0) barrido += 2 * M_PI;
        QPainterPath camino;
        if (inicio < 0 || fin < 0) {
            camino.moveTo(c);
            camino.arcTo(marco, a0 * 180 / M_PI, barrido * 180 / M_PI);
            camino.closeSubpath();
        } else {
            camino.arcMoveTo(marco, a0 * 180 / M_PI);
            camino.arcTo(marco, a0 * 180 / M_PI, barrido * 180 / M_PI);
        }
        p.drawPath(camino);
    }
}

std::size_t Lienzo::HashFigura::operator()(const ClaveFigura& k) const {
    std::size_t h = std::hash<float>()(k.rx) * 31 + std::hash<float>()(k.ry);
    h = h * 31 + std::hash<float>()(k.inicio) + 7 * std::hash<float>()(k.fin);
    return h * 131 + (k.color ^ uint32_t(k.ancho) << 8 ^ uint32_t(k.estilo) << 12 ^ uint32_t(k.caja) << 16 ^
                      uint32_t(k.arco) << 17 ^ uint32_t(k.fx) << 20 ^ uint32_t(k.fy) << 24);
}

const Lienzo::Estampa* Lienzo::SpriteFigura(const QPointF& c, double rx, double ry, double inicio, double fin,
                                            bool arco, bool caja) {
    if (!directo_ || !(rx <= RADIO_FIGURA_MAXIMO && ry <= RADIO_FIGURA_MAXIMO) || !Dibujable(c)) return nullptr;
    const double fx = std::floor((c.x() - std::floor(c.x())) * FASES) / FASES;
    const double fy = std::floor((c.y() - std::floor(c.y())) * FASES) / FASES;
    const ClaveFigura clave{static_cast<float>(rx), static_cast<float>(ry), static_cast<float>(inicio),
                            static_cast<float>(fin), tinta_.rgb(), static_cast<int16_t>(anchoTrazo_),
                            static_cast<int16_t>(estilo_), caja, arco, static_cast<uint8_t>(fx * FASES),
                            static_cast<uint8_t>(fy * FASES)};
    auto it = figuras_.find(clave);
    if (it != figuras_.end()) return &it->second;
    if (figuras_.size() > IMAGENES_MAXIMAS) figuras_.clear();
    const int medio = static_cast<int>(std::ceil(std::max(rx, ry))) + anchoTrazo_ + 2;
    QImage imagen = ImagenVacia(2 * medio + 1, 2 * medio + 1);
    QPainter q(&imagen);
    q.setRenderHint(QPainter::Antialiasing, true);
    PonPluma(Clave());  // builds the pen if it is new
    q.setPen(pintor_->pen());
    q.setBrush(Qt::NoBrush);
    DibujaFigura(q, QPointF(medio + fx, medio + fy), rx, ry, inicio, fin, arco, caja);
    q.end();
    return &figuras_.emplace(clave, Compacta(imagen, -medio, -medio)).first->second;
}

void Lienzo::Caja(double x1, double y1, double x2, double y2, bool relleno) {
    actualX_ = x2;
    actualY_ = y2;
    if (estilo_ == 5 || soloMedida_) return;
    Vacia();
    QRectF r = QRectF(APixel(x1, y1), APixel(x2, y2)).normalized();
    const Estampa* s = relleno ? nullptr : SpriteFigura(r.center(), r.width() / 2, r.height() / 2, 0, 0, false, true);
    if (s) {
        Estampa1(*s, static_cast<int>(std::floor(r.center().x())) + s->dx,
                 static_cast<int>(std::floor(r.center().y())) + s->dy);
        return;
    }
    PonPluma(Clave());
    pintor_->setBrush(relleno ? QBrush(Tono(tinta_)) : Qt::NoBrush);
    pintor_->drawRect(r);
    pintor_->setBrush(Qt::NoBrush);
}

void Lienzo::Circulo(double x, double y, double r, double aspecto, double inicio, double fin, bool arco,
                     const QColor* relleno) {
    actualX_ = x;
    actualY_ = y;
    if (estilo_ == 5 || soloMedida_) return;
    Vacia();
    QPointF c = APixel(x, y);
    double rx = r * PixelesPorUnidad();
    double ry = rx * aspecto;
    const Estampa* s = relleno ? nullptr : SpriteFigura(c, rx, ry, inicio, fin, arco, false);
    if (s) {
        Estampa1(*s, static_cast<int>(std::floor(c.x())) + s->dx, static_cast<int>(std::floor(c.y())) + s->dy);
        return;
    }
    PonPluma(Clave());
    pintor_->setBrush(relleno ? QBrush(Tono(*relleno)) : Qt::NoBrush);
    DibujaFigura(*pintor_, c, rx, ry, inicio, fin, arco, false);
    pintor_->setBrush(Qt::NoBrush);
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
    OlvidaRotulos();
    QFontMetricsF m(fuente_);
    ascenso_ = m.ascent();
    altoLinea_ = m.height();
}

void Lienzo::OlvidaRotulos() {
    textos_.clear();
    recuerdos_.clear();
    turno_ = 0;
}

const Lienzo::Recuerdo& Lienzo::ImagenRotulo(std::string_view texto, QRgb color, int fase) {
    const std::size_t hash = std::hash<std::string_view>()(texto);
    const std::size_t turno = turno_++;
    if (turno < recuerdos_.size()) {
        const Recuerdo& r = recuerdos_[turno];
        if (r.clave == hash && r.color == color && r.largo == texto.size() && r.fase == fase) return r;
    } else {
        recuerdos_.resize(turno + 1);
    }
    const Estampa& e = BuscaRotulo(texto, color, fase);
    Recuerdo& r = recuerdos_[turno];
    r = {hash, color, static_cast<uint32_t>(texto.size()), fase, &e, e.dx, e.dy, e.ancho, e.alto};
    return r;
}

const Lienzo::Estampa& Lienzo::BuscaRotulo(std::string_view texto, QRgb color, int fase) {
    // The key is built in a kept buffer: no allocation per label.
    std::string& clave = claveTexto_;
    clave.assign(texto);
    clave.append(reinterpret_cast<const char*>(&color), sizeof color);
    clave.push_back(static_cast<char>(fase));
    auto it = textos_.find(clave);
    if (it != textos_.end()) return it->second;
    if (textos_.size() > IMAGENES_MAXIMAS) {
        textos_.clear();
        std::fill(recuerdos_.begin(), recuerdos_.end(), Recuerdo{});  // they pointed into it
    }
    // A label rendered once in its colour at its phase, with room for the
    // glyphs' overhang.
    QStaticText t(QString::fromUtf8(DesdeA1252(std::string(texto))));
    t.setTextFormat(Qt::PlainText);
    t.prepare(QTransform(), fuente_);
    const int margen = 4;
    QSizeF tam = t.size();
    QImage imagen = ImagenVacia(static_cast<int>(std::ceil(tam.width())) + 2 * margen,
                                static_cast<int>(std::ceil(std::max(tam.height(), altoLinea_))) + 2 * margen);
    QPainter q(&imagen);
    q.setRenderHint(QPainter::TextAntialiasing, true);
    q.setFont(fuente_);
    q.setPen(QColor(color));
    q.drawStaticText(QPointF(margen + fase / FASES_TEXTO, margen), t);
    q.end();
    return textos_.emplace(clave, Compacta(imagen, -margen, -margen)).first->second;
}

void Lienzo::Escribe(std::string_view cp1252, float prioridad) {
    QPointF p = APixel(actualX_, actualY_);
    // The pen moves to the start of the next line, as Print leaves it.
    actualY_ += altoLinea_ / sy_;
    if (!Dibujable(p)) return;
    std::size_t fin = cp1252.find_last_not_of(' ');
    if (fin == std::string_view::npos) return;  // blanks draw nothing
    std::string_view texto = cp1252.substr(0, fin + 1);
    if (!directo_) {
        // Painted each time, as text of the device.
        const QString t = QString::fromUtf8(DesdeA1252(std::string(texto)));
        const QRect caja(static_cast<int>(std::floor(p.x())), static_cast<int>(std::floor(p.y())),
                         static_cast<int>(std::ceil(QFontMetricsF(fuente_).horizontalAdvance(t))),
                         static_cast<int>(std::ceil(altoLinea_)));
        if (soloMedida_) {
            rotulos_.Mide(caja, prioridad);
            return;
        }
        const bool visible = caja.intersects(QRect(0, 0, ancho_px_, alto_px_));
        if (!rotulos_.Toca(visible) || !visible) return;
        Vacia();
        pintor_->setPen(Tono(tinta_));
        clavePuesta_ = {0, 0, -1};
        pintor_->drawText(QPointF(p.x(), p.y() + ascenso_), t);
        return;
    }
    const double px = std::floor(p.x());
    const int fase = static_cast<int>((p.x() - px) * FASES_TEXTO);
    const Recuerdo& t = ImagenRotulo(texto, tinta_.rgb(), fase);
    // Glyphs sit on a whole-pixel baseline, as the painter places them.
    const int x = static_cast<int>(px);
    const int y = static_cast<int>(std::lround(p.y() + ascenso_) - std::lround(ascenso_ - t.dy)) - t.dy;
    // The box of the text itself, without the image's margin.
    const QRect caja(x, y, t.ancho + 2 * t.dx, t.alto + 2 * t.dy);
    if (soloMedida_) {
        rotulos_.Mide(caja, prioridad);
        return;
    }
    const bool visible = caja.intersects(imagen_.rect());
    if (!rotulos_.Toca(visible) || !visible) return;
    Vacia();
    Estampa1(*t.estampa, x + t.dx, y + t.dy);
}

}  // namespace vedrano
