// The screen as Qt sees it, with the operating system's mode change.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <string>

#include "platform/Pantalla.h"

class QWidget;

namespace vedrano::plataforma {

class PantallaQt : public Pantalla {
public:
    int Ancho() const override;
    int Alto() const override;
    long PruebaCambio800x600() override { return PruebaCambioSistema(); }
    long Cambia800x600() override { return CambioSistema(); }
};

// Where windows can go: the free area of the screen that `cerca` is on
// (the main screen without it), less the room the window manager takes for
// a frame and a title bar. A window whose contents fit in it is seen whole.
QRect AreaVentanas(const QWidget* cerca = nullptr);

// Where to move a window whose contents measure `tamano`: centred on
// `sobre` while that is on the screen, else on the screen, and kept within
// AreaVentanas.
QPoint PosicionCentrada(const QSize& tamano, const QWidget* sobre);

// The folder under which the program keeps its private working folder
// when the installation cannot be written: the user's data folder.
std::string CarpetaSistema();

}  // namespace vedrano::plataforma
