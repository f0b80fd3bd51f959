// The drawing surface of the sky picture: the verbs the plotters use, in a
// user scale (ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight, negative
// values mirroring an axis), over QPainter on an off-screen image, or
// straight on another device (a PDF, a printer, an SVG file) so that lines,
// discs and text stay vectors there.
#pragma once
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QStaticText>
#include <unordered_map>
#include <map>
#include <memory>
#include <string_view>

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
    // The picture (none when painting on another device).
    const QImage& Imagen() const { return imagen_; }
    // Resizes the surface; the picture is cleared.
    void Redimensiona(int ancho, int alto, double proporcion = 1.0);

    // User scale: the picture spans from (izquierda, superior) over ancho x alto units.
    void Escala(float izquierda, float superior, float ancho, float alto);
    QPointF APixel(double x, double y) const;
    double PixelesPorUnidad() const;

    void Cls();                      // clears to BackColor
    void FijaFondo(const QColor& c);  // sets BackColor and clears, as a form does
    QColor Fondo() const { return fondo_; }

    void FijaColor(const QColor& c) { tinta_ = c; }
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
    void FijaPosicion(double x, double y) { actualX_ = x, actualY_ = y; }
    double ActualX() const { return actualX_; }
    double ActualY() const { return actualY_; }
    void Escribe(std::string_view cp1252);
    void FijaFuente(const QFont& f);

private:
    QPen Pluma() const;
    QColor Tono(const QColor& c) const { return paraTinta_ ? ColorParaTinta(c) : c; }
    void PreparaPintor();
    const QPixmap& SpritePunto(int ancho, QRgb color);

    QImage imagen_;
    std::unique_ptr<QPainter> propio_;
    QPainter* pintor_ = nullptr;  // propio_, or the device's painter
    bool vectorial_ = false, paraTinta_ = false;
    int ancho_px_ = 0, alto_px_ = 0;
    float izquierda_ = 0, superior_ = 0, ancho_ = 1, alto_ = 1;
    double sx_ = 1, sy_ = 1;
    QColor fondo_ = Qt::black, tinta_ = Qt::white;
    int anchoTrazo_ = 1, estilo_ = 0;
    double actualX_ = 0, actualY_ = 0;
    QFont fuente_;
    std::map<std::pair<int, QRgb>, QPixmap> sprites_;
    // Labels are laid out once and reused on every pass.
    std::unordered_map<std::string, QStaticText> textos_;
    double ascenso_ = 0, altoLinea_ = 0;
};

}  // namespace vedrano
