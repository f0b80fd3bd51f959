// What the option forms share: the grey ground framed by a raised bevel,
// the embossed title, etched group frames with a caption, check boxes and
// option buttons drawn from the switch cells, and the row of dialog
// buttons (help and leave) at the bottom right.
#pragma once
#include <QDialog>
#include <QString>
#include <string>
#include <vector>

#include "ui/formas/ContextoDialogo.h"
#include "ui/controles/ControlDibujado.h"

class QBoxLayout;
class QLayout;

namespace vedrano {

namespace controles {
class BotonDialogo;
}

// An etched frame with its caption laid over the top edge; its children go
// in the layout returned by `contenido`.
class Grupo : public QWidget {
public:
    Grupo(const std::string& tituloCp1252, QWidget* padre = nullptr);
    QBoxLayout* contenido() const { return caja_; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QString titulo_;
    QBoxLayout* caja_;
};

// A plain embossed label.
class Rotulo : public QWidget {
public:
    Rotulo(const std::string& textoCp1252, QWidget* padre = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QString texto_;
};

// A check box (Chk_) or an option button (Opt_): the switch cell and a
// caption of its own. An option button belongs to a group of which exactly
// one is on: a click on it turns the others off, and a click on the one
// that is on leaves it on.
class Casilla : public controles::ControlDibujado {
    Q_OBJECT
public:
    Casilla(controles::Contexto& ctx, const std::string& textoCp1252, QWidget* padre = nullptr);
    bool marcada() const { return marcada_; }
    void setMarcada(bool si);
    QString texto() const { return texto_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // Makes option buttons of `grupo`; `alElegir` receives the position of
    // the button chosen.
    static void HazOpciones(const std::vector<Casilla*>& grupo, std::function<void(int)> alElegir);

signals:
    void cambiada(bool marcada);

protected:
    void pinta(QPainter& p) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;

private:
    QString texto_;
    bool marcada_ = false;
    bool esOpcion_ = false;
};

class MarcoOpciones : public QDialog {
    Q_OBJECT
public:
    // `temaAyuda` is the help topic of the help button; `nombreCorto` ends
    // the buttons' tooltips (" Salir de <nombre> ", " Ayuda sobre <nombre> ").
    MarcoOpciones(ContextoDialogo& ctx, const std::string& tituloCp1252, const std::string& nombreCortoCp1252,
                  int temaAyuda);

    controles::BotonDialogo* botonSalir() const { return salir_; }
    controles::BotonDialogo* botonAyuda() const { return ayuda_; }

protected:
    // The form's own controls, above the button row.
    void ponCuerpo(QLayout* cuerpo);
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* ev) override;

    ContextoDialogo& ctx_;

private:
    QString titulo_;
    QBoxLayout* principal_;
    controles::BotonDialogo* salir_;
    controles::BotonDialogo* ayuda_;
};

// After a form: when the program preferences differ from `antes`, writes
// them to the settings file (telling the user, under `tituloCp1252`, when
// it cannot) and returns true.
bool GuardaPreferencias(ContextoDialogo& ctx, const Preferencias& antes, const std::string& tituloCp1252);

}  // namespace vedrano
