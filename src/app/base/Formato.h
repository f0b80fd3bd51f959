// The few Format pictures the program uses, with the classic run-time's
// meaning: "@" a right-aligned character place padded with a blank, "0" a
// digit place padded with zero, "#" a digit place that shows nothing when
// there is no digit, "." the decimal point, ";" separates the picture for
// negative values; any other character is copied as it stands.
// Examples: "@@@", "@@", "@@@@@", "00", " 00", "#####", "##0.0", "#0.0",
// "##0", "#######0.000000", " 0.0;-0.0".
#pragma once
#include <string>
#include <string_view>

namespace vedrano {

// Formats a number. Pictures made only of "@" right-align the number's
// plain text (CStr); the others round half away from zero to the picture's
// decimals.
std::string Formato(double valor, std::string_view picture);

// Formats a text with an "@" picture (right-aligned, never truncated).
std::string FormatoTexto(std::string_view texto, std::string_view picture);

// The run-time's plain text of a number: up to 15 significant digits, no
// leading blank ("5", "-4713", "0.5", "1E+20").
std::string CStr(double valor);

// Str$: as CStr with a leading blank for zero and positive values.
std::string Str(double valor);

}  // namespace vedrano
