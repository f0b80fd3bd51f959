// The message box as the configuration reader and writer and the
// catalogue loader see it, for the windowed program.
#pragma once
#include <QPointer>
#include <QWidget>

#include "app/estado/Estado.h"
#include "app/base/Notificador.h"
#include "config/InterfazConfiguracion.h"

namespace vedrano {

class MensajesVentana : public InterfazConfiguracion, public Notificador {
public:
    // Messages are centred on `padre` (may be null: centred on the screen).
    MensajesVentana(Estado& e, QWidget* padre) : e_(e), padre_(padre) {}

    int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones, int16_t icono) override;
    // Loader faults: an error message with the accepting button only.
    void Avisa(const std::string& textoCp1252, const std::string& tituloCp1252) override;

private:
    Estado& e_;
    QPointer<QWidget> padre_;
};

}  // namespace vedrano
