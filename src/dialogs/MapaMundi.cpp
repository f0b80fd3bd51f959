#include "dialogs/MapaMundi.h"

#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <QtEndian>
#include <algorithm>
#include <cmath>

#include "app/base/Constantes.h"
#include "app/base/Cursores.h"
#include "ui/controles/ControlDibujado.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

namespace {

const QColor MAR{0, 0, 128}, COSTA{192, 220, 255}, REJILLA{0, 0, 176}, LUGAR{255, 255, 0}, ELEGIDO{255, 0, 0};
constexpr int RADIO_PULSACION = 5;

std::vector<std::vector<QPointF>> LeeCostas() {
    std::vector<std::vector<QPointF>> lineas;
    QFile f(QStringLiteral(":/mapa/costas.bin"));
    if (!f.open(QIODevice::ReadOnly)) return lineas;
    const QByteArray d = f.readAll();
    auto entero = [&d](qsizetype pos) { return qFromLittleEndian<quint32>(d.constData() + pos); };
    auto corto = [&d](qsizetype pos) { return qFromLittleEndian<qint16>(d.constData() + pos); };
    if (d.size() < 8 || !d.startsWith("VDMP")) return lineas;
    qsizetype pos = 8;
    for (quint32 k = 0, n = entero(4); k < n; ++k) {
        if (pos + 4 > d.size()) return {};
        const quint32 puntos = entero(pos);
        pos += 4;
        if (pos + qsizetype(puntos) * 4 > d.size()) return {};
        std::vector<QPointF> linea;
        linea.reserve(puntos);
        for (quint32 i = 0; i < puntos; ++i, pos += 4) linea.emplace_back(corto(pos) / 100.0, corto(pos + 2) / 100.0);
        lineas.push_back(std::move(linea));
    }
    return lineas;
}

}  // namespace

const std::vector<std::vector<QPointF>>& LineasCosta() {
    static const std::vector<std::vector<QPointF>> lineas = LeeCostas();
    return lineas;
}

MapaMundi::MapaMundi(const Estado& e, controles::Contexto& controles, const Catalogos& c, QWidget* padre)
    : QWidget(padre), e_(e), controles_(controles), c_(c) {
    setMouseTracking(true);
    setToolTip(QStringLiteral(" Pulse sobre un lugar para elegirlo, o en cualquier otro punto para situarse en él "));
}

QRectF MapaMundi::area() const { return QRectF(rect()).adjusted(2, 2, -2, -2); }

QPointF MapaMundi::Punto(double longitudOeste, double latitud) const {
    double este = -longitudOeste * RAD_A_GRADOS;
    if (este < -180) este += 360;
    const QRectF a = area();
    return {a.left() + (este + 180.0) / 360.0 * a.width(), a.top() + (90.0 - latitud * RAD_A_GRADOS) / 180.0 * a.height()};
}

int MapaMundi::LugarCercano(QPoint p) const {
    int mejor = -1;
    double dMejor = RADIO_PULSACION * RADIO_PULSACION + 0.5;
    for (std::size_t i = 0; i < c_.TablaCiudades.size(); ++i) {
        const QPointF q = Punto(c_.TablaCiudades[i].Longitud, c_.TablaCiudades[i].Latitud) - QPointF(p);
        const double d = QPointF::dotProduct(q, q);
        if (d < dMejor) {
            dMejor = d;
            mejor = static_cast<int>(i);
        }
    }
    return mejor;
}

void MapaMundi::resizeEvent(QResizeEvent*) { fondo_ = QImage(); }

