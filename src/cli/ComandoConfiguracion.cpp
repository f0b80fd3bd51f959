#include "cli/ComandoConfiguracion.h"

#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/ErrorEjecucion.h"
#include "app/Texto1252.h"
#include "cli/CarpetaDatos.h"
#include "cli/MuestrasConfiguracion.h"
#include "config/EscribeConfiguracion.h"
#include "config/ItemsConfiguracion.h"
#include "config/LeeConfiguracion.h"

namespace vedrano {

namespace {

constexpr const char* USO =
    "Uso: vedrano-cli configuracion --lee A.ls1 [--escribe B.ls1]\n"
    "     vedrano-cli configuracion --muestras CARPETA [--datos DIR]\n";

// Messages go to standard error; the command line has already been told what
// to do, so it accepts every question.
class InterfazConsola : public InterfazConfiguracion {
public:
    int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones, int16_t) override {
        std::string t;
        for (char c : DesdeA1252(texto))
            if (c != '\n') t += c == '\r' ? ' ' : c;  // one line per message
        std::cerr << "vedrano-cli configuracion: " << DesdeA1252(titulo) << ": " << t
                  << (botones == 2 ? " [Aceptar]" : "") << "\n";
        return -1;
    }
};

void Lista(Estado& e) {
    for (int linea = 1; linea <= 4; ++linea) {
        int numero = 1;
        for (const ItemConfiguracion& item : ItemsLinea(linea))
            std::cout << linea << "." << numero++ << " " << item.nombre << " = " << DesdeA1252(TextoItem(e, item))
                      << "\n";
    }
}

}  // namespace

int ComandoConfiguracion(int argc, char** argv) {
    std::string lee, escribe, muestras, datos;
    for (int i = 2; i < argc; ++i) {
        std::string opcion = argv[i];
        std::string* destino = opcion == "--lee"        ? &lee
                               : opcion == "--escribe"  ? &escribe
                               : opcion == "--muestras" ? &muestras
                               : opcion == "--datos"    ? &datos
                                                        : nullptr;
        if (!destino || i + 1 >= argc) {
            std::cerr << "vedrano-cli configuracion: opción no válida: " << opcion << "\n" << USO;
            return 2;
        }
        *destino = argv[++i];
    }
    InterfazConsola ui;
    if (!muestras.empty()) {
        if (datos.empty()) datos = CarpetaDatosPorDefecto(argv[0]);
        if (datos.back() != '/') datos += '/';
        int error = GeneraMuestras(muestras, datos, std::cout);
        if (error != 0) std::cerr << "vedrano-cli configuracion: error " << error << " al escribir las muestras\n";
        return error == 0 ? 0 : 1;
    }
    if (lee.empty()) {
        std::cerr << USO;
        return 2;
    }
    Estado e;
    std::filesystem::path entrada(lee);
    e.DirArchivo = CarpetaDe(entrada);
    ResultadoConfiguracion r = LeeConfiguracion(e, A1252(entrada.filename().string()), ui);
    // An overflow is not shown by the reader; the command line still says so.
    if (r.error == ErrDesbordamiento) ui.Mensaje(r.texto, A1252("Cargar configuración"), 1, 1);
    Lista(e);
    if (r.error != 0) return 1;
    if (!escribe.empty()) {
        std::filesystem::path salida(escribe);
        e.DirArchivo = CarpetaDe(salida);
        ResultadoConfiguracion w = EscribeConfiguracion(e, A1252(salida.filename().string()), ui, false);
        if (!w.escrito) return 1;
    }
    return 0;
}

}  // namespace vedrano
