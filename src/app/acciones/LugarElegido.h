// The observer's place as the location form sets it: a place of the list
// with the time zone it proposes, or a point of the map.
#pragma once
#include <string>
#include <vector>

#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"

namespace vedrano {

// Copies place `i` (0..177; any other index does nothing and gives false)
// into the state and, unless a configuration is being restored, proposes
// its time zone; refreshes the date fields, since local time depends on
// the zone.
bool EligeLugar(Estado& e, const Catalogos& c, int i, bool restaurando);

// The zone for a longitude (radians, west positive): whole hours from the
// whole degrees of longitude, west negative; +1 for a Spanish place ("ESP"
// in the name), 0 for one of the Canary Islands.
float ZonaPropuesta(double longitud, const std::string& nombreCp1252);

// A point of the map that is no listed place: its coordinates, the zone
// its longitude proposes, and the nearest place kept as the place index.
void FijaPuntoPropio(Estado& e, const Catalogos& c, double longitudOeste, double latitud);

// The places of the places file (VDRDATH.DAT in dirDatos), read as the
// catalogue loader reads them; a missing or cut file raises its run-time
// error (53, 62).
std::vector<Ciudad> LeeLugares(const std::string& dirDatos);

// The index of the listed place nearest to a point (by the angle between
// them; the first of equals), 0 for an empty list.
int LugarCercano(const std::vector<Ciudad>& lugares, double longitudOeste, double latitud);

// "Madrid         (ESP)" -> "Madrid (ESP)".
std::string TextoLugarCiudad(const std::string& nombreCp1252);

// Degrees west positive (-180..180) and the state's radians (0..2pi, west
// positive, an eastern place stored as 2pi - its east longitude).
double GradosOeste(double longitud);
double LongitudDesdeGrados(double gradosOeste);

}  // namespace vedrano
