// The objects panel: the legend of the symbols the sky picture uses.
#pragma once
#include <QWidget>

#include "app/estado/Estado.h"

namespace vedrano {

// Q_OBJECT gives it its own meta-object, so findChild and qobject_cast
// tell it from the other widgets of the window.
class PanelLeyenda : public QWidget {
    Q_OBJECT

public:
    PanelLeyenda(const Estado& e, QWidget* padre);
    static constexpr int ALTO_LINEA = 15, ALTO_LINEA_MINIMO = 12;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    const Estado& e_;
};

}  // namespace vedrano
