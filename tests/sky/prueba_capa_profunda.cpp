// The deep star layer on real pictures of Cygnus: Hipparcos stars fainter
// than the program's tables appear where their catalogue place projects,
// and the faintest magnitude drawn grows with the zoom (nothing beyond the
// tables at zoom 1, the whole file at zoom 15).
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "../Ayudas.h"
#include "CapasApagadas.h"
#include "app/base/Constantes.h"
#include "app/estado/Rotaciones.h"
#include "astro/Coordenadas.h"
#include "app/estado/Tiempo.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/EstrellasProfundas.h"
#include "sky/DibujaCielo.h"
#include "sky/proyeccion/Proyeccion.h"

using namespace vedrano;

namespace {

// The offscreen application is the one prueba_dibujo's environment makes.
struct Capa : ::testing::Test {
    static void SetUpTestSuite() {
        std::string mensaje;
        abierto = profundas.Abre(std::string(VEDRANO_DATOS) + "VDRDATP.DAT", mensaje);
    }

    // The stars alone, a summer night at Malaga, looking at Deneb's field.
    void SetUp() override {
        ASSERT_TRUE(abierto);
        ApagaCapas(e);
        e.NivelEstrellas = 7;
        e.Precesion = true;
        FijaFechaJuliana(e, c.TablaPlanetas, 2460880.528);
        MiraA(e, AngulosAVector(310.35 * GRADO, 45.28 * GRADO));
    }

    QImage Dibuja(float zoom, bool debiles) {
        FijaZoom(e, zoom);
        OpcionesDibujo o;
        o.EstrellasDebiles = debiles;
        o.Profundas = &profundas;
        ActualizaCielo(e, c, l, o);
        return l.Imagen().copy();
    }

    // The brightest grey within a pixel of a place, or -1 off the picture.
    int Brillo(const QImage& img, const QPointF& p) const {
        const int x = static_cast<int>(std::floor(p.x())), y = static_cast<int>(std::floor(p.y()));
        if (x < 2 || y < 2 || x >= img.width() - 2 || y >= img.height() - 2) return -1;
        int mas = 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) mas = std::max(mas, qGray(img.pixel(x + dx, y + dy)));
        return mas;
    }

    QPointF Pixel(const Vector3f& v) {
        PuntoProyectado p = ProyectaPunto(e, v);
        return p.Z < e.Umbral ? QPointF(-100, -100) : l.APixel(p.X, p.Y);
    }

    const Catalogos& c = pruebas::CatalogosDatos();
    static inline EstrellasProfundas profundas;
    static inline bool abierto = false;
    Estado e;
    Lienzo l{800, 600};
};

}  // namespace

TEST_F(Capa, HipparcosStarsFainterThanTheTablesShowWhereTheirPlaceProjects) {
    const QImage sin = Dibuja(15, false), con = Dibuja(15, true);
    std::ifstream hip(std::string(VEDRANO_FUENTES_DATOS) + "/estrellas/estrellas_hip_v8.csv");
    ASSERT_TRUE(hip);
    std::string linea;
    std::getline(hip, linea);
    int vistas = 0;
    while (std::getline(hip, linea)) {
        std::istringstream s(linea);
        std::string campo[4];
        for (auto& f : campo) std::getline(s, f, ',');
        if (std::stod(campo[3]) < 7.7) continue;  // the tables hold them
        const QPointF p = Pixel(AngulosAVector(std::stod(campo[1]) * GRADO, std::stod(campo[2]) * GRADO));
        if (Brillo(sin, p) != 0) continue;  // off the picture, or beside a star of the tables
        ++vistas;
        EXPECT_GT(Brillo(con, p), 60) << "HIP " << campo[0] << " at " << p.x() << ", " << p.y();
    }
    EXPECT_GT(vistas, 10);
}

TEST_F(Capa, TheFaintestMagnitudeGrowsWithTheZoom) {
    // At zoom 1 the tables go as deep as the layer: not one pixel more.
    EXPECT_EQ(Dibuja(1, true), Dibuja(1, false));
    // The faintest stars of the file, V 10.25 to 10.5, where no star of the
    // tables lies.
    auto faintest = [&](float zoom, int& lucen) {
        const QImage sin = Dibuja(zoom, false), con = Dibuja(zoom, true);
        int vistas = 0;
        lucen = 0;
        for (const ZonaProfunda& z : profundas.Zonas())
            for (uint32_t i = z.Primera; i < z.Primera + z.Cuenta; ++i) {
                const EstrellaProfunda s = profundas.Estrella(i);
                if (s.Veintavos < 205) continue;
                const QPointF p = Pixel(DireccionProfunda(z, s));
                if (Brillo(sin, p) != 0) continue;
                ++vistas;
                lucen += Brillo(con, p) > 60;
            }
        return vistas;
    };
    int lucen15 = 0, lucen4 = 0;
    const int vistas15 = faintest(15, lucen15);
    EXPECT_GT(vistas15, 20);
    EXPECT_EQ(lucen15, vistas15);
    // At zoom 4 the limit is near V 9: only a brighter neighbour lights the
    // place of one of them.
    const int vistas4 = faintest(4, lucen4);
    EXPECT_GT(vistas4, 200);
    EXPECT_LT(lucen4, vistas4 / 4) << lucen4 << " of " << vistas4;
}
