// The message port answered by the program's message box, for the windowed
// program.
#pragma once
#include <QPointer>
#include <QWidget>

#include "app/estado/Estado.h"
#include "app/base/InterfazMensajes.h"
#include "ui/controles/Contexto.h"

namespace vedrano {

class MensajesVentana : public InterfazMensajes {
public:
    // Messages are centred on `padre` (may be null: centred on the screen).
    MensajesVentana(Estado& e, controles::Contexto& controles, QWidget* padre)
        : e_(e), controles_(controles), padre_(padre) {}

    int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones, int16_t icono) override;

private:
    Estado& e_;
    controles::Contexto& controles_;
    QPointer<QWidget> padre_;
};

}  // namespace vedrano
