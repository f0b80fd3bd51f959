// A step key (Pic_TeclaAD): the up and down keys with a label beneath.
// Holding a half repeats the step callback (+1 upper, -1 lower) until the
// mouse is released or leaves the keys; the spin hold flag of the
// controls' context carries the hold, as for spin fields.
#pragma once
#include <functional>
#include <string>

#include "ui/controles/ControlDibujado.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

class TeclaAD : public ControlDibujado {
    Q_OBJECT
public:
    // `etiqueta` in Windows-1252 ("Minuto", "Hora", ...).
    TeclaAD(Contexto& ctx, int indice, std::string etiqueta, QWidget* padre = nullptr);
    // One step of the repeat, in the direction given.
    void setPaso(std::function<void(int sentido)> paso) { paso_ = std::move(paso); }
    QSize sizeHint() const override;
    QString nombreAccesible() const override { return Texto(texto_).trimmed(); }

signals:
    // Before the first step and after the last.
    void pulsada(int sentido);
    void soltada();

protected:
    void pinta(QPainter& p) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent* ev) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    // The up and down arrows: one step each, as a short press of a half.
    void keyPressEvent(QKeyEvent* ev) override;

private:
    QPoint origenFlechas() const { return {(width() - 17) / 2, 4}; }
    bool sobreFlechas(QPoint p) const;

    std::string texto_;
    std::function<void(int)> paso_;
    int encendida_ = 0;
};

}  // namespace vedrano::controles
