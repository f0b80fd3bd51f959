// The location form: the list of places, the world map, and the spin
// fields of longitude, latitude and time zone, and of the view's direction,
// elevation and zoom. Choosing a place proposes its time zone; leaving the
// form recomputes the sky for the new place and redraws it.
#pragma once
#include <QDialog>

#include "ui/formas/ContextoDialogo.h"

class QLineEdit;
class QListWidget;

namespace vedrano {

namespace controles {
class BotonDialogo;
class Spin;
}  // namespace controles
class MapaMundi;

class Locali : public QDialog {
    Q_OBJECT
public:
    Locali(ContextoDialogo& ctx, QWidget* padre = nullptr);

    QListWidget* lugares() const { return lugares_; }
    QLineEdit* filtro() const { return filtro_; }
    MapaMundi* mapa() const { return mapa_; }
    // 25 longitude, 26 latitude, 27 zone, 28 direction, 29 elevation, 30 zoom.
    controles::Spin* spin(int indice) const;
    controles::BotonDialogo* botonSalir() const { return salir_; }

    // Place `i` of the list chosen by the user.
    void eligeLugar(int i);

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* ev) override;
    void closeEvent(QCloseEvent* ev) override;

private:
    void muestraValores();
    void sale();

    ContextoDialogo& ctx_;
    QListWidget* lugares_;
    QLineEdit* filtro_;
    MapaMundi* mapa_;
    controles::Spin *longitud_, *latitud_, *zona_, *direccion_, *elevacion_, *zoom_;
    controles::BotonDialogo *ayuda_, *salir_;
    bool saliendo_ = false;
};

// Opens the location form from the control panel or the place fields.
void AbreLocali(ContextoDialogo& ctx);

}  // namespace vedrano
