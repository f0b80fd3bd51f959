#include "cli/ComandoConfiguracion.h"

#include <QFile>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "cli/CarpetaDatos.h"
#include "cli/MuestrasConfiguracion.h"
#include "config/EscribeConfiguracion.h"
#include "config/ItemsConfiguracion.h"
#include "config/LeeConfiguracion.h"

namespace vedrano {

namespace {

// Messages go to standard error; the command line has already been told what
// to do, so it accepts every question.
class InterfazConsola : public InterfazMensajes {
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

// A path given on the command line, in the system's encoding of names.
std::filesystem::path Ruta(const QString& texto) { return QFile::encodeName(texto).toStdString(); }

// Whether standard output took everything (a full disk says so only here).
bool SalidaEscrita() {
    std::cout << std::flush;
    if (std::cout) return true;
    std::cerr << "vedrano-cli configuracion: no se puede escribir en la salida estándar\n";
    return false;
}

void Lista(Estado& e) {
    for (int linea = 1; linea <= 4; ++linea) {
        int numero = 1;
        for (const ItemConfiguracion& item : ItemsLinea(linea))
            std::cout << linea << "." << numero++ << " " << item.nombre << " = " << DesdeA1252(TextoItem(e, item))
                      << "\n";
    }
}

}  // namespace

int ComandoConfiguracion(const OpcionesCli& o) {
    InterfazConsola ui;
    if (!o.muestras.isEmpty()) {
        std::optional<std::string> datos = CarpetaDatos(o.datos, "configuracion");
        if (!datos) return 1;
        int error = GeneraMuestras(Ruta(o.muestras).string(), *datos, std::cout);
        if (error != 0)
            std::cerr << "vedrano-cli configuracion: error " << error << " al escribir las muestras en "
                      << o.muestras.toStdString() << "\n";
        return error == 0 && SalidaEscrita() ? 0 : 1;
    }
    Estado e;
    std::filesystem::path entrada = Ruta(o.lee);
    e.DirArchivo = CarpetaDe(entrada);
    ResultadoConfiguracion r = LeeConfiguracion(e, entrada.filename().string(), ui);
    // An overflow is not shown by the reader; the command line still says so.
    if (r.error == ErrDesbordamiento) ui.Mensaje(r.texto, A1252("Cargar configuración"), 1, 1);
    if (r.error != 0) {
        std::cerr << "vedrano-cli configuracion: no se puede leer " << entrada.string() << "\n";
        return 1;
    }
    Lista(e);
    if (!SalidaEscrita()) return 1;
    if (!o.escribe.isEmpty()) {
        std::filesystem::path salida = Ruta(o.escribe);
        e.DirArchivo = CarpetaDe(salida);
        ResultadoConfiguracion w = EscribeConfiguracion(e, salida.filename().string(), ui, false);
        if (!w.escrito) {
            std::cerr << "vedrano-cli configuracion: no se ha escrito " << salida.string() << "\n";
            return 1;
        }
    }
    return 0;
}

}  // namespace vedrano
