// The drawing surface of the sky picture: the verbs the plotters use, in a
// user scale (ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight, negative
// values mirroring an axis), over QPainter on an off-screen image, or
// straight on another device (a PDF, a printer, an SVG file) so that lines,
// discs and text stay vectors there.
//
// For speed the surface keeps some work pending or ready-made: lines are
// gathered per pen and stroked with one call when the pen changes or
// another verb draws; pens are built once per colour, width and style;
// labels, dots and small symbols are rendered once to small images and
// then stamped (on an image of one device pixel per pixel; elsewhere they
// are painted each time). The picture is the same as drawing each verb at
// once.
#pragma once
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "sky/RotulosPasada.h"

namespace vedrano {

// A colour written as the classic &HBBGGRR number.
QColor ColorVB(unsigned long bgr);

// Lightness turned over with hue and saturation kept: black sky to white,
// white stars to black, coloured lines stay their colour (printing to save ink).
QColor ColorParaTinta(const QColor& c);

class Lienzo {
public:
    // An image of ancho x alto logical pixels, `proporcion` device pixels
    // each (the screen's device pixel ratio), so it stays sharp on hi-DPI.
    Lienzo(int ancho, int alto, double proporcion = 1.0);
    // Paints through `pintor`, whose transformation maps ancho x alto
    // logical pixels onto the place meant for the sky; nothing is rasterised.
    // `paraTinta` draws every colour with ColorParaTinta.
    Lienzo(QPainter& pintor, int ancho, int alto, bool paraTinta);

    int Ancho() const { return ancho_px_; }
    int Alto() const { return alto_px_; }
    // The picture, with any pending lines drawn (none when painting on
    // another device).
    const QImage& Imagen() const;
    // Resizes the surface; the picture is cleared.
    void Redimensiona(int ancho, int alto, double proporcion = 1.0);

    // User scale: the picture spans from (izquierda, superior) over ancho x alto units.
    void Escala(float izquierda, float superior, float ancho, float alto);
    QPointF APixel(double x, double y) const { return {(x - izquierda_) * sx_, (y - superior_) * sy_}; }
    double PixelesPorUnidad() const;

    void Cls();                      // clears to BackColor
    void FijaFondo(const QColor& c);  // sets BackColor and clears, as a form does
    QColor Fondo() const { return fondo_; }

    void FijaColor(const QColor& c) {
        tinta_ = c;
        rgbaTinta_ = c.rgba();  // every verb keys its pen or image by it
    }
    QColor Color() const { return tinta_; }
    void FijaAnchoTrazo(int pixeles) { anchoTrazo_ = pixeles < 1 ? 1 : pixeles; }
    int AnchoTrazo() const { return anchoTrazo_; }
    // 0 solid, 2 dotted, 5 transparent (the pen moves, nothing is drawn).
    void FijaEstiloTrazo(int estilo) { estilo_ = estilo; }
    int EstiloTrazo() const { return estilo_; }

    // PSet: a round dot AnchoTrazo pixels across at (x, y); moves the pen there.
    void Punto(double x, double y);
    // Line from the current point to (x, y), and Line (x1, y1)-(x2, y2).
    void LineaA(double x, double y);
    void Linea(double x1, double y1, double x2, double y2);
    // Line ... B: a box with corners (x1, y1) and (x2, y2), optionally filled.
    void Caja(double x1, double y1, double x2, double y2, bool relleno = false);
    // Circle of radius r (horizontal user units) with aspect (vertical/horizontal),
    // optionally an arc from inicio to fin (radians counterclockwise from east);
    // a negative angle also draws the radius to that end. relleno fills it.
    void Circulo(double x, double y, double r, double aspecto = 1.0, double inicio = 0.0,
                 double fin = 0.0, bool arco = false, const QColor* relleno = nullptr);
    // The Moon's disc lit by a given fraction of its width (0 new, 1 full) on
    // the side facing the screen angle haciaSol (radians, counterclockwise from east).
    void Fase(double x, double y, double r, double iluminada, double haciaSol, const QColor& luz,
              const QColor& sombra);

    // Print: Windows-1252 text with its top-left corner at (CurrentX, CurrentY).
    // prioridad ranks the label against others that would overlap it (the
    // brighter or larger object higher); see RotulosPasada.
    void FijaPosicion(double x, double y) { actualX_ = x, actualY_ = y; }
    double ActualX() const { return actualX_; }
    double ActualY() const { return actualY_; }
    void Escribe(std::string_view cp1252, float prioridad = 0);
    void FijaFuente(const QFont& f);

    // The labels of the pass: measured only (nothing is drawn), or drawn
    // when their turn won. See RotulosPasada.
    RotulosPasada& Rotulos() { return rotulos_; }
    // When set, the verbs only move the pen: labels are measured and nothing
    // is drawn.
    void FijaSoloMedida(bool s) {
        soloMedida_ = s;
        turno_ = 0;
    }
    bool SoloMedida() const { return soloMedida_; }

