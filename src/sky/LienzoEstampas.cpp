// The canvas verbs that stamp ready-made images (dots, small symbols and
// labels rendered once, kept as runs of visible pixels), and those images.
#include <QStaticText>
#include <cmath>

#include "app/base/Texto1252.h"
#include "sky/Lienzo.h"

namespace vedrano {

namespace {

// Symbols larger than this radius in pixels are drawn directly, not kept
// as ready-made images.
constexpr double RADIO_FIGURA_MAXIMO = 40;
// Beyond this many ready-made images (zooming makes new sizes) they are
// made afresh.
constexpr std::size_t IMAGENES_MAXIMAS = 4096;
// The widest dot kept as a sprite: the brightest star at the closest zoom
// is about a dozen pixels.
constexpr int ANCHO_MAXIMO_SPRITE = 64;

QImage ImagenVacia(int ancho, int alto) {
    QImage i(ancho, alto, QImage::Format_ARGB32_Premultiplied);
    i.fill(Qt::transparent);
    return i;
}

}  // namespace

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
                            static_cast<float>(fin), RgbTinta(), static_cast<int16_t>(anchoTrazo_),
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
    Estampa1(SpritePunto(anchoTrazo_, RgbTinta()), static_cast<int>(std::floor(c.x() - medio + 0.5)),
             static_cast<int>(std::floor(c.y() - medio + 0.5)));
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
    const Recuerdo& t = ImagenRotulo(texto, RgbTinta(), fase);
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

}  // namespace vedrano
