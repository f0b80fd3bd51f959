// Texts of angles and times as the user sees and types them, and the
// reading back of what they wrote. Texts are Windows-1252 ("\xB0" is the
// degree sign). Where a state is given, the scratch results the other
// forms read (GradosAux, NombreRumbo, GradosEnteros, GradosLongitud) are
// left in it.
#pragma once
#include <string>
#include <string_view>

#include "app/estado/Estado.h"

namespace vedrano {

// Sign, degrees "@@@", "\xB0", minutes " 00", "'", seconds " 00", '"'.
// Minutes and seconds are truncated.
std::string TextoSexagesimal(double angulo, Estado* e = nullptr);

// The last 11 characters of the sexagesimal text of |lat| and " N" or " S".
std::string TextoLatitud(double lat, Estado* e = nullptr);

// The sexagesimal text of a west-positive longitude and " O", or of
// 2pi - lon and " E" when lon is above pi.
std::string TextoLongitud(double lon, Estado* e = nullptr);

// Hours "@@@", "h", minutes " 00", "m", seconds " 00", "s"; seconds are
// rounded and carried into minutes and hours.
std::string TextoHoras(float ar, Estado* e = nullptr);

// Whole degrees "@@@", "\xB0 " and the compass point of an azimuth in
// [0, 2pi). A negative azimuth raises ErrorEjecucion 5.
std::string TextoDireccion(double az, Estado* e = nullptr);

// Whole degrees "@@" and "\xB0".
std::string TextoGrados(double angulo, Estado* e = nullptr);

// Radians of a text laid out as TextoLongitud (ending in E or O) or as
// TextoLatitud (any other ending; S makes it negative).
double LeeAngulo(std::string_view texto);

}  // namespace vedrano
