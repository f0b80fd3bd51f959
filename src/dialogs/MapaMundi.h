// The world map of the location form: the coastlines (RayasMapa), the
// places of the list (DibujaPuntos) with the chosen one marked, and the
// observer's own point. Plate carrée, east to the right.
#pragma once
#include <QImage>
#include <QWidget>
#include <vector>

#include "app/estado/Estado.h"
#include "ui/controles/Contexto.h"
#include "catalogue/Catalogos.h"

namespace vedrano {

class MapaMundi : public QWidget {
    Q_OBJECT
public:
    MapaMundi(const Estado& e, controles::Contexto& controles, const Catalogos& c, QWidget* padre = nullptr);
    QSize sizeHint() const override { return {2 * ANCHO_GRADOS, 2 * ALTO_GRADOS}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

    // Screen point of a west-positive longitude and a latitude, radians.
    QPointF Punto(double longitudOeste, double latitud) const;
    // The place whose dot lies within a few pixels of `p`, or -1.
    int LugarCercano(QPoint p) const;

    // Redraws after the state's place changed.
    void Actualiza() { update(); }

signals:
    void lugarPulsado(int indice);
    void puntoPulsado(double longitudOeste, double latitud);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent* ev) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    void resizeEvent(QResizeEvent*) override;

private:
    static constexpr int ANCHO_GRADOS = 180, ALTO_GRADOS = 90;
    QRectF area() const;
    void RayasMapa(QPainter& p) const;
    void DibujaPuntos(QPainter& p) const;

    const Estado& e_;
    controles::Contexto& controles_;
    const Catalogos& c_;
    QImage fondo_;  // the coastlines, drawn once per size
};

// The coastlines of the program's resources, longitude east positive and
// latitude in degrees, one polyline each; empty when the resource is missing
// or damaged.
const std::vector<std::vector<QPointF>>& LineasCosta();

}  // namespace vedrano
