// The dialog buttons (Pic_BotSalir, Pic_BotAyuda, Pic_BotAceptar): a
// 32 x 32 picture, drawn pressed while the mouse is down over it. Releasing
// over it reports the click; closing and accepting play sound 9 first.
#pragma once
#include "ui/controles/ControlDibujado.h"

namespace vedrano::controles {

class BotonDialogo : public ControlDibujado {
    Q_OBJECT
public:
    enum class Tipo { Salir = 0, Ayuda = 1, Aceptar = 2 };
    BotonDialogo(Contexto& ctx, Tipo tipo, QWidget* padre = nullptr);
    Tipo tipo() const { return tipo_; }
    QSize sizeHint() const override { return {32, 32}; }
    QString nombreAccesible() const override;
    // The press from the keyboard: shown down a moment, then as a click.
    void acciona();

signals:
    void pulsado();

protected:
    void pinta(QPainter& p) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    void keyPressEvent(QKeyEvent* ev) override;

private:
    Tipo tipo_;
    bool abajo_ = false;
};

}  // namespace vedrano::controles
