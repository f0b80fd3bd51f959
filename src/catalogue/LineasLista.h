// The text lines of the search form's lists and the places list, built
// from the catalogue records, Windows-1252 and fixed width. A coordinate
// that is not a number raises an overflow (error 6), which the loader
// passes over in silence: that line is left out.
#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogos.h"

namespace vedrano {

// The record number "@@@", Number, type, name, magnitude, right ascension
// and declination, two blanks apart; record 102, the doubtful object, stops
// after the type.
std::string LineaMessier(int numeroRegistro, const ObjetoMessier& m);

std::string LineaConstelacion(const Constelacion& c);

// Galaxies and nebulae: designation, size class, right ascension and
// declination, a blank before a declination of zero or above.
std::string LineaProfundo(const ObjetoProfundo& o);

// Clusters, quasars, pulsars and black holes: code and position only. The
// code takes 12 places (a cluster's 6-character designation is padded) so
// that the coordinates of all four lists fall in the same columns, three
// blanks in for the lists whose header reads "    Código", two for
// "   Código".
inline constexpr std::string_view SANGRIA_CUMULOS = "   ", SANGRIA_CUASARES = "   ",
                                  SANGRIA_PULSARES = "  ", SANGRIA_AGUJEROS = "  ";
std::string LineaCodigoPosicion(std::string_view sangria, std::string_view codigo, float ar, float dec);

// Whether a named star enters the star list: magnitude 3.0 or brighter, or
// a designation that is not blank in its first two characters and does not
// begin with "V" or "v" (the variable-star names).
bool EntraEnListaEstrellas(const EstrellaNombre& e);
inline constexpr int MAX_LINEAS_ESTRELLAS = 1483;

// Designation, name (blanks when it has none, so that the columns stay
// aligned), the " V", " M", " X" column by kind, right ascension,
// declination (a blank before zero or above) and magnitude " 0.0;-0.0".
// A kind outside 0..3 is a subscript error (9).
std::string LineaEstrella(const EstrellaNombre& e);

// The designations and names in a line of list `categoria` (0..11, the
// order of the search form's index), trimmed, the only columns a search
// looks at: never the coordinates, magnitudes or sizes. A Messier line also
// gives "M" and its number; an NGC or IC designation also gives its long
// form ("N224" gives "NGC 224"). A category outside 0..11 gives the whole
// line.
std::vector<std::string> NombresDeLinea(int categoria, std::string_view linea);

}  // namespace vedrano
