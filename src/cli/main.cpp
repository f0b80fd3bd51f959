// vedrano-cli: the planetarium's core from the command line.
#include <iostream>

#include "app/base/ErrorEjecucion.h"
#include "cli/Argumentos.h"
#include "cli/ComandoCalcula.h"
#include "cli/ComandoConfiguracion.h"
#include "cli/ComandoDibuja.h"
#include "cli/ComandoLista.h"

int main(int argc, char** argv) {
    using namespace vedrano;
    AnalisisCli a = AnalizaArgumentos(ArgumentosDe(argc, argv));
    if (a.terminar) {
        std::cout << a.salida << std::flush;
        std::cerr << a.error;
        if (!std::cout) {
            std::cerr << "vedrano-cli: no se puede escribir en la salida estándar\n";
            return 1;
        }
        return a.codigo;
    }
    // The last trap: a run-time error that no order caught ends the run with
    // its number and a failure code, never with an abort.
    try {
        switch (a.opciones.orden) {
            case Orden::Calcula: return ComandoCalcula(a.opciones);
            case Orden::Configuracion: return ComandoConfiguracion(a.opciones);
            case Orden::Lista: return ComandoLista(a.opciones);
            case Orden::Dibuja: return ComandoDibuja(argc, argv, a.opciones);
        }
    } catch (const ErrorEjecucion& error) {
        std::cerr << "vedrano-cli: ERROR " << error.numero() << "\n";
        return 1;
    } catch (const std::exception& error) {
        std::cerr << "vedrano-cli: error: " << error.what() << "\n";
        return 1;
    }
    return 2;
}
