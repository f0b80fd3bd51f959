#include "ui/controles/Estilo.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QWidget>

#include "app/base/Texto1252.h"

namespace vedrano::controles {

const QPixmap& MapaControles() {
    static const QPixmap mapa = [] {
        const bool doble = qApp && qApp->devicePixelRatio() > 1.0;
        QPixmap m(doble ? QStringLiteral(":/controles@2x.png") : QStringLiteral(":/controles.png"));
        m.setDevicePixelRatio(doble ? 2.0 : 1.0);
        return m;
    }();
    return mapa;
}

QRectF CeldaEnMapa(const QRect& celda) {
    const qreal k = MapaControles().devicePixelRatio();
    return {celda.x() * k, celda.y() * k, celda.width() * k, celda.height() * k};
}

QFont FuenteControles() {
    QFont f;
    // Helvetica-like faces keep the widths of the classic dialog font.
    f.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                   QStringLiteral("Nimbus Sans"), QStringLiteral("Liberation Sans"),
                   QStringLiteral("DejaVu Sans")});
    f.setPixelSize(11);
    f.setStyleHint(QFont::SansSerif);
    return f;
}

QString Texto(const std::string& cp1252) { return QString::fromStdString(DesdeA1252(cp1252)); }

void EstiloCampo(QWidget* campo) {
    campo->setFont(FuenteControles());
    campo->setStyleSheet(QStringLiteral(
        "border-style: solid; border-width: 1px; border-color: #808080 #ffffff #ffffff #808080;"
        "background: #ffffff; color: #000000; padding: 0px 1px;"));
}

void CopiaCelda(QPainter& p, QPoint destino, const QRect& fuente) {
    p.drawPixmap(QPointF(destino), MapaControles(), CeldaEnMapa(fuente));
}

void ImprimeEtiqueta(QPainter& p, int x, int y, const QString& texto, bool transparente) {
    p.setFont(FuenteControles());
    QFontMetrics fm(p.font());
    const int base = y + fm.ascent();
    if (!transparente) p.fillRect(QRect(x, y, fm.horizontalAdvance(texto) + 1, fm.height()), GRIS_CLARO);
    p.setPen(BLANCO);
    p.drawText(x, base, texto);
    p.setPen(AZUL);
    p.drawText(x + 1, base + 1, texto);
}

void DibujaRotulo(QPainter& p, const QRect& area, const QString& texto) {
    p.fillRect(area, GRIS_CLARO);
    const QString recortado = texto.trimmed();
    QFontMetrics fm(FuenteControles());
    // With a caption the frame starts at the middle of the caption's height.
    const int arriba = area.top() + (recortado.isEmpty() ? 0 : fm.height() / 2);
    const QRect marco(area.left(), arriba, area.width() - 2, area.bottom() - arriba - 1);
    p.setPen(GRIS_OSCURO);
    p.drawRect(marco);
    p.setPen(BLANCO);
    p.drawRect(marco.translated(1, 1));
    if (!recortado.isEmpty())
        ImprimeEtiqueta(p, area.left() + 6, area.top(), QStringLiteral(" ") + recortado + QStringLiteral("  "),
                        false);
}

void DibujaFlechas(QPainter& p, QPoint origen, int encendida) {
    CopiaCelda(p, origen, celda::FLECHAS);
    if (encendida > 0) CopiaCelda(p, origen, celda::ARRIBA_LUZ);
    if (encendida < 0) CopiaCelda(p, origen + QPoint(0, 10), celda::ABAJO_LUZ);
}

void DibujaCara(QPainter& p, int ancho, bool pulsada) {
    const int fila = pulsada ? celda::CARA_FILA_PULSADA : celda::CARA_FILA_SUELTA;
    const int alto = celda::CARA_ALTO;
    if (ancho > celda::CARA_ANCHO) {
        CopiaCelda(p, {0, 0}, QRect(0, fila, 129, alto));
        // Column 127 is plain face: repeating it stretches the button.
        for (int x = 27; x <= ancho - 3; ++x) CopiaCelda(p, {x, 0}, QRect(127, fila, 1, alto));
    } else {
        CopiaCelda(p, {0, 0}, QRect(0, fila, celda::CARA_ANCHO, alto));
    }
    CopiaCelda(p, {ancho - 2, 0}, QRect(129, fila, 2, alto));
}

void DibujaBisel(QPainter& p, const QRect& area, const QColor& claro, const QColor& oscuro) {
    const int x0 = area.left(), y0 = area.top(), x1 = area.right(), y1 = area.bottom();
    p.setPen(claro);
    p.drawLine(x0, y0, x1 - 1, y0);
    p.drawLine(x0, y0, x0, y1 - 1);
    p.setPen(oscuro);
    p.drawLine(x0, y1, x1, y1);
    p.drawLine(x1, y0, x1, y1);
}

void DibujaForma(QPainter& p, const QRect& area, const QString& titulo, int altoTitulo, int arribaTitulo) {
    p.fillRect(area, GRIS_CLARO);
    DibujaBisel(p, area);
    if (titulo.isEmpty()) return;
    QFont negrita = FuenteControles();
    negrita.setBold(true);
    p.setFont(negrita);
    const QFontMetrics fm(negrita);
    const int x = area.left() + (area.width() - fm.horizontalAdvance(titulo)) / 2;
    p.setPen(BLANCO);
    p.drawText(x, area.top() + arribaTitulo + fm.ascent(), titulo);
    p.setPen(AZUL);
    p.drawText(x + 1, area.top() + arribaTitulo + 1 + fm.ascent(), titulo);
    p.setPen(GRIS_OSCURO);
    p.drawLine(area.left() + 6, area.top() + altoTitulo, area.right() - 7, area.top() + altoTitulo);
    p.setPen(BLANCO);
    p.drawLine(area.left() + 7, area.top() + altoTitulo + 1, area.right() - 6, area.top() + altoTitulo + 1);
}

}  // namespace vedrano::controles
