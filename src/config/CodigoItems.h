// The text form of the items of a configuration file: items separated by
// commas, Strings between double quotes, Booleans as #TRUE# or #FALSE#,
// numbers in the plain decimal form of the classic run-time (a point as
// decimal separator, a leading zero before the point, an exponent only when
// the digits would not fit: "0.5", "-0.25", "2482294", "1E-05", "1.5E+20").
// The reader also takes numbers without the leading zero (".5", "-.5").
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vedrano {

// Decimal text of a number with at most `cifras` significant digits (15 for
// a Double, 7 for a Single), trailing zeros dropped.
std::string TextoNumero(double valor, int cifras);

// The written form of each item type.
std::string TextoEntero(int16_t valor);
std::string TextoSingle(float valor);
std::string TextoDouble(double valor);
std::string TextoBooleano(bool valor);
// A String between quotes; a quote inside is doubled and a line break
// becomes a blank, so that the item cannot end its line or its quotes.
std::string TextoCadena(std::string_view valor);

// One item as found in a line: its text without the surrounding blanks
// (and without the quotes when it was quoted).
struct ItemLeido {
    std::string texto;
    bool entrecomillado = false;
};

// Splits one line (without its line end) into items. Raises
// ErrorEjecucion 13 for a quote left open or text after a closing quote.
std::vector<ItemLeido> PartirLinea(std::string_view linea);

// Conversions of an item into each type. A text that is not a number
// raises 13 (type mismatch); a number beyond the type raises 6 (overflow).
// Integers round half to even, as the run-time stores them.
int16_t LeeEntero(const ItemLeido& item);
float LeeSingle(const ItemLeido& item);
double LeeDouble(const ItemLeido& item);
// #TRUE#, #FALSE# (any case), or a number: non-zero is true.
bool LeeBooleano(const ItemLeido& item);
std::string LeeCadena(const ItemLeido& item);

}  // namespace vedrano
