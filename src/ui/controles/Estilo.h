// The one painting scheme of the control family: the grey background, the
// control bitmap and its cells, the embossed labels, the etched frame with
// its caption, the arrow keys and the stretched button face.
#pragma once
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <string>

class QPainter;

namespace vedrano::controles {

inline const QColor GRIS_CLARO{192, 192, 192};
inline const QColor GRIS_OSCURO{128, 128, 128};
inline const QColor BLANCO{255, 255, 255};
inline const QColor AZUL{0, 0, 255};

// Cells of the control bitmap (x, y, width, height).
namespace celda {
inline const QRect INTERRUPTOR_NO{102, 24, 17, 17};
inline const QRect INTERRUPTOR_SI{120, 24, 17, 17};
inline const QRect FLECHAS{66, 24, 17, 21};
inline const QRect ARRIBA_LUZ{84, 24, 17, 10};
inline const QRect ABAJO_LUZ{84, 34, 17, 10};
constexpr int FLECHA_FILA_IZQUIERDA = 35, FLECHA_FILA_DERECHA = 24;
constexpr int FLECHA_COLUMNA_LUZ = 84, FLECHA_COLUMNA_APAGADA = 66;
constexpr int CARA_FILA_SUELTA = 46, CARA_FILA_PULSADA = 70;
constexpr int CARA_ANCHO = 131, CARA_ALTO = 23;
inline const QRect PISTA{0, 0, 121, 23};
inline const QRect MANDO{0, 24, 11, 19};
// Dialog buttons: 32 x 32, released in row 0, pressed in row 33.
constexpr int BOTON_X0 = 140, BOTON_PASO = 33, BOTON_PULSADO_Y = 33, BOTON_LADO = 32;
}  // namespace celda

// The control bitmap, loaded once from the program's resources: drawn at
// two device pixels a pixel when the screen has more than one.
const QPixmap& MapaControles();
// A cell of the bitmap (in its 1x pixels) as a source rectangle of it.
QRectF CeldaEnMapa(const QRect& celda);

// The family's font: "MS Sans Serif" 8 where it exists, else a sans face
// of like size.
QFont FuenteControles();

// Program text (Windows-1252) as Qt shows it.
QString Texto(const std::string& cp1252);

// Gives a text field the family's look: the font and a sunken white box.
void EstiloCampo(QWidget* campo);

// Copies `fuente` of the control bitmap to `destino`, unscaled.
void CopiaCelda(QPainter& p, QPoint destino, const QRect& fuente);

// The embossed label: white at (x, y), then blue one pixel down and to the
// right. (x, y) is the top left of the text; unless `transparente`, the
// white print paints the grey background behind it.
void ImprimeEtiqueta(QPainter& p, int x, int y, const QString& texto, bool transparente = true);

// The etched frame inside `area` and, when the trimmed text is not empty,
// the caption laid over its top edge (one blank before, two after).
void DibujaRotulo(QPainter& p, const QRect& area, const QString& texto);

// The spin and step-key arrows at rest at `origen`, with one half lit:
// +1 the upper, -1 the lower, 0 neither.
void DibujaFlechas(QPainter& p, QPoint origen, int encendida);

// The push-button face at (0, 0) across `ancho` pixels: stretched from its
// middle column when wider than the cell, cut at the edge when narrower;
// the two-column right edge always ends it.
void DibujaCara(QPainter& p, int ancho, bool pulsada);

// A raised bevel round `area`: `claro` along the top and left edges,
// `oscuro` along the bottom and right.
void DibujaBisel(QPainter& p, const QRect& area, const QColor& claro = BLANCO, const QColor& oscuro = GRIS_OSCURO);

// A form's ground: light grey with its raised bevel and, when `titulo` is
// not empty, the title embossed and centred over an etched rule at
// `altoTitulo` (the title's top at `arribaTitulo`).
void DibujaForma(QPainter& p, const QRect& area, const QString& titulo = {}, int altoTitulo = 0, int arribaTitulo = 5);

}  // namespace vedrano::controles
