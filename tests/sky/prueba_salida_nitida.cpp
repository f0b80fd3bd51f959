// The sky drawn sharp wherever it goes: at the device pixel ratio of a
// hi-DPI screen, and as vectors in the PDF page and the SVG drawing.
#include <gtest/gtest.h>

#include <QImage>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

#include "../Ayudas.h"
#include "catalogue/CargaCatalogos.h"
#include "config/LeeConfiguracion.h"
#include "sky/DibujaCielo.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

// Sum of squared steps of grey between neighbouring pixels: an edge spread
// over two pixels counts half of the same edge in one.
double EnergiaBordes(const QImage& imagen) {
    const QImage g = imagen.convertToFormat(QImage::Format_Grayscale8);
    double suma = 0;
    for (int y = 0; y + 1 < g.height(); ++y) {
        const uchar* fila = g.constScanLine(y);
        const uchar* abajo = g.constScanLine(y + 1);
        for (int x = 0; x + 1 < g.width(); ++x) {
            const double dx = fila[x + 1] - fila[x], dy = abajo[x] - fila[x];
            suma += dx * dx + dy * dy;
        }
    }
    return suma;
}

std::string Orden(const std::string& orden) {
    std::string salida;
    if (FILE* p = popen(orden.c_str(), "r")) {
        char buf[4096];
        while (std::size_t n = std::fread(buf, 1, sizeof buf, p)) salida.append(buf, n);
        pclose(p);
    }
    return salida;
}

TEST(SalidaNitida, ADosPixelesPorPuntoMasNitidoQueAmpliado) {
    pruebas::Anota calla;
    const Catalogos& c = pruebas::CatalogosDatos();
    Estado e;
    e.DirArchivo = std::string(VEDRANO_RAIZ) + "/Archivo/";
    ASSERT_EQ(LeeConfiguracion(e, "Constelaciones.ls1", calla).error, 0);
    Estado e2 = e;

    Lienzo normal(400, 300);
    ActualizaCielo(e, c, normal);
    Lienzo doble(400, 300, 2.0);
    ActualizaCielo(e2, c, doble);
    // Same logical size for the sky's geometry, twice the device pixels.
    EXPECT_EQ(doble.Ancho(), 400);
    EXPECT_EQ(doble.Alto(), 300);
    ASSERT_EQ(doble.Imagen().size(), QSize(800, 600));
    const QImage ampliada =
        normal.Imagen().scaled(800, 600, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double nitida = EnergiaBordes(doble.Imagen()), borrosa = EnergiaBordes(ampliada);
    EXPECT_GT(nitida, 1.3 * borrosa) << nitida << " frente a " << borrosa;
}

TEST(SalidaNitida, PdfYSvgSonVectoriales) {
    const fs::path base = fs::temp_directory_path() / ("vedrano_vector_" + std::to_string(::getpid()));
    const std::string pdf = base.string() + ".pdf", svg = base.string() + ".svg";
    const std::string dibuja = std::string(VEDRANO_CLI) + " dibuja --datos '" + VEDRANO_DATOS + "' --config '" +
                               VEDRANO_RAIZ + "/Archivo/Constelaciones.ls1' 2>/dev/null --salida ";
    ASSERT_EQ(std::system((dibuja + "'" + pdf + "'").c_str()), 0);
    ASSERT_EQ(std::system((dibuja + "'" + svg + "'").c_str()), 0);

    // No picture inside the PDF: only the header of pdfimages' list.
    const std::string imagenes = Orden("pdfimages -list '" + pdf + "'");
    EXPECT_EQ(std::count(imagenes.begin(), imagenes.end(), '\n'), 2) << imagenes;
    // The labels of the sky are text there, beside the title block.
    const std::string texto = Orden("pdftotext '" + pdf + "' -");
    EXPECT_NE(texto.find("Longitud:"), std::string::npos);
    std::istringstream lineas(texto);
    int rotulos = 0;
    for (std::string l; std::getline(lineas, l);)
        if (!l.empty() && l.find(':') == std::string::npos && l.find('=') == std::string::npos) ++rotulos;
    EXPECT_GT(rotulos, 30);

    const std::string dibujo = pruebas::LeeArchivo(svg);
    EXPECT_EQ(dibujo.find("<image"), std::string::npos);
    std::size_t textos = 0;
    for (std::size_t p = dibujo.find("<text"); p != std::string::npos; p = dibujo.find("<text", p + 1)) ++textos;
    EXPECT_GT(textos, 30u);
    fs::remove(pdf);
    fs::remove(svg);
}

}  // namespace
