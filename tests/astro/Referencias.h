// What the comparisons with ERFA share: dates spread over a span, the
// median and worst of a set of errors, and TT from Universal Time by the
// long-term parabola of Morrison and Stephenson (2004), apart from the
// program's own Delta T.
#pragma once
#include <algorithm>
#include <cmath>
#include <vector>

namespace pruebas {

constexpr double DC_1900 = 2415020.5;  // 1 January 1900
constexpr double DC_2100 = 2488069.5;  // 1 January 2100

// Dates spread evenly over [lo, hi], each at a different time of day.
inline std::vector<double> Fechas(double lo, double hi, int n) {
    std::vector<double> f;
    for (int k = 0; k < n; ++k) f.push_back(lo + (hi - lo - 1) * (k + 0.5) / n + std::fmod(k * 0.618034, 1.0));
    return f;
}

struct Errores {
    double mediana, maximo;
};

inline Errores Resumen(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return {v[v.size() / 2], v.back()};
}

// The Julian day in TT of a Julian day in UT.
inline double TTDe(double jd) {
    const double u = (2000.0 + (jd - 2451545.0) / 36525.0 * 100.0 - 1820.0) / 100.0;
    return jd + (-20.0 + 32.0 * u * u) / 86400.0;
}

}  // namespace pruebas
