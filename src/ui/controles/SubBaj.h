// The arrow pair of the main window (Pic_SubBaj): a caption and two
// arrow keys, the left one (decrease) at (11, 14) and the right one
// (increase) at (38, 14). The widget draws and reports; the hold-to-repeat
// loop belongs to the window. Over the active band (x 10..53, y 12..22)
// the pointer is "ManoIndice" (21), elsewhere the default.
#pragma once
#include <string>

#include "ui/controles/ControlDibujado.h"

namespace vedrano::controles {

class SubBaj : public ControlDibujado {
    Q_OBJECT
public:
    // `rotulo` in Windows-1252 ("Dirección", ...).
    SubBaj(Contexto& ctx, int indice, std::string rotulo, QWidget* padre = nullptr);
    // 1 the left arrow lit, 0 the right one, anything else neither.
    void dibuja(int estado);
    int estadoDibujado() const { return estado_; }
    static bool enBanda(QPoint p) { return p.x() >= 10 && p.x() <= 53 && p.y() >= 12 && p.y() <= 22; }
    QSize sizeHint() const override;
    QAccessible::Role rolAccesible() const override { return QAccessible::SpinBox; }
    QString nombreAccesible() const override;
    QString valorAccesible() const override { return valor_; }
    // What the pair steps, as the panel shows it, for the screen reader.
    void setValor(const QString& valor);

signals:
    void pulsado(int x);                 // a left press, with its x (left arrow when x < 33)
    void movido(int x, int y, bool enBanda);  // pointer moves; (-1, -1, false) when it leaves
    void soltado();
    void tecla(int signo);  // the left (-1) or right (+1) arrow key with the focus here

protected:
    void pinta(QPainter& p) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent* ev) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    void leaveEvent(QEvent*) override;
    void keyPressEvent(QKeyEvent* ev) override;

private:
    std::string rotulo_;
    int estado_ = -1;
    QString valor_;
};

}  // namespace vedrano::controles
