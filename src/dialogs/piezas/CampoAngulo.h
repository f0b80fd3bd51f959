// Typing a longitude or latitude into its spin field. Keys that cannot
// belong to an angle vanish as they are typed; on leaving the field the
// text is read as degrees, minutes and seconds with a compass letter (or a
// sign), brought within range, laid out as the field shows it and read back
// by LeeAngulo.
#pragma once
#include <QString>
#include <optional>
#include <string>

#include "ui/controles/Spin.h"

namespace vedrano {

enum class TipoAngulo { Longitud, Latitud };

// The typed text with every character that has no place in an angle
// removed; "W" becomes "O", letters go to upper case.
QString CorrigeTeclas(const QString& texto, TipoAngulo tipo);

// Radians of a typed angle (longitude west positive in 0..2pi, latitude
// -pi/2..pi/2), clamped to its range; nothing when the text holds no number.
// Accepts "3 42 15 O", "3°42'15\" E", "-3.7", "40,5 N", "95" (read as 90 N).
std::optional<double> LeeCampoAngulo(const std::string& cp1252, TipoAngulo tipo);

// A spin field wide enough for a sexagesimal text.
class SpinAngulo : public controles::Spin {
public:
    SpinAngulo(controles::Contexto& ctx, int indice, int caracteres, QWidget* padre = nullptr);
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* ev) override;

private:
    int anchoCampo() const;
    int caracteres_;
};

}  // namespace vedrano
