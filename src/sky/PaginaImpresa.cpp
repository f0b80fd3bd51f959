#include "sky/PaginaImpresa.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "config/EscrituraSegura.h"
#include "sky/DibujaCielo.h"

namespace vedrano {

namespace {

constexpr double MARGEN_MM = 12.0;
constexpr double PUNTOS_POR_MM = 6.0;  // the sky's logical pixels per millimetre, as on a screen
constexpr double ALTO_TITULO_MM = 22.0;

QString Utf8(const std::string& cp1252) { return QString::fromStdString(DesdeA1252(cp1252)).trimmed(); }

}  // namespace

QImage ImagenParaTinta(const QImage& cielo) {
    QImage r = cielo.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < r.height(); ++y) {
        auto* fila = reinterpret_cast<QRgb*>(r.scanLine(y));
        for (int x = 0; x < r.width(); ++x) fila[x] = ColorParaTinta(QColor::fromRgb(fila[x])).rgb();
    }
    return r;
}

QStringList LineasTitulo(Estado& e) {
    const PanelInformacion p = TextosPanel(e);
    QStringList lineas;
    if (e.DatosLocalizacion) {
        lineas << QStringLiteral("%1    Longitud: %2    Latitud: %3")
                      .arg(Utf8(e.TextoLugar), Utf8(TextoLongitud(e.Longitud)), Utf8(TextoLatitud(e.Latitud)));
    } else {
        lineas << QStringLiteral("VEDRANO");
    }
    QString zona = QString::number(e.ZonaHoraria, 'f', 1).replace('.', ',');
    if (e.ZonaHoraria >= 0) zona.prepend('+');
    lineas << QStringLiteral("Fecha local: %1  %2 (zona %3%4)    %5  %6    %7")
                  .arg(Utf8(p.FechaLocal).remove(QStringLiteral("F. L. = ")), Utf8(p.HoraLocal), zona,
                       e.HorarioVerano ? QStringLiteral(", horario de verano") : QString(), Utf8(p.FechaUniversal),
                       Utf8(p.HoraUniversal), Utf8(p.DiaJuliano));
    lineas << QStringLiteral("%1    %2    %3").arg(Utf8(p.Direccion), Utf8(p.Elevacion), Utf8(p.Zoom));
    return lineas;
}

bool ImprimePagina(QPagedPaintDevice& dispositivo, const Estado& estado, const Catalogos& c) {
    Estado e = estado;  // the main window's view stays as it is
    const double anchoMm = e.AnchoMm, altoMm = e.AltoMm;

    QPageLayout disposicion(QPageSize(QPageSize::A4),
                            anchoMm > 210.0 - 2 * MARGEN_MM ? QPageLayout::Landscape : QPageLayout::Portrait,
                            QMarginsF(MARGEN_MM, MARGEN_MM, MARGEN_MM, MARGEN_MM), QPageLayout::Millimeter);
    dispositivo.setPageLayout(disposicion);
    const QRectF util = dispositivo.pageLayout().paintRect(QPageLayout::Millimeter);

    // A picture larger than the page allows is shrunk, keeping its shape.
    const double cabe = std::min({1.0, util.width() / anchoMm, (util.height() - ALTO_TITULO_MM) / altoMm});
    const double wMm = anchoMm * cabe, hMm = altoMm * cabe;

    const int anchoPx = std::max(16, static_cast<int>(std::lround(wMm * PUNTOS_POR_MM)));
    const int altoPx = std::max(16, static_cast<int>(std::lround(hMm * PUNTOS_POR_MM)));

    QPainter p;
    if (!p.begin(&dispositivo)) return false;
    // Millimetres from the top left of the printable area, in device pixels.
    const double kx = dispositivo.logicalDpiX() / 25.4, ky = dispositivo.logicalDpiY() / 25.4;
    QFont grande(QStringLiteral("Helvetica"));
    grande.setStyleHint(QFont::SansSerif);
    grande.setPointSizeF(11);
    grande.setBold(true);
    QFont normal = grande;
    normal.setPointSizeF(9);
    normal.setBold(false);

    // The sky first, straight on the device: lines, discs and labels stay
    // vectors on paper and in the PDF, sharp at any resolution.
    const QRectF marco((util.width() - wMm) / 2.0 * kx, ALTO_TITULO_MM * ky, wMm * kx, hMm * ky);
    p.save();
    p.translate(marco.topLeft());
    p.scale(marco.width() / anchoPx, marco.height() / altoPx);
    p.setClipRect(QRectF(0, 0, anchoPx, altoPx));
    {
        Lienzo lienzo(p, anchoPx, altoPx, !e.ImagenEnPantalla);
        ActualizaCielo(e, c, lienzo);
    }
    p.restore();
    const QStringList titulo = LineasTitulo(e);

    p.setPen(Qt::black);
    p.setFont(grande);
    double y = 5.0;
    p.drawText(QPointF(0, y * ky), titulo.value(0));
    y += 6.0;
    p.setFont(normal);
    for (int i = 1; i < titulo.size(); ++i, y += 4.8) p.drawText(QPointF(0, y * ky), titulo[i]);

    p.setPen(QPen(Qt::black, 0.3 * kx));
    p.setBrush(Qt::NoBrush);
    p.drawRect(marco);
    return p.end();
}

bool EscribePdf(const QString& archivo, const Estado& e, const Catalogos& c, int* error) {
    if (error) *error = 0;
    if (QFileInfo(archivo).fileName().isEmpty()) return false;
    // The page is made in memory and then written whole: a full disk leaves
    // the old file or none, never an empty or a cut one.
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&memoria);
        pdf.setResolution(300);
        pdf.setCreator(QStringLiteral("VEDRANO"));
        pdf.setTitle(QStringLiteral("Cielo"));
        if (!ImprimePagina(pdf, e, c)) return false;
    }
    const int fallo =
        EscribeArchivoEntero(QFile::encodeName(archivo).toStdString(), std::string_view(bytes.constData(), bytes.size()));
    if (error) *error = fallo;
    return fallo == 0;
}

}  // namespace vedrano
