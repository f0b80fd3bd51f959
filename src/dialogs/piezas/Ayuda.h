// The program's help: Spanish pages kept among the resources, one per form
// and one for the general description, found by topic number and shown in
// a help window of the program's own. The window is not modal: it stays
// beside the sky while the user goes on working.
#pragma once
#include <QDialog>
#include <QString>

#include "ui/controles/Contexto.h"

class QTextBrowser;

namespace vedrano {

// Topic numbers, as the help buttons and the message box pass them.
namespace tema {
constexpr int INDICE = 1000;
constexpr int GENERAL = 1020;  // the greeting's topic
constexpr int CIELO = 1030;    // main window and control panel
constexpr int CARGAGUAR = 1040;
constexpr int PERSONAL = 1050;
constexpr int LOCALI = 1060;
constexpr int HORA = 1070;
constexpr int OBJETOS = 1080;
constexpr int BUSCAR = 1090;
constexpr int IMPRESOR = 1100;
constexpr int ANIMAR = 1110;
constexpr int TECLADO = 1120;
constexpr int ORDENES = 1130;   // the command-line tool
constexpr int ARCHIVOS = 1140;  // where the program keeps its files
}  // namespace tema

// The page of a topic ("qrc:/ayuda/....html"); an unknown topic gives the
// contents page.
QString PaginaAyuda(int tema);

class VentanaAyuda : public QDialog {
    Q_OBJECT
public:
    VentanaAyuda(controles::Contexto& ctx, QWidget* padre, int tema);
    QTextBrowser* visor() const { return visor_; }
    void muestraTema(int tema);

private:
    QTextBrowser* visor_;
};

// Shows the help at `tema` in the one help window, beside `padre` (the
// main window), and returns at once. While a form is open the window
// belongs to that form, the only one the user can reach then, and it comes
// back to the main window when the form closes.
VentanaAyuda* MuestraAyuda(controles::Contexto& ctx, QWidget* padre, int tema);

}  // namespace vedrano
