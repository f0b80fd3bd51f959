#include "cli/ComandoDibuja.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>
#include <QSvgGenerator>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/base/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/EstrellasProfundas.h"
#include "cli/CarpetaDatos.h"
#include "config/ErroresArchivo.h"
#include "config/EscrituraSegura.h"
#include "config/LeeConfiguracion.h"
#include "sky/DibujaCielo.h"
#include "sky/PaginaImpresa.h"

namespace vedrano {

namespace {

// The picture encoded in the format its name asks for; PNG at a light
// compression level, which costs little size and a fraction of the time.
bool Codifica(const QImage& imagen, const QString& nombre, QByteArray& bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QByteArray formato = QFileInfo(nombre).suffix().toLower().toLatin1();
    if (formato.isEmpty()) formato = "png";
    QImageWriter escritor(&buffer, formato);
    if (formato == "png") escritor.setQuality(80);  // zlib level 1
    return escritor.write(imagen);
}

// The sky as an SVG drawing: every line, disc and label a vector element.
QByteArray Svg(const Estado& estado, const Catalogos& c, int ancho, int alto, const OpcionesDibujo& o) {
    Estado e = estado;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setSize(QSize(ancho, alto));
    svg.setViewBox(QRect(0, 0, ancho, alto));
    svg.setResolution(96);  // one pixel a CSS pixel
    svg.setTitle(QStringLiteral("Cielo"));
    svg.setDescription(QStringLiteral("VEDRANO"));
    QPainter p(&svg);
    {
        Lienzo lienzo(p, ancho, alto, false);
        ActualizaCielo(e, c, lienzo, o);
    }
    p.end();
    return bytes;
}

}  // namespace

int ComandoDibuja(int argc, char** argv, const OpcionesCli& o) {
    std::optional<std::string> datos = CarpetaDatos(o.datos, "dibuja");
    if (!datos) return 1;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    // Messages of the loader and the configuration reader go to standard
    // error; a question is answered yes, as a batch run has nobody to ask.
    AvisosEnErrorEstandar consola;
    Catalogos catalogos;
    CargaCatalogos(*datos, catalogos, consola);
    // A sky drawn from catalogues that did not load would be a blank picture.
    if (consola.hubo) return 1;

    Estado e;
    e.Pref.PrecisionAlta = o.precisionAlta;
    namespace fs = std::filesystem;
    fs::path archivo = o.config.isEmpty() ? fs::path(*datos).parent_path().parent_path() / "Archivo" / "Inicial.ls1"
                                          : fs::path(QFile::encodeName(o.config).toStdString());
    e.DirArchivo = CarpetaDe(archivo);
    e.DirDatos = *datos;
    ResultadoConfiguracion r = LeeConfiguracion(e, archivo.filename().string(), consola);
    // Without a configuration named, the defaults are a picture as well.
    if (r.error != 0 && !o.config.isEmpty()) {
        std::cerr << "vedrano-cli dibuja: no se puede leer la configuración " << archivo.string() << "\n";
        return 1;
    }

    const std::string salida = QFile::encodeName(o.salida).toStdString();
    // A name ending in ".pdf" gets the printed page, title block included.
    if (o.salida.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
        int error = 0;
        if (!EscribePdf(o.salida, e, catalogos, &error)) {
            std::cerr << "vedrano-cli dibuja: no se puede escribir el PDF en " << salida;
            if (error != 0) std::cerr << ": " << DesdeA1252(TextoErrorArchivo("DIB", error));
            std::cerr << "\n";
            return 1;
        }
        return 0;
    }

    OpcionesDibujo opciones;
    opciones.TodosLosRotulos = o.todosLosRotulos;
    EstrellasProfundas profundas;
    if (o.estrellasDebiles) {
        std::string mensaje;
        if (!profundas.Abre(*datos + "VDRDATP.DAT", mensaje)) {
            std::cerr << "vedrano-cli dibuja: " << mensaje << "\n";
            return 1;
        }
        opciones.EstrellasDebiles = true;
        opciones.Profundas = &profundas;
    }
    QByteArray bytes;
    if (o.salida.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) {
        bytes = Svg(e, catalogos, o.ancho, o.alto, opciones);
    } else {
        Lienzo lienzo(o.ancho, o.alto);
        ActualizaCielo(e, catalogos, lienzo, opciones);
        if (!Codifica(lienzo.Imagen(), o.salida, bytes)) {
            std::cerr << "vedrano-cli dibuja: formato de imagen desconocido: " << salida << "\n";
            return 1;
        }
    }
    if (int error = EscribeArchivoEntero(salida, std::string_view(bytes.constData(), bytes.size())); error != 0) {
        std::cerr << "vedrano-cli dibuja: no se puede escribir la imagen en " << salida << ": "
                  << DesdeA1252(TextoErrorArchivo("DIB", error)) << "\n";
        return 1;
    }
    return 0;
}

}  // namespace vedrano
