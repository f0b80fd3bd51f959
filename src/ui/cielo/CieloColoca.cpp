// The main window's layout: the sky picture takes whatever room the window
// has; the panels round it keep their look at any size. The left column and
// the legend run the full height of the window, the location and cursor
// panels its full width, and the fields are as wide as the longest text
// each must hold, so that the smallest window cuts nothing.
#include <QFontMetrics>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "ui/cielo/Cielo.h"
#include "ui/cielo/PanelLeyenda.h"
#include "ui/cielo/Paneles.h"
#include "ui/cielo/VistaCielo.h"

namespace vedrano {

namespace {

constexpr int MARGEN = 4, ANCHO_PANEL = 141;
constexpr int ALTO_BOTONES = 300, ALTO_MANDOS = 240, ALTO_CAMPO = 22, PASO_CAMPO = 25;
constexpr int ANCHO_IZQUIERDA = ANCHO_PANEL + 2 * MARGEN + 1;
constexpr int ARRIBA_CONTROL = MARGEN + ALTO_BOTONES + MARGEN;
// The control panel holds the five arrow pairs, the two push buttons and,
// at its foot, the real-time field.
constexpr int ALTO_CONTROL = ALTO_MANDOS + MARGEN + ALTO_CAMPO + MARGEN;
constexpr int ALTO_COLUMNA = ARRIBA_CONTROL + ALTO_CONTROL + MARGEN;
constexpr int ALTO_INFERIOR = 4 * PASO_CAMPO + 6, ANCHO_LEYENDA = 132;
constexpr int CIELO_MINIMO = 200;  // the narrowest sky worth drawing

// The longest text each field must hold (the fields' design samples).
const char* const MUESTRAS_COLUMNAS[] = {" Aaaaaaaaaaaaaaa(aaa)", " 180º 60' 60\" E", " 90º 60' 60\" N",
                                         " Dirección = 180º SW", " Elevación = 90º",   " Zoom = 15,0"};
const char* const MUESTRA_FECHA = "T. U. = 31 / 12 / 27900";
const char* const MUESTRA_HORA = " 12:00 PM";
const char* const MUESTRA_JULIANO = "D. J. = 12345678.123456";
const char* const MUESTRAS_CURSOR[] = {" A.R. =  24h 60m 60s", " DEC. = - 90º 60' 60\"",
                                       " Altitud = - 90º 60' 60\"", " Azimut = 180º 60' 60\""};

// Widths that the fields need, from the window's font.
struct Medidas {
    int columna, fecha, hora, juliano, cursor;
    int Localizacion() const { return std::max(3 * columna, 2 * (fecha + hora)) + 2 * MARGEN; }
};

Medidas Mide(const QFont& fuente) {
    const QFontMetrics fm(fuente);
    // A field shows its text 3 pixels in and keeps 2 free at the right; the
    // fields of a row stand 2 pixels apart.
    auto campo = [&fm](const char* t) { return fm.horizontalAdvance(QString::fromUtf8(t)) + 3 + 2 + 2; };
    Medidas m{};
    for (const char* t : MUESTRAS_COLUMNAS) m.columna = std::max(m.columna, campo(t));
    m.fecha = campo(MUESTRA_FECHA);
    m.hora = campo(MUESTRA_HORA);
    m.juliano = campo(MUESTRA_JULIANO);
    for (const char* t : MUESTRAS_CURSOR) m.cursor = std::max(m.cursor, campo(t));
    m.cursor += 2 * MARGEN;
    return m;
}

}  // namespace

QSize Cielo::TamanoMinimo() const {
    const Medidas m = Mide(font());
    const int abajo = m.Localizacion() + m.cursor;
    return {ANCHO_IZQUIERDA + std::max(abajo, CIELO_MINIMO + ANCHO_LEYENDA), ALTO_COLUMNA};
}

void Cielo::Coloca() {
    const int W = width(), H = height();
    const bool control = e_.PanelControl, localizacion = e_.PanelLocalizacion, cursor = e_.PanelCursor,
               objetos = e_.PanelObjetos;
    const Medidas m = Mide(font());

    // The left column: the control panel's frame runs down to the foot of
    // the window; a window shorter than the column scrolls it.
    const bool desplaza = H < ALTO_COLUMNA;
    columna_->setVerticalScrollBarPolicy(desplaza ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int izquierda = ANCHO_IZQUIERDA + (desplaza ? columna_->verticalScrollBar()->sizeHint().width() : 0);
    columna_->setGeometry(0, 0, izquierda, H);
    const int altoColumna = std::max(H, ALTO_COLUMNA);
    columna_->widget()->resize(ANCHO_IZQUIERDA, altoColumna);
    panelBotones_->setGeometry(MARGEN, MARGEN, ANCHO_PANEL, ALTO_BOTONES);
    panelControl_->setVisible(control);
    panelControl_->setGeometry(MARGEN, ARRIBA_CONTROL, ANCHO_PANEL, altoColumna - ARRIBA_CONTROL - MARGEN);
    tiempoReal_->setGeometry(2 * MARGEN, ARRIBA_CONTROL + ALTO_MANDOS + MARGEN, ANCHO_PANEL - 2 * MARGEN,
                             ALTO_CAMPO - 2);
    tiempoReal_->setVisible(control);

    const bool inferior = localizacion || cursor;
    const int alto = inferior ? H - ALTO_INFERIOR : H;
    const int derecha = objetos ? W - ANCHO_LEYENDA : W;
    vista_->setGeometry(izquierda, 0, derecha - izquierda, alto);

    // The legend's black ground fills its panel; its lines spread out on a
    // tall window.
    panelObjetos_->setVisible(objetos);
    panelObjetos_->setGeometry(W - ANCHO_LEYENDA, 0, ANCHO_LEYENDA, alto);
    leyenda_->setGeometry(3, 3, ANCHO_LEYENDA - 6, alto - 6);

    const int anchoCursor = m.cursor;
    panelLocalizacion_->setVisible(localizacion);
    panelLocalizacion_->setGeometry(izquierda, H - ALTO_INFERIOR, W - izquierda - (cursor ? anchoCursor : 0),
                                    ALTO_INFERIOR);
    const int util = panelLocalizacion_->width() - 2 * MARGEN;
    const int columna = util / 3;
    auto fila = [&](int y, CampoInfo* a, CampoInfo* b, CampoInfo* c) {
        a->setGeometry(MARGEN, y, columna - 2, ALTO_CAMPO);
        b->setGeometry(MARGEN + columna, y, columna - 2, ALTO_CAMPO);
        c->setGeometry(MARGEN + 2 * columna, y, columna - 2, ALTO_CAMPO);
    };
    fila(5, loca_, longi_, lati_);
    fila(5 + PASO_CAMPO, direc_, eleva_, zoom_);
    // Dates with their times in two halves, the Julian day below.
    const int mitad = util / 2, hora = m.hora;
    const int y = 5 + 2 * PASO_CAMPO;
    fecUni_->setGeometry(MARGEN, y, mitad - hora - 2, ALTO_CAMPO);
    horUni_->setGeometry(MARGEN + mitad - hora, y, hora - 2, ALTO_CAMPO);
    fecLoc_->setGeometry(MARGEN + mitad, y, mitad - hora - 2, ALTO_CAMPO);
    horLoc_->setGeometry(MARGEN + 2 * mitad - hora, y, hora - 2, ALTO_CAMPO);
    fecJul_->setGeometry(MARGEN, y + PASO_CAMPO, std::max(m.juliano, mitad) - 2, ALTO_CAMPO);

    panelCursor_->setVisible(cursor);
    panelCursor_->setGeometry(W - anchoCursor, H - ALTO_INFERIOR, anchoCursor, ALTO_INFERIOR);
    int yc = 5;
    for (CampoInfo* f : {aRecta_, dec_, altitud_, azimut_}) {
        f->setGeometry(MARGEN, yc, anchoCursor - 2 * MARGEN, ALTO_CAMPO);
        yc += PASO_CAMPO;
    }
}

}  // namespace vedrano
