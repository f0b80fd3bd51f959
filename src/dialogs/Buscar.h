// The object search form: the general index of twelve categories, each
// category's list with its column header and legend, and a search box.
// Searching a line (the search button, a double-click, or Enter) centres
// the sky on the object and, when the centring took place, closes the form.
#pragma once
#include <QDialog>
#include <array>

#include "ui/formas/ContextoDialogo.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace vedrano {

namespace controles {
class BotonDialogo;
class Pulsador;
}  // namespace controles
class Relieve;

class Buscar : public QDialog {
    Q_OBJECT
public:
    Buscar(ContextoDialogo& ctx, QWidget* padre = nullptr);

    QListWidget* indice() const { return indice_; }
    QListWidget* lista(int categoria) const { return listas_.at(static_cast<std::size_t>(categoria)); }
    QLineEdit* filtro() const { return filtro_; }
    controles::BotonDialogo* botonBuscar() const { return buscar_; }
    controles::BotonDialogo* botonSalir() const { return salir_; }
    QString titulo() const;
    // The caption: a click on it leads back to the general index.
    QWidget* rotulo() const;
    QString cabecera() const;
    QStringList leyenda() const;
    // The rising, transit and setting of the chosen line (empty without one).
    QString textoDia() const;
    // The category shown, -1 while the index is.
    int categoria() const { return categoria_; }

    void muestraIndice();
    // Shows a category's list, on line `fila` when one is given.
    void eligeCategoria(int categoria, int fila = -1);
    // The lines of every list found by the search box from the index, each
    // with its category; choosing one opens its list on that line.
    QListWidget* hallados() const { return hallados_; }
    // The button that leads back to the general index.
    controles::Pulsador* botonIndice() const { return volver_; }
    // Sets the target from the selected line and centres on it.
    void busca();

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* ev) override;
    void closeEvent(QCloseEvent* ev) override;
    bool eventFilter(QObject* objeto, QEvent* ev) override;

private:
    QListWidget* listaVisible() const;
    void muestraHallados(const QString& filtro);
    void abreHallado();
    // The search button in use, or shown out of use with the reason.
    void permiteBuscar(bool si);
    // Keeps the whole form on the screen as its legend comes and goes.
    void ajustaAPantalla();
    void muestraDia();
    void sale();

    ContextoDialogo& ctx_;
    int categoria_ = -1;
    Relieve* titulo_;
    QLabel* cabecera_;
    QLabel* leyenda_;
    QLabel* dia_;
    QListWidget* indice_;
    std::array<QListWidget*, 12> listas_{};
    QListWidget* hallados_;
    controles::Pulsador* volver_;
    QLineEdit* filtro_;
    controles::BotonDialogo *buscar_, *ayuda_, *salir_;
};

// Opens the search form from the control panel.
void AbreBuscar(ContextoDialogo& ctx);

}  // namespace vedrano
