// The printing form: the picture's width and height on paper, the screen's
// colours or black on white, and whether the title names the place; the
// accept button prints the page, to a printer or to a PDF file through the
// print dialog.
#pragma once
#include <QDialog>

#include "ui/formas/ContextoDialogo.h"

namespace vedrano {

namespace controles {
class BotonDialogo;
class Interruptor;
class Spin;
}  // namespace controles

class Impresor : public QDialog {
    Q_OBJECT
public:
    Impresor(ContextoDialogo& ctx, QWidget* padre = nullptr);

    controles::Spin* ancho() const { return ancho_; }
    controles::Spin* alto() const { return alto_; }
    controles::Interruptor* enPantalla() const { return enPantalla_; }
    controles::Interruptor* localizacion() const { return localizacion_; }
    controles::BotonDialogo* botonImprimir() const { return imprimir_; }

    // The page into a PDF file; a message tells when it cannot be written.
    bool guardaPdf(const QString& archivo);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void imprime();

    ContextoDialogo& ctx_;
    controles::Spin *ancho_, *alto_;
    controles::Interruptor *enPantalla_, *localizacion_;
    controles::BotonDialogo *imprimir_, *ayuda_, *salir_;
};

void AbreImpresor(ContextoDialogo& ctx);

}  // namespace vedrano
