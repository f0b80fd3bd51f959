#include "cli/CarpetaDatos.h"

#include <QFile>
#include <filesystem>
#include <iostream>

#include "app/base/Texto1252.h"
#include "platform/CarpetaPrograma.h"

namespace vedrano {

std::optional<std::string> CarpetaDatos(const QString& pedida, const char* orden) {
    std::string carpeta = pedida.isEmpty() ? plataforma::CarpetaPrograma(nullptr) + "Datos/"
                                           : QFile::encodeName(pedida).toStdString();
    std::error_code ec;
    if (!std::filesystem::is_directory(carpeta, ec)) {
        std::cerr << "vedrano-cli " << orden << ": no existe la carpeta de datos: " << carpeta << "\n";
        return std::nullopt;
    }
    if (carpeta.back() != '/') carpeta += '/';
    return carpeta;
}

int16_t AvisosEnErrorEstandar::Mensaje(const std::string& texto, const std::string& titulo, int16_t, int16_t) {
    std::cerr << DesdeA1252(titulo) << ": " << DesdeA1252(texto) << "\n";
    hubo = true;
    return 1;
}

std::string CarpetaDe(const std::filesystem::path& ruta) {
    std::string c = ruta.parent_path().string();
    return c.empty() ? "./" : c + "/";
}

}  // namespace vedrano
