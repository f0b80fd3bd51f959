// The batch calculator on any lines: the line parser and every operation,
// with the shipped catalogues for those that read orbital elements.
// Promise: exactly one result line for each operation line.
#include <sstream>
#include <string>

#include "cli/ComandoCalcula.h"
#include "fuzz/Objetivo.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) { return 0; }

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const std::string texto(reinterpret_cast<const char*>(datos), largo);
    std::istringstream entrada(texto);
    std::ostringstream salida;
    vedrano::Calcula(entrada, salida, VEDRANO_DATOS);
    // Lines are cut at line feeds; blank ones and comments give nothing.
    std::size_t operaciones = 0;
    std::istringstream lineas(texto);
    for (std::string l; std::getline(lineas, l);) {
        std::size_t p = l.find_first_not_of(" \t\r");
        if (p != std::string::npos && l[p] != '#') ++operaciones;
    }
    std::size_t resultados = 0;
    for (char c : salida.str()) resultados += c == '\n';
    if (resultados != operaciones) vedrano::fuzz::Incumple("una línea de resultado por operación");
    return 0;
}
