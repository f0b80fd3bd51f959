// vedrano-cli: the planetarium's core from the command line.
#include <cstring>
#include <iostream>

#include "app/ErrorEjecucion.h"
#include "cli/ComandoCalcula.h"
#include "cli/ComandoDibuja.h"
#include "cli/ComandoConfiguracion.h"
#include "cli/ComandoLista.h"

namespace {

void Uso() {
    std::cerr << "Uso: vedrano-cli ORDEN [opciones]\n"
                 "Órdenes:\n"
                 "  calcula [--datos DIR]   calculadora por lotes: lee operaciones de la entrada\n"
                 "                          estándar y escribe un resultado por línea\n"
                 "  configuracion --lee A.ls1 [--escribe B.ls1]   lista una configuración y la reescribe\n"
                 "  lista CATEGORIA [--datos DIR]   escribe las líneas de una lista de objetos o de lugares\n"
                 "  dibuja [--config A.ls1] [--datos DIR] [--ancho W] [--alto H] --salida cielo.png\n"
                 "                          dibuja el cielo de una configuración en una imagen\n";
}

int Orden(int argc, char** argv) {
    if (std::strcmp(argv[1], "calcula") == 0) return vedrano::ComandoCalcula(argc, argv);
    if (std::strcmp(argv[1], "configuracion") == 0) return vedrano::ComandoConfiguracion(argc, argv);
    if (std::strcmp(argv[1], "lista") == 0) return vedrano::ComandoLista(argc, argv);
    if (std::strcmp(argv[1], "dibuja") == 0) return vedrano::ComandoDibuja(argc, argv);
    std::cerr << "vedrano-cli: orden desconocida: " << argv[1] << "\n";
    Uso();
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0) {
        Uso();
        return argc < 2 ? 2 : 0;
    }
    // The last trap: a run-time error no order caught ends the run with its
    // number, never with an abort.
    try {
        return Orden(argc, argv);
    } catch (const vedrano::ErrorEjecucion& error) {
        std::cerr << "vedrano-cli " << argv[1] << ": ERROR " << error.numero() << "\n";
    } catch (const std::exception& error) {
        std::cerr << "vedrano-cli " << argv[1] << ": error: " << error.what() << "\n";
    }
    return 1;
}
