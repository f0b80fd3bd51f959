// The push button (Pic_Pulsador): the button face stretched to the
// control's width with its label centred. Releasing the mouse over it
// shows it pressed (sound 6, a 210 ms pause), then released (sound 7),
// and only then reports the action.
#pragma once
#include <string>

#include "ui/controles/ControlDibujado.h"
#include "ui/controles/Estilo.h"

namespace vedrano::controles {

class Pulsador : public ControlDibujado {
    Q_OBJECT
public:
    // The label is entry `indice` of the label table.
    Pulsador(Contexto& ctx, int indice, QWidget* padre = nullptr);
    // A button of the same look whose label is not in the table.
    Pulsador(Contexto& ctx, const QString& rotulo, QWidget* padre = nullptr);

    // Draws the face pressed or released; with sound, 6 going down (then
    // the pause) and 7 coming up.
    void dibuja(bool pulsado, bool conSonido);
    // The row of the bitmap the face is drawn from, as last drawn.
    int filaCara() const { return pulsado_ ? celda::CARA_FILA_PULSADA : celda::CARA_FILA_SUELTA; }
    // The press of a click: down, up, then `accionado`.
    void pulsa();
    // Replaces the two press sounds by one sound played after the press
    // (0 restores them).
    void setSonidoUnico(int numero) { sonidoUnico_ = numero; }
    QSize sizeHint() const override;
    QString nombreAccesible() const override { return etiqueta(); }

signals:
    void accionado();

protected:
    void pinta(QPainter& p) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    void keyPressEvent(QKeyEvent* ev) override;

private:
    QString rotulo() const { return rotulo_.isEmpty() ? etiqueta() : rotulo_; }

    QString rotulo_;
    bool pulsado_ = false;
    int sonidoUnico_ = 0;
};

}  // namespace vedrano::controles
