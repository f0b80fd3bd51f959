#include "config/LeeConfiguracion.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <type_traits>
#include <vector>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "config/CodigoItems.h"
#include "config/ErroresArchivo.h"
#include "config/ItemsConfiguracion.h"

namespace vedrano {

namespace {

// A configuration holds well under a kilobyte; reading no more than this
// keeps a huge or endless file from stalling the program.
constexpr std::size_t LARGO_MAXIMO = 64 * 1024;

// The lines of a text, ended by CR LF, LF or a lone CR; an empty tail after
// the last line end is not a line. `abierta` tells whether the last line
// runs to the end of the text without a line end.
std::vector<std::string_view> PartirLineas(std::string_view texto, bool& abierta) {
    std::vector<std::string_view> lineas;
    abierta = false;
    std::size_t inicio = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] != '\r' && texto[i] != '\n') continue;
        lineas.push_back(texto.substr(inicio, i - inicio));
        if (texto[i] == '\r' && i + 1 < texto.size() && texto[i + 1] == '\n') ++i;
        inicio = i + 1;
    }
    if (inicio < texto.size()) {
        lineas.push_back(texto.substr(inicio));
        abierta = true;
    }
    return lineas;
}

// Converts one item to its field's type, checks its range and stores it.
void GuardaItem(Estado& e, const ItemConfiguracion& item, const ItemLeido& leido) {
    auto enRango = [&](double v) {
        if (v < item.minimo || v > item.maximo) throw ErrorEjecucion(ErrValorNoValido);
    };
    std::visit(
        [&](auto campo) {
            using T = std::remove_reference_t<decltype(campo(e))>;
            if constexpr (std::is_same_v<T, int16_t>) {
                int16_t v = LeeEntero(leido);
                enRango(v);
                campo(e) = v;
            } else if constexpr (std::is_same_v<T, float>) {
                float v = LeeSingle(leido);
                enRango(v);
                campo(e) = v;
            } else if constexpr (std::is_same_v<T, double>) {
                double v = LeeDouble(leido);
                enRango(v);
                campo(e) = v;
            } else if constexpr (std::is_same_v<T, bool>) {
                campo(e) = LeeBooleano(leido);
            } else {
                campo(e) = LeeCadena(leido);
            }
        },
        item.campo);
}

ResultadoConfiguracion Falta(int numero, int linea, int dato) {
    ResultadoConfiguracion r;
    r.error = numero;
    r.linea = linea;
    r.dato = dato;
    r.texto = TextoErrorArchivo("CFG", numero);
    if (linea > 0) {
        std::string donde = "Línea " + std::to_string(linea);
        auto items = ItemsLinea(linea);
        if (dato >= 1 && dato <= static_cast<int>(items.size()))
            donde += ", dato " + std::to_string(dato) + " (" + items[static_cast<std::size_t>(dato - 1)].nombre + ")";
        else if (dato > static_cast<int>(items.size()))
            donde += ": sobran datos";
        r.texto += Estado::SaltoLinea + A1252(donde + ".");
    }
    return r;
}

}  // namespace

std::string RutaConfiguracion(const Estado& e, std::string_view nombre) {
    return e.DirArchivo + std::string(nombre);
}

void AplicaOmisiones(Estado& e) {
    // The defaults are written once, in the state record's declaration.
    Estado defecto;
    for (int linea = 1; linea <= 4; ++linea) {
        for (const ItemConfiguracion& item : ItemsLinea(linea)) {
            if (!item.tieneOmision) continue;
            std::visit([&](auto campo) { campo(e) = campo(defecto); }, item.campo);
        }
    }
}

ResultadoConfiguracion LeeTextoConfiguracion(Estado& e, std::string_view contenido) {
    bool abierta;
    std::vector<std::string_view> lineas = PartirLineas(contenido, abierta);
    for (int linea = 1; linea <= 4; ++linea) {
        auto items = ItemsLinea(linea);
        int esperados = static_cast<int>(items.size());
        if (linea > static_cast<int>(lineas.size())) return Falta(ErrFinDeArchivo, linea, 1);
        std::vector<ItemLeido> leidos;
        try {
            leidos = PartirLinea(lineas[static_cast<std::size_t>(linea - 1)]);
        } catch (const ErrorEjecucion& error) {
            return Falta(error.numero(), linea, 0);
        }
        // A line with too few or too many items is out of step with the
        // table: none of its items can be trusted.
        int hallados = static_cast<int>(leidos.size());
        if (hallados < esperados) return Falta(ErrFinDeArchivo, linea, hallados + 1);
        // A line cut short by the end of the file may end in a cut item
        // ("Madr" for "Madrid"); only the last line may lack its line end.
        if (abierta && linea < 4 && linea == static_cast<int>(lineas.size()))
            return Falta(ErrFinDeArchivo, linea, hallados);
        if (hallados > esperados) return Falta(ErrTipoNoCoincide, linea, esperados + 1);
        for (int k = 0; k < esperados; ++k) {
            try {
                GuardaItem(e, items[static_cast<std::size_t>(k)], leidos[static_cast<std::size_t>(k)]);
            } catch (const ErrorEjecucion& error) {
                return Falta(error.numero(), linea, k + 1);
            }
        }
    }
    return {};
}

ResultadoConfiguracion LeeConfiguracion(Estado& e, std::string_view nombre, InterfazMensajes& ui) {
    namespace fs = std::filesystem;
    const std::string ruta = RutaConfiguracion(e, nombre);
    ResultadoConfiguracion r;
    bool abierto = false;
    std::error_code ec;
    if (!fs::exists(ruta, ec)) {
        r.error = ErrArchivoNoExiste;
    } else if (fs::is_directory(ruta, ec)) {
        r.error = ErrAccesoRuta;
    } else if (FILE* f = std::fopen(ruta.c_str(), "rb")) {
        abierto = true;
        std::string contenido;
        contenido.resize(LARGO_MAXIMO);
        contenido.resize(std::fread(contenido.data(), 1, LARGO_MAXIMO, f));
        bool fallo = std::ferror(f) != 0;
        std::fclose(f);
        r = fallo ? Falta(ErrIoDispositivo, 0, 0) : LeeTextoConfiguracion(e, contenido);
    } else {
        r.error = ErrorDeSistema(errno);
    }
    if (!abierto) {
        AplicaOmisiones(e);
        r.texto = r.error == ErrArchivoNoExiste
                      ? A1252("No existe un archivo de configuración con ese nombre.")
                      : TextoErrorArchivo("CFG", r.error);
    }
    r.archivo = std::string(nombre);
    if (r.error != 0) r.texto = TextoConArchivo(r.texto, ruta);
    if (r.error != 0 && r.error != ErrDesbordamiento)
        ui.Mensaje(r.texto, A1252("Cargar configuración"), 1, 1);
    return r;
}

}  // namespace vedrano
