// The switch (Pic_Buleano): the on or off cell and its label. A click
// turns it over and reports the new value; the form binds it to its flag.
#pragma once
#include "ui/controles/ControlDibujado.h"

namespace vedrano::controles {

class Interruptor : public ControlDibujado {
    Q_OBJECT
public:
    // The label is entry `indice` of the label table.
    Interruptor(Contexto& ctx, int indice, QWidget* padre = nullptr);
    // A switch of a program preference, which the label table has no entry for.
    Interruptor(Contexto& ctx, const QString& rotulo, QWidget* padre = nullptr);
    bool encendido() const { return encendido_; }
    void setEncendido(bool si);
    QSize sizeHint() const override;
    QAccessible::Role rolAccesible() const override { return QAccessible::CheckBox; }
    QString nombreAccesible() const override { return etiqueta(); }
    QString valorAccesible() const override { return encendido_ ? QStringLiteral("sí") : QStringLiteral("no"); }
    bool marcable() const override { return true; }
    bool marcado() const override { return encendido_; }

signals:
    // After a click, with the new value.
    void cambiado(bool encendido);

protected:
    void pinta(QPainter& p) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    void keyPressEvent(QKeyEvent* ev) override;

private:
    void cambia();
    bool encendido_ = false;
};

}  // namespace vedrano::controles