    // Strokes the lines gathered so far.
    void Vacia() const;

private:
    struct ClavePluma {
        QRgb color;
        int ancho, estilo;
        bool operator==(const ClavePluma&) const = default;
    };
    // What makes one ready-made symbol: its figure, size, pen and the
    // quarter-pixel phase of its centre.
    struct ClaveFigura {
        float rx, ry, inicio, fin;
        QRgb color;
        int16_t ancho, estilo;
        uint8_t caja, arco, fx, fy;
        bool operator==(const ClaveFigura&) const = default;
    };
    struct HashFigura {
        std::size_t operator()(const ClaveFigura& k) const;
    };
    // A ready-made image kept as the runs of its pixels that are not
    // transparent, so that stamping it skips the empty margins and glyph
    // gaps and copies the opaque runs whole.
    struct Tramo {
        int16_t y, x, n;
        bool opaco;
        uint32_t desde;  // index of its first pixel in `pixeles`
    };
    struct Estampa {
        int dx = 0, dy = 0;  // offset of the image from the anchor pixel
        int ancho = 0, alto = 0;
        std::vector<Tramo> tramos;
        std::vector<QRgb> pixeles;  // premultiplied
    };
    static Estampa Compacta(const QImage& imagen, int dx, int dy);
    // The label printed at one turn of a run of the pass, with its box: the
    // next run and the next pass print the same labels in the same order,
    // so most are found here without searching the cache.
    struct Recuerdo {
        std::size_t clave = 0;  // hash of the text
        QRgb color = 0;
        uint32_t largo = 0;
        int fase = -1;
        const Estampa* estampa = nullptr;
        int dx = 0, dy = 0, ancho = 0, alto = 0;
    };
    // Ready-made symbols are kept for a sixteenth-pixel grid of positions,
    // labels for a sixteenth of a pixel across (glyphs are placed at
    // fractions of a pixel horizontally, on whole pixels vertically).
    static constexpr double FASES = 16, FASES_TEXTO = 16;
    // Nothing this far off the picture can be seen. A damaged catalogue can
    // project to huge places or to no number at all; leaving those out keeps
    // every conversion to whole pixels defined.
    static bool Dibujable(const QPointF& p) { return std::fabs(p.x()) < 1e6 && std::fabs(p.y()) < 1e6; }
    ClavePluma Clave() const { return {rgbaTinta_, anchoTrazo_, estilo_}; }
    QRgb RgbTinta() const { return rgbaTinta_ | 0xFF000000u; }
    QColor Tono(const QColor& c) const { return paraTinta_ ? ColorParaTinta(c) : c; }
    void PreparaPintor();
    void PonPluma(const ClavePluma& k) const;
    bool FueraDeImagen(const QPointF& a, const QPointF& b, double margen) const;
    void Estampa1(const Estampa& s, int x, int y);
    const Estampa& SpritePunto(int ancho, QRgb color);
    const Estampa* SpriteFigura(const QPointF& c, double rx, double ry, double inicio, double fin, bool arco,
                                bool caja);
    const Recuerdo& ImagenRotulo(std::string_view texto, QRgb color, int fase);
    const Estampa& BuscaRotulo(std::string_view texto, QRgb color, int fase);
    void OlvidaRotulos();
    void DibujaFigura(QPainter& p, const QPointF& c, double rx, double ry, double inicio, double fin, bool arco,
                      bool caja) const;

    QImage imagen_;
    uchar* pixeles_ = nullptr;
    qsizetype linea_ = 0;
    int anchoImagen_ = 0, altoImagen_ = 0;  // device pixels
    std::unique_ptr<QPainter> propio_;
    QPainter* pintor_ = nullptr;  // propio_, or the device's painter
    bool vectorial_ = false, paraTinta_ = false;
    // Ready-made images are stamped only into an image of one device pixel
    // per pixel.
    bool directo_ = false;
    int ancho_px_ = 0, alto_px_ = 0;
    float izquierda_ = 0, superior_ = 0, ancho_ = 1, alto_ = 1;
    double sx_ = 1, sy_ = 1;
    QColor fondo_ = Qt::black, tinta_ = Qt::white;
    QRgb rgbaTinta_ = 0xFFFFFFFFu;
    int anchoTrazo_ = 1, estilo_ = 0;
    double actualX_ = 0, actualY_ = 0;
    QFont fuente_;
    bool soloMedida_ = false;

    // Lines waiting to be stroked, all with the pen `clavePendiente_`.
    mutable std::vector<QLineF> pendientes_;
    mutable ClavePluma clavePendiente_{0, 0, -1};
    mutable ClavePluma clavePuesta_{0, 0, -1};
    mutable std::unordered_map<uint64_t, QPen> plumas_;

    std::unordered_map<uint64_t, Estampa> puntos_;
    uint64_t ultimoPunto_ = ~uint64_t{0};
    const Estampa* ultimaEstampaPunto_ = nullptr;
    std::unordered_map<ClaveFigura, Estampa, HashFigura> figuras_;
    std::unordered_map<std::string, Estampa> textos_;
    std::string claveTexto_;
    std::vector<Recuerdo> recuerdos_;
    std::size_t turno_ = 0;  // labels asked for in this run
    double ascenso_ = 0, altoLinea_ = 0;
    RotulosPasada rotulos_;
};

}  // namespace vedrano
