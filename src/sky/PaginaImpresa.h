// The printed page of the sky: a title block (place and coordinates, date
// and time, view) over the sky picture at the size asked for in
// millimetres, in the screen's colours or black on white to save ink.
// Draws on any paged device: a printer, or a PDF file with no window.
#pragma once
#include <QImage>
#include <QString>

#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"

class QPagedPaintDevice;

namespace vedrano {

// Lightness turned over with hue and saturation kept: the black sky goes
// white, white stars black, and the coloured lines stay their colour.
QImage ImagenParaTinta(const QImage& cielo);

// The three lines of the title block (UTF-8); without location data the
// first names no place.
QStringList LineasTitulo(Estado& e);

// Draws the sky of (a copy of) `e` on `dispositivo`, laying out its page
// (A4, turned to landscape when the picture is wider than a portrait page
// allows; a picture too large for the page is shrunk keeping its shape).
// False when the device cannot be painted on.
bool ImprimePagina(QPagedPaintDevice& dispositivo, const Estado& e, const Catalogos& c);

// The same page into a PDF file, written whole or not at all. False when the
// file cannot be written; then `error`, when given, holds the run-time error
// number of the fault (61 for a full disk), or 0 for a name that is no file.
bool EscribePdf(const QString& archivo, const Estado& e, const Catalogos& c, int* error = nullptr);

}  // namespace vedrano
