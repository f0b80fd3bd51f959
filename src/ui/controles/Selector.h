// The selector (Pic_Selector): a framed face, captioned with label
// `indice`, showing one of several choices; a left click steps to the next
// choice and a right click to the previous one, coming round at the ends.
#pragma once
#include <string>
#include <vector>

#include "ui/controles/ControlDibujado.h"

namespace vedrano::controles {

class Selector : public ControlDibujado {
    Q_OBJECT
public:
    // `opciones` in Windows-1252; the choice is numbered from 1.
    Selector(Contexto& ctx, int indice, std::vector<std::string> opciones, QWidget* padre = nullptr);
    int eleccion() const { return eleccion_; }
    // Out-of-range choices are taken as the first.
    void setEleccion(int eleccion);
    QSize sizeHint() const override;
    QAccessible::Role rolAccesible() const override { return QAccessible::ComboBox; }
    QString nombreAccesible() const override { return etiqueta(); }
    QString valorAccesible() const override;

signals:
    void eleccionCambiada(int eleccion);

protected:
    void pinta(QPainter& p) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    // Space, Return and the right or down arrow: the next choice; the left
    // or up arrow: the previous one (the right click's).
    void keyPressEvent(QKeyEvent* ev) override;

private:
    void avanza(int sentido);
    std::vector<std::string> opciones_;
    int eleccion_ = 1;
};

}  // namespace vedrano::controles
