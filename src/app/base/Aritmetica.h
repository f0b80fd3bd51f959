// Numeric rules of the classic run-time that the astronomy is written in:
// floor as Int, round-half-even into 16- and 32-bit integers with overflow,
// integer division that truncates, and floating division and square root
// that raise run-time errors instead of producing infinities or NaNs.
#pragma once
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "app/base/ErrorEjecucion.h"

namespace vedrano {

// Int(x): the largest integer not above x.
inline double Int(double x) { return std::floor(x); }

// Rounds half to even and checks the range of a 16-bit integer (CInt).
inline int16_t CInt(double x) {
    if (!(x >= -32768.5 && x <= 32767.5)) throw ErrorEjecucion(ErrDesbordamiento);
    double r = std::nearbyint(x);  // default rounding mode: half to even
    if (r < -32768.0 || r > 32767.0) throw ErrorEjecucion(ErrDesbordamiento);
    return static_cast<int16_t>(r);
}

// Rounds half to even and checks the range of a 32-bit integer (CLng).
inline int32_t CLng(double x) {
    if (!(x >= -2147483648.5 && x <= 2147483647.5)) throw ErrorEjecucion(ErrDesbordamiento);
    double r = std::nearbyint(x);
    if (r < -2147483648.0 || r > 2147483647.0) throw ErrorEjecucion(ErrDesbordamiento);
    return static_cast<int32_t>(r);
}

// Checked narrowing of an exact integer result into 16 or 32 bits.
inline int16_t A16(int64_t v) {
    if (v < INT16_MIN || v > INT16_MAX) throw ErrorEjecucion(ErrDesbordamiento);
    return static_cast<int16_t>(v);
}
inline int32_t A32(int64_t v) {
    if (v < INT32_MIN || v > INT32_MAX) throw ErrorEjecucion(ErrDesbordamiento);
    return static_cast<int32_t>(v);
}

// Integer division "\": truncates toward zero; a zero divisor is error 11.
inline int64_t DivEntera(int64_t a, int64_t b) {
    if (b == 0) throw ErrorEjecucion(ErrDivisionCero);
    return a / b;
}

// Floating division: x/0 is error 11, 0/0 is an overflow (error 6).
inline double Divide(double a, double b) {
    if (b == 0.0) throw ErrorEjecucion(a == 0.0 ? ErrDesbordamiento : ErrDivisionCero);
    double r = a / b;
    if (std::isinf(r)) throw ErrorEjecucion(ErrDesbordamiento);
    return r;
}

// Sqr(x): a negative argument is an invalid procedure call (error 5).
inline double Sqr(double x) {
    if (x < 0.0) throw ErrorEjecucion(ErrArgumentoInvalido);
    return std::sqrt(x);
}

// Stores a value in a 32-bit float; a finite value too large is an overflow.
inline float ASingle(double x) {
    float f = static_cast<float>(x);
    if (std::isinf(f) && !std::isinf(x)) throw ErrorEjecucion(ErrDesbordamiento);
    return f;
}

// The longest beginning of `texto` that reads as a number: a sign, digits
// with at most one point, and an exponent (E or D) only when digits follow
// it; blanks inside are skipped when asked. `Texto()` of the result is
// ready for std::from_chars ("-12.5e3"), `consumido` counts the characters
// read. The text is gathered on the stack: dates are read thousands of
// times a second; one longer than its room is marked `largo`.
struct NumeroEscrito {
    char texto[400];
    std::size_t n = 0;
    std::size_t consumido = 0;
    bool digitos = false;
    bool largo = false;
    void Pon(char c) {
        if (n < sizeof texto) texto[n++] = c;
        else largo = true;
    }
    std::string_view Texto() const { return {texto, n}; }
};
NumeroEscrito EscaneaNumero(std::string_view texto, bool saltaBlancos);

// Val(text): leading blanks skipped, reading stops at the first character
// that cannot continue a number; an empty or non-numeric text is 0.
double Val(std::string_view texto);

}  // namespace vedrano