void MapaMundi::RayasMapa(QPainter& p) const {
    const QRectF a = area();
    p.fillRect(a, MAR);
    p.setPen(QPen(REJILLA, 1));
    for (int lon = -150; lon <= 150; lon += 30) {
        const double x = a.left() + (lon + 180.0) / 360.0 * a.width();
        p.drawLine(QPointF(x, a.top()), QPointF(x, a.bottom()));
    }
    for (int lat = -60; lat <= 60; lat += 30) {
        const double y = a.top() + (90.0 - lat) / 180.0 * a.height();
        p.drawLine(QPointF(a.left(), y), QPointF(a.right(), y));
    }
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(COSTA, 1));
    for (const auto& linea : LineasCosta()) {
        QPolygonF tramo;
        for (std::size_t i = 0; i < linea.size(); ++i) {
            // A line that crosses the 180th meridian is cut there, not drawn across the map.
            if (i > 0 && std::abs(linea[i].x() - linea[i - 1].x()) > 180.0) {
                p.drawPolyline(tramo);
                tramo.clear();
            }
            const QPointF& q = linea[i];
            tramo << QPointF(a.left() + (q.x() + 180.0) / 360.0 * a.width(), a.top() + (90.0 - q.y()) / 180.0 * a.height());
        }
        p.drawPolyline(tramo);
    }
}

void MapaMundi::DibujaPuntos(QPainter& p) const {
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(Qt::NoPen);
    p.setBrush(LUGAR);
    for (const Ciudad& c : c_.TablaCiudades) {
        const QPointF q = Punto(c.Longitud, c.Latitud);
        p.drawRect(QRectF(std::floor(q.x()) - 1, std::floor(q.y()) - 1, 2, 2));
    }
    // The observer's place: a ring with a cross, over the dot of its place.
    const QPointF q = Punto(e_.Longitud, e_.Latitud);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(ELEGIDO, 2));
    p.drawEllipse(q, 5, 5);
    p.setPen(QPen(ELEGIDO, 1));
    p.drawLine(q - QPointF(9, 0), q - QPointF(6, 0));
    p.drawLine(q + QPointF(6, 0), q + QPointF(9, 0));
    p.drawLine(q - QPointF(0, 9), q - QPointF(0, 6));
    p.drawLine(q + QPointF(0, 6), q + QPointF(0, 9));
}

void MapaMundi::paintEvent(QPaintEvent*) {
    if (fondo_.size() != size()) {
        fondo_ = QImage(size(), QImage::Format_RGB32);
        fondo_.fill(controles::GRIS_CLARO);
        QPainter f(&fondo_);
        // Sunken frame, then the map inside it.
        f.setPen(controles::GRIS_OSCURO);
        f.drawLine(0, 0, width() - 1, 0);
        f.drawLine(0, 0, 0, height() - 1);
        f.setPen(controles::BLANCO);
        f.drawLine(0, height() - 1, width() - 1, height() - 1);
        f.drawLine(width() - 1, 0, width() - 1, height() - 1);
        RayasMapa(f);
    }
    QPainter p(this);
    p.drawImage(0, 0, fondo_);
    p.setClipRect(area());
    DibujaPuntos(p);
}

void MapaMundi::mouseMoveEvent(QMouseEvent* ev) {
    const bool dentro = area().contains(ev->position());
    const int16_t puntero = dentro ? cursor::ManoIndice : cursor::Normal;
    if (controles_.CursorActual != puntero) controles::FijaCursor(controles_, this, puntero);
}

void MapaMundi::mouseReleaseEvent(QMouseEvent* ev) {
    if (ev->button() != Qt::LeftButton || !area().contains(ev->position())) return;
    const QPoint p = ev->position().toPoint();
    if (int i = LugarCercano(p); i >= 0) {
        emit lugarPulsado(i);
        return;
    }
    const QRectF a = area();
    const double este = (ev->position().x() - a.left()) / a.width() * 360.0 - 180.0;
    const double lat = 90.0 - (ev->position().y() - a.top()) / a.height() * 180.0;
    double oeste = -este * GRADO;
    if (oeste < 0) oeste += DOS_PI;
    emit puntoPulsado(oeste, std::clamp(lat, -90.0, 90.0) * GRADO);
}

}  // namespace vedrano
