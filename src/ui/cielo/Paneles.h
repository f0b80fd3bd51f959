// The pieces of the main window's panels: a panel with its raised bevel,
// a read-only information field that opens its dialog when clicked, and
// a dialog button of the control panel.
#pragma once
#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include "ui/controles/Accesible.h"
#include "ui/controles/Contexto.h"

namespace vedrano {

// A fixed panel, light grey, framed white above and left and dark below
// and right (the button panel uses its own two colours).
class Panel : public QWidget {
public:
    Panel(QWidget* padre, QColor fondo = QColor(192, 192, 192), QColor claro = Qt::white,
          QColor oscuro = QColor(128, 128, 128));

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QColor fondo_, claro_, oscuro_;
};

// A sunken one-line field; a click, or Return or Space with the focus on
// it, reports itself. Its accessible name says which field it is.
class CampoInfo : public QWidget, public controles::Accesible {
    Q_OBJECT
public:
    explicit CampoInfo(QWidget* padre);
    void FijaTexto(const QString& t);
    QString Texto() const { return texto_; }
    QAccessible::Role rolAccesible() const override { return QAccessible::StaticText; }
    QString nombreAccesible() const override { return accessibleName(); }
    QString valorAccesible() const override { return texto_.trimmed(); }

signals:
    void pulsado();

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }

private:
    QString texto_;
};

// A 48 x 48 dialog button of the control panel; it reports the release,
// or Return or Space with the focus on it.
class BotonPanel : public QWidget, public controles::Accesible {
    Q_OBJECT
public:
    BotonPanel(controles::Contexto& ctx, int indice, const QString& ayuda, QWidget* padre);
    int indice() const { return indice_; }
    QAccessible::Role rolAccesible() const override { return QAccessible::Button; }
    QString nombreAccesible() const override { return toolTip().trimmed(); }

signals:
    void soltado(int indice);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }

private:
    controles::Contexto& ctx_;
    int indice_;
    bool pulsado_ = false;
    QPixmap suelto_, hundido_;
};

}  // namespace vedrano
