// The spin field (Pic_Spin with its text field Tex_Spin): the label, the
// value's text field and the up and down keys. Holding a key repeats the
// step (limits, step, picture and wrap from value record `indice`) until
// the mouse is released or leaves the keys (the spin hold flag of the
// controls' context); when the repeat ends the value goes to the store callback.
#pragma once
#include <functional>
#include <optional>
#include <string>

#include "ui/controles/ControlDibujado.h"

class QLineEdit;

namespace vedrano::controles {

class Spin : public ControlDibujado {
    Q_OBJECT
public:
    // Label `indice` of the label table, value record `indice`.
    Spin(Contexto& ctx, int indice, QWidget* padre = nullptr);

    float valor() const { return valor_; }
    // Shows `v` without storing it.
    void setValor(float v);
    QLineEdit* campo() const { return campo_; }

    // Where the value goes when a repeat ends or a typed value is accepted.
    void setAlmacen(std::function<void(float)> almacen) { almacen_ = std::move(almacen); }
    // The text shown for a value (Windows-1252); by default the record's picture.
    void setFormateador(std::function<std::string(float)> f) { formateador_ = std::move(f); }
    // Reads a typed text (Windows-1252); by default a plain number. No value: refused.
    void setLector(std::function<std::optional<float>(const std::string&)> l) { lector_ = std::move(l); }

    QSize sizeHint() const override;
    QAccessible::Role rolAccesible() const override { return QAccessible::SpinBox; }
    QString nombreAccesible() const override { return etiqueta(); }
    QString valorAccesible() const override;

signals:
    // After every step of a repeat.
    void paso(float valor);
    // After the value was stored.
    void almacenado(float valor);

protected:
    void pinta(QPainter& p) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent* ev) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    // The up and down arrows (also from the text field): one step, stored
    // at once, as a short press of a key.
    void keyPressEvent(QKeyEvent* ev) override;

private:
    void repite(bool subir);
    // One step of the repeat; false, doing nothing, at a closed end.
    bool avanza(bool subir);
    void muestra();
    void aceptaTexto();
    void almacena();
    bool sobreFlechas(QPoint p) const;

    QLineEdit* campo_;
    float valor_ = 0;
    int encendida_ = 0;  // +1 upper key lit, -1 lower, 0 none
    std::function<void(float)> almacen_;
    std::function<std::string(float)> formateador_;
    std::function<std::optional<float>(const std::string&)> lector_;
};

}  // namespace vedrano::controles
