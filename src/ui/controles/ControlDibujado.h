// The base of every custom-drawn control: it knows the controls' context
// (the current cursor, the spin hold flag, the sound option and the speed
// setting) and its index
// in its control array, which keys the label and value tables. Each kind
// paints itself completely from the control bitmap in `pinta`. A control
// takes the keyboard focus with Tab (a click leaves the focus where it
// was), shows it with a dotted frame and answers the keys that stand for
// its mouse gestures; keys it does not use go on to its form.
#pragma once
#include <QWidget>
#include <cstdint>

#include "ui/controles/Accesible.h"
#include "ui/controles/Contexto.h"

class QPainter;

namespace vedrano::controles {

// Sets pointer `numero` (21..25 the program's own, below 20 the standard
// ones, 0 the default) on `w` and records it as the current cursor.
void FijaCursor(Contexto& ctx, QWidget* w, int16_t numero);

// Plays click sound `numero` if the sound option is on (mode 1 does not
// wait for it).
void Suena(const Contexto& ctx, int modo, int numero);

// Waits `milisegundos` scaled by the speed setting; no event runs.
void Espera(const Contexto& ctx, double milisegundos);

// Lets the pending window events run, once per step of a repeat loop.
void AtiendeEventos();

class ControlDibujado : public QWidget, public Accesible {
    Q_OBJECT
public:
    ControlDibujado(Contexto& ctx, int indice, QWidget* padre);
    int indice() const { return indice_; }
    QAccessible::Role rolAccesible() const override { return QAccessible::Button; }
    QString nombreAccesible() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    // Leaving the control gives the default pointer back.
    void leaveEvent(QEvent*) override;
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }
    virtual void pinta(QPainter& p) = 0;
    // The label of this control: its own, or else the label table's entry.
    QString etiqueta() const;
    void fijaCursor(int16_t numero) { FijaCursor(ctx_, this, numero); }
    // Sets `numero` only when another pointer is the current one.
    void cambiaCursor(int16_t numero);

    Contexto& ctx_;
    const int indice_;
    QString rotulo_;  // for controls beyond the label table (program preferences)
};

}  // namespace vedrano::controles
