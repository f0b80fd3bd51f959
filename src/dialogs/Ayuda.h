// The program's help: Spanish pages kept among the resources, one per form
// and one for the general description, found by topic number and shown in
// a help window of the program's own.
#pragma once
#include <QDialog>
#include <QString>

class QTextBrowser;

namespace vedrano {

struct Estado;

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
}  // namespace tema

// The page of a topic ("qrc:/ayuda/....html"); an unknown topic gives the
// contents page.
QString PaginaAyuda(int tema);

class VentanaAyuda : public QDialog {
    Q_OBJECT
public:
    VentanaAyuda(Estado& e, QWidget* padre, int tema);
    QTextBrowser* visor() const { return visor_; }

private:
    QTextBrowser* visor_;
};

// Shows the help at `tema`, modal over `padre` (the main window or the
// form whose help button was pressed), until the user leaves it.
void MuestraAyuda(Estado& e, QWidget* padre, int tema);

}  // namespace vedrano
