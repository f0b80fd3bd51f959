// What a screen reader learns of the controls the program paints itself:
// a role, a name and a value, through one accessibility factory. Every
// painted control also shows the keyboard focus with a dotted frame.
#pragma once
#include <QAccessible>
#include <QString>

class QPainter;
class QRect;
class QWidget;

namespace vedrano::controles {

// Implemented by every painted control (and the main window's panel
// buttons and fields) next to QWidget.
class Accesible {
public:
    virtual ~Accesible() = default;
    virtual QAccessible::Role rolAccesible() const = 0;
    // Used when the widget has no accessibleName of its own.
    virtual QString nombreAccesible() const = 0;
    virtual QString valorAccesible() const { return {}; }
    // Switches: whether it can be on, and whether it is.
    virtual bool marcable() const { return false; }
    virtual bool marcado() const { return false; }
};

// Registers the factory once; later calls do nothing.
void InstalaAccesibilidad();

// Tells the screen reader that the value of `w` changed.
void AvisaValor(QWidget* w);

// The dotted focus frame inside `area`.
void PintaFoco(QPainter& p, const QRect& area);

// True for the keys that press a focused button: Space, Return, Enter.
bool EsTeclaPulsar(int tecla);

}  // namespace vedrano::controles
