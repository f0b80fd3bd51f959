// The program's own message box: every message, question and notice of
// the program goes through it. Modal, centred on its parent, in the grey
// look of the controls, with an icon (1 error, 2 information, 3 question
// or greeting, 6 warning), the accepting button and, for button set 2,
// the cancelling one; a help button when a help topic is given.
#pragma once
#include <QDialog>
#include <cstdint>
#include <functional>
#include <string>

#include "app/estado/Estado.h"
#include "ui/controles/Contexto.h"

namespace vedrano {

namespace controles {
class Pulsador;
class BotonDialogo;
}  // namespace controles

// Shows the message (its buttons share `controles`) and waits for the answer, which it leaves in
// e.RespuestaMensaje and returns: -1 accept, 0 cancel. Esc or closing the
// box cancels a set-2 message and accepts a set-1 one. Text and title are
// Windows-1252; CR LF breaks the lines.
int16_t MuestraMensaje(Estado& e, controles::Contexto& controles, QWidget* padre, const std::string& textoCp1252,
                       const std::string& tituloCp1252, int16_t botones, int16_t icono, int16_t ayuda = 0);

// What the help button does with its topic (the program's help window).
void FijaAyudaMensajes(std::function<void(int)> ayuda);

class Mensajes : public QDialog {
    Q_OBJECT
public:
    Mensajes(Estado& e, controles::Contexto& controles, QWidget* padre, const std::string& textoCp1252,
             const std::string& tituloCp1252, int16_t botones, int16_t icono, int16_t ayuda);

    controles::Pulsador* botonAceptar() const { return aceptar_; }
    controles::Pulsador* botonCancelar() const { return cancelar_; }  // null for set 1
    controles::BotonDialogo* botonAyuda() const { return ayuda_; }    // null without a topic
    int16_t tema() const { return tema_; }

protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;
    void keyPressEvent(QKeyEvent* ev) override;
    void closeEvent(QCloseEvent* ev) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent* ev) override;

private:
    void responde(int16_t respuesta);
    void dibujaIcono(QPainter& p, QRect area) const;

    Estado& e_;
    controles::Contexto& controles_;
    QString texto_, titulo_;
    int16_t botones_, icono_, tema_;
    QRect areaTexto_;
    controles::Pulsador* aceptar_ = nullptr;
    controles::Pulsador* cancelar_ = nullptr;
    controles::BotonDialogo* ayuda_ = nullptr;
    QPoint agarre_;
    bool respondido_ = false;
};

}  // namespace vedrano
