#include "config/EscribeConfiguracion.h"

#include <filesystem>
#include <type_traits>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "config/CodigoItems.h"
#include "config/ErroresArchivo.h"
#include "config/EscrituraSegura.h"
#include "config/ItemsConfiguracion.h"
#include "config/LeeConfiguracion.h"
#include "config/NombreConfiguracion.h"

namespace vedrano {

std::string TextoItem(const Estado& estado, const ItemConfiguracion& item) {
    // The table's accessors hand out references for the reader; here they
    // are only read.
    Estado& e = const_cast<Estado&>(estado);
    return std::visit(
        [&](auto campo) -> std::string {
            using T = std::remove_reference_t<decltype(campo(e))>;
            if constexpr (std::is_same_v<T, int16_t>)
                return TextoEntero(campo(e));
            else if constexpr (std::is_same_v<T, float>)
                return TextoSingle(campo(e));
            else if constexpr (std::is_same_v<T, double>)
                return TextoDouble(campo(e));
            else if constexpr (std::is_same_v<T, bool>)
                return TextoBooleano(campo(e));
            else
                return TextoCadena(campo(e));
        },
        item.campo);
}

std::string TextoConfiguracion(const Estado& e) {
    std::string texto;
    for (int linea = 1; linea <= 4; ++linea) {
        bool primero = true;
        for (const ItemConfiguracion& item : ItemsLinea(linea)) {
            if (!primero) texto += ',';
            texto += TextoItem(e, item);
            primero = false;
        }
        texto += Estado::SaltoLinea;
    }
    return texto;
}

ResultadoConfiguracion EscribeConfiguracion(Estado& e, std::string_view nombre, InterfazMensajes& ui,
                                            bool esTrabajo) {
    const std::string titulo = A1252("Guardar configuración");
    ResultadoConfiguracion r;
    auto final = NombreParaGuardar(nombre);
    if (!final) {
        r.error = ErrNombreArchivo;
        r.texto = "El archivo debe tener el formato:  nombre.ls1";
        ui.Mensaje(r.texto, titulo, 1, 1);
        return r;
    }
    r.archivo = *final;
    const std::string ruta = RutaConfiguracion(e, *final);
    std::error_code ec;
    if (!esTrabajo && std::filesystem::exists(ruta, ec)) {
        const std::string pregunta = A1252(
            "Ya existe un archivo con ese  nombre.  ¿Desea  actualizarlo con los nuevos datos?.  Confirme  la  "
            "modificación pulsando el  Botón  Aceptar.   Para salir sin modificarlo pulse el  Botón  Cancelar.");
        if (ui.Mensaje(pregunta, titulo, 2, 2) == 0) return r;
    }
    r.error = EscribeArchivoEntero(ruta, TextoConfiguracion(e));
    if (r.error != 0) {
        r.texto = TextoConArchivo(TextoErrorArchivo("CFG", r.error), ruta);
        ui.Mensaje(r.texto, titulo, 1, 1);
        return r;
    }
    r.escrito = true;
    return r;
}

}  // namespace vedrano
