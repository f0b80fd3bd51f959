// The information form of an object of the sky: what it is, where it is,
// and its rising, transit and setting (for the Sun, its twilights) on the
// day and at the place of the sky shown. Opened by Ctrl and a click on the
// object, or the key I with the pointer on it.
#pragma once
#include <QDialog>
#include <QStringList>

#include "ui/formas/ContextoDialogo.h"
#include "sky/apunta/ObjetoBajo.h"

namespace vedrano {

namespace controles {
class BotonDialogo;
}

class InfoObjeto : public QDialog {
    Q_OBJECT
public:
    InfoObjeto(ContextoDialogo& ctx, const ObjetoSenalado& objeto);
    // The lines shown, the description and then the day.
    QStringList lineas() const { return lineas_; }
    controles::BotonDialogo* botonSalir() const { return salir_; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QStringList lineas_;
    controles::BotonDialogo* salir_;
};

void AbreInfoObjeto(ContextoDialogo& ctx, const ObjetoSenalado& objeto);

}  // namespace vedrano
