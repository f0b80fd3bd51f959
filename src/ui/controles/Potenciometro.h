// The slider (Pic_Potenciometro), positions 0 to 100, captioned with label
// `indice`. The open hand (cursor 22) shows over the thumb; pressing it
// closes the hand (cursor 23) and moving drags the thumb. A click on the
// track moves the thumb ten steps toward the click.
#pragma once
#include "ui/controles/ControlDibujado.h"

namespace vedrano::controles {

class Potenciometro : public ControlDibujado {
    Q_OBJECT
public:
    Potenciometro(Contexto& ctx, int indice, QWidget* padre = nullptr);
    int posicion() const { return posicion_; }
    void setPosicion(int posicion);
    QSize sizeHint() const override { return {131, 42}; }
    QAccessible::Role rolAccesible() const override { return QAccessible::Slider; }
    QString nombreAccesible() const override { return etiqueta(); }
    QString valorAccesible() const override { return QString::number(posicion_); }

signals:
    // While dragging and after a click on the track.
    void posicionCambiada(int posicion);

protected:
    void pinta(QPainter& p) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent* ev) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    // Left and right one step, page keys ten, Home and End the ends.
    void keyPressEvent(QKeyEvent* ev) override;

private:
    QRect mando() const;
    void mueve(int posicion);

    int posicion_ = 50;
    int xInicial_ = 0, posicionInicial_ = 0;
};

}  // namespace vedrano::controles
