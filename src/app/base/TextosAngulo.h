// Texts of angles and times as the user sees and types them, and the
// reading back of what they wrote. Texts are Windows-1252 (the degree sign
// "°" is the byte 0xB0). Every routine returns its result; none keeps any.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace vedrano {

// Sign, degrees "@@@", "°", minutes " 00", "'", seconds " 00", '"' of an
// angle in radians (5e-7 rad added to |angulo|, 360 degrees taken off once).
// Minutes and seconds are truncated.
std::string TextoSexagesimal(double angulo);

// The last 11 characters of the sexagesimal text of |lat| and " N" or " S".
std::string TextoLatitud(double lat);

// The sexagesimal text of a west-positive longitude and " O", or of
// 2pi - lon and " E" when lon is above pi.
std::string TextoLongitud(double lon);

// The whole degrees that TextoLongitud writes for a longitude (rounded to 16
// bits), as the time zone of a place is guessed from them.
int16_t GradosLongitud(double lon);

// Hours "@@@", "h", minutes " 00", "m", seconds " 00", "s"; seconds are
// rounded and carried into minutes and hours.
std::string TextoHoras(float ar);

// Whole degrees "@@@", "° " and the compass point of an azimuth in
// [0, 2pi). A negative azimuth raises ErrorEjecucion 5.
std::string TextoDireccion(double az);

// Whole degrees "@@" and "°".
std::string TextoGrados(double angulo);

// Radians of a text laid out as TextoLongitud (ending in E or O) or as
// TextoLatitud (any other ending; S makes it negative).
double LeeAngulo(std::string_view texto);

}  // namespace vedrano
