// The sky picture of the main window: shows the canvas, keeps its size in
// step with the window, reports the point under the cursor, centres on a
// left click and marks on a right click. Besides, the wheel zooms about
// the point under the pointer and a left drag turns the view; a press that
// moves less than the drag distance stays a click.
#pragma once
#include <QWidget>
#include <functional>
#include <string>

#include "app/estado/Estado.h"
#include "app/base/InterfazMensajes.h"
#include "catalogue/Catalogos.h"
#include "catalogue/EstrellasProfundas.h"
#include "sky/Lienzo.h"
#include "sky/OpcionesDibujo.h"
#include "sky/apunta/Apunta.h"
#include "sky/apunta/ObjetoBajo.h"

namespace vedrano {

class VistaCielo : public QWidget {
    Q_OBJECT
public:
    VistaCielo(Estado& e, const Catalogos& c, InterfazMensajes& m, QWidget* padre = nullptr);

    // The full update (time, solar system, scale, view) and the pass.
    void ActualizaCielo();
    // The pass alone, with the values already set.
    void DibujaCielo();
    const Lienzo& Canvas() const { return lienzo_; }
    // Screen pixel to the picture's user scale.
    QPointF AUsuario(const QPointF& pixel) const;
    // The object drawn under a pixel (within a few pixels).
    ObjetoSenalado ObjetoEn(const QPointF& pixel) const;

signals:
    void CursorMovido(const TextosCursor& textos);
    void VistaCentrada();  // a click centred the view: the panels must follow
    void VistaGirada();    // a drag or the wheel changed direction, elevation or zoom
    void ObjetoPedido(const ObjetoSenalado& objeto);  // Ctrl and a click on an object
    void Dibujado();       // a pass finished: the information fields can be refreshed

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    bool event(QEvent* ev) override;  // the tooltip of the object under the pointer

private:
    void DibujaMarca(const QPointF& pixel);
    void Protegido(const std::function<void()>& pasada);
    // The picture's program preferences; opens the deep star catalogue the
    // first time the layer is asked for.
    const OpcionesDibujo& PreparaOpciones();
    void InformaCursor(const QPointF& pixel);
    // The view turned or zoomed by the mouse: redraw and tell the panels.
    void VistaMovida();

    Estado& e_;
    const Catalogos& c_;
    InterfazMensajes& m_;
    Lienzo lienzo_;
    OpcionesDibujo opciones_;
    EstrellasProfundas profundas_;
    bool profundasProbadas_ = false;
    QPointF marca_;
    // The left press of a possible drag: where it went down, the horizon
    // place gripped there, and whether it has become a drag.
    QPointF presion_;
    PuntoHorizonte agarre_;
    bool agarrado_ = false, arrastrando_ = false;
    bool clickArmado_ = false;  // a press on the sky that may still end as a click
    int restoRueda_ = 0;  // wheel eighths of a degree not yet a step
    bool listo_ = false, avisado_ = false;
};

}  // namespace vedrano
