#include "cli/ComandoDibuja.h"

#include <QGuiApplication>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "cli/CarpetaDatos.h"
#include "config/LeeConfiguracion.h"
#include "sky/DibujaCielo.h"
#include "sky/PaginaImpresa.h"

namespace vedrano {

namespace {

// Messages of the loader and the configuration reader go to standard error;
// a question is answered yes, as a batch run has nobody to ask.
class Consola : public Notificador, public InterfazConfiguracion {
public:
    void Avisa(const std::string& texto, const std::string& titulo) override {
        std::cerr << DesdeA1252(titulo) << ": " << DesdeA1252(texto) << "\n";
    }
    int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t, int16_t) override {
        Avisa(texto, titulo);
        return 1;
    }
};

int Uso() {
    std::cerr << "Uso: vedrano-cli dibuja [--config ARCHIVO.ls1] [--datos DIR] [--ancho W] [--alto H]"
                 " --salida cielo.png\n";
    return 2;
}

}  // namespace

int ComandoDibuja(int argc, char** argv) {
    std::string config, datos, salida;
    int ancho = 1024, alto = 768;
    for (int i = 2; i < argc; ++i) {
        auto valor = [&](std::string& destino) {
            if (i + 1 >= argc) return false;
            destino = argv[++i];
            return true;
        };
        std::string numero;
        if (std::strcmp(argv[i], "--config") == 0 && valor(config)) continue;
        if (std::strcmp(argv[i], "--datos") == 0 && valor(datos)) continue;
        if (std::strcmp(argv[i], "--salida") == 0 && valor(salida)) continue;
        if ((std::strcmp(argv[i], "--ancho") == 0 || std::strcmp(argv[i], "--alto") == 0) && valor(numero)) {
            int v = std::atoi(numero.c_str());
            if (v < 16 || v > 16384) {
                std::cerr << "vedrano-cli dibuja: tamaño no válido: " << numero << " (de 16 a 16384 píxeles)\n";
                return 2;
            }
            (argv[i - 1][3] == 'n' ? ancho : alto) = v;
            continue;
        }
        std::cerr << "vedrano-cli dibuja: opción no válida: " << argv[i] << "\n";
        return Uso();
    }
    if (salida.empty()) return Uso();
    if (datos.empty()) datos = CarpetaDatosPorDefecto(argv[0]);
    if (datos.back() != '/') datos += '/';

    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    Consola consola;
    Catalogos catalogos;
    CargaCatalogos(datos, catalogos, consola);

    Estado e;
    namespace fs = std::filesystem;
    fs::path archivo = config.empty() ? fs::path(datos).parent_path().parent_path() / "Archivo" / "Inicial.ls1"
                                      : fs::path(config);
    e.DirArchivo = CarpetaDe(archivo);
    e.DirDatos = datos;
    ResultadoConfiguracion r = LeeConfiguracion(e, A1252(archivo.filename().string()), consola);
    if (r.error == 53 && !config.empty()) return 1;

    // A name ending in ".pdf" gets the printed page, title block included.
    if (QString::fromStdString(salida).endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
        if (!EscribePdf(QString::fromStdString(salida), e, catalogos)) {
            std::cerr << "vedrano-cli dibuja: no se puede escribir el PDF en " << salida << "\n";
            return 1;
        }
        return 0;
    }

    Lienzo lienzo(ancho, alto);
    ActualizaCielo(e, catalogos, lienzo);
    if (!lienzo.Imagen().save(QString::fromStdString(salida))) {
        std::cerr << "vedrano-cli dibuja: no se puede escribir la imagen en " << salida << "\n";
        return 1;
    }
    return 0;
}

}  // namespace vedrano
