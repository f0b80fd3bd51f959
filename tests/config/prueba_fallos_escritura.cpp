// Saving under faults: a writer killed at any instant, a disk that fills up
// in the middle of a file, and a picture written where there is no room.
// The old file or the new one stays whole, the fault is told with its
// number, and no temporary file outlives its writer.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../Ayudas.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "config/EscribeConfiguracion.h"
#include "config/EscrituraSegura.h"
#include "config/LeeConfiguracion.h"
#include "sky/PaginaImpresa.h"

using namespace vedrano;
namespace fs = std::filesystem;

namespace {

using pruebas::LeeArchivo;

class FallosEscritura : public ::testing::Test {
protected:
    pruebas::CarpetaPrueba carpeta{"vedrano_fallos"};
    const fs::path& dir = carpeta.ruta;
    std::vector<std::string> Nombres() const { return carpeta.Nombres(); }
    // Runs `hijo` in a child process whose files may not grow past
    // `limite` bytes, as on a disk with that much room; its exit status.
    static int EnDiscoLleno(long limite, const std::function<int()>& hijo) {
        pid_t pid = ::fork();
        if (pid == 0) {
            std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead of the process
            rlimit r{static_cast<rlim_t>(limite), static_cast<rlim_t>(limite)};
            ::setrlimit(RLIMIT_FSIZE, &r);
            ::_exit(hijo());
        }
        int estado = 0;
        ::waitpid(pid, &estado, 0);
        return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    }
};

// A child saves two configurations in turn as fast as it can and is killed
// at a random instant, a few hundred times: the file is always one of the
// two, whole. The next save leaves no temporary file of the dead writers.
TEST_F(FallosEscritura, UnEscritorMatadoDejaElViejoOElNuevoEntero) {
    Estado a, b;
    FijaFechaJuliana(b, TablaPlanetas{}, 2451545.25);
    b.TextoLugar = std::string(300, 'x');  // a longer file, written in more than one piece
    const std::string textoA = TextoConfiguracion(a), textoB = TextoConfiguracion(b);
    const std::string ruta = (dir / "k.ls1").string();
    ASSERT_EQ(EscribeArchivoEntero(ruta, textoA), 0);
    std::mt19937 azar(11);
    int intermedios = 0;
    for (int vez = 0; vez < 300; ++vez) {
        pid_t pid = ::fork();
        if (pid == 0) {
            for (int i = 0;; ++i) EscribeArchivoEntero(ruta, i % 2 ? textoA : textoB);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(azar() % 3000));
        ::kill(pid, SIGKILL);
        ::waitpid(pid, nullptr, 0);
        const std::string visto = LeeArchivo(ruta);
        ASSERT_TRUE(visto == textoA || visto == textoB) << "vez " << vez << ": " << visto.size() << " bytes";
        intermedios += Nombres().size() > 1;
    }
    // Killed mid-save, some writers must have left their file: else the test proved nothing.
    EXPECT_GT(intermedios, 0);
    ASSERT_EQ(EscribeArchivoEntero(ruta, textoB), 0);
    EXPECT_EQ(Nombres(), std::vector<std::string>{"k.ls1"});
    // The same clean-up at start-up, for files no save touches again.
    std::ofstream(dir / ".otro.ls1.999999999-1.tmp") << "resto";
    std::ofstream(dir / (".vivo.ls1." + std::to_string(::getpid()) + "-1.tmp")) << "en curso";
    LimpiaTemporales(dir.string() + "/");
    EXPECT_EQ(Nombres(), (std::vector<std::string>{".vivo.ls1." + std::to_string(::getpid()) + "-1.tmp", "k.ls1"}));
}

// A disk with room for 100 bytes: the save is refused with "disk full", the
// old configuration stays as it was, and nothing else is left.
TEST_F(FallosEscritura, DiscoLlenoAvisaYConservaElViejo) {
    Estado e;
    e.DirArchivo = dir.string() + "/";
    std::ofstream(dir / "v.ls1") << "viejo";
    int error = EnDiscoLleno(100, [&] {
        pruebas::Anota ui;
        ResultadoConfiguracion r = EscribeConfiguracion(e, "v.ls1", ui, true);
        return r.escrito || ui.vistos.empty() || ui.vistos.back().texto.find("61") == std::string::npos ? 0 : r.error;
    });
    EXPECT_EQ(error, 61);
    EXPECT_EQ(LeeArchivo(dir / "v.ls1"), "viejo");
    EXPECT_EQ(Nombres(), std::vector<std::string>{"v.ls1"});
}

// A PDF made where there is no room: false with 61, the old file kept, and
// a new name never left as an empty file.
TEST_F(FallosEscritura, PdfEnDiscoLlenoNoDejaFicheroVacio) {
    std::ofstream(dir / "c.pdf") << "viejo";
    Catalogos c;
    for (const char* nombre : {"c.pdf", "n.pdf"}) {
        const QString archivo = QString::fromStdString((dir / nombre).string());
        int error = EnDiscoLleno(1000, [&] {
            int e = -1;
            return EscribePdf(archivo, Estado{}, c, &e) ? 0 : e;
        });
        EXPECT_EQ(error, 61) << nombre;
    }
    EXPECT_EQ(LeeArchivo(dir / "c.pdf"), "viejo");
    EXPECT_EQ(Nombres(), std::vector<std::string>{"c.pdf"});
}

// "dibuja --config NAME.ls1" looks in the current folder, and a
// configuration out of range is refused naming the item.
TEST_F(FallosEscritura, DibujaBuscaLaConfiguracionEnLaCarpetaActual) {
    Estado e;
    std::ofstream(dir / "bien.ls1", std::ios::binary) << TextoConfiguracion(e);
    FijaVista(e, 1, e.Elevacion);
    std::string mal = TextoConfiguracion(e);
    mal.replace(mal.find(",1,"), 3, ",600,");
    std::ofstream(dir / "mal.ls1", std::ios::binary) << mal;
    auto dibuja = [&](const std::string& config) {
        const std::string orden = "cd '" + dir.string() + "' && '" VEDRANO_CLI "' dibuja --datos '" VEDRANO_DATOS
                                  "' --config " + config + " --ancho 64 --alto 48 --salida o.png 2> err.txt";
        return WEXITSTATUS(std::system(orden.c_str()));
    };
    EXPECT_EQ(dibuja("bien.ls1"), 0) << LeeArchivo(dir / "err.txt");
    EXPECT_TRUE(fs::file_size(dir / "o.png") > 0);
    EXPECT_EQ(dibuja("mal.ls1"), 1);
    EXPECT_NE(LeeArchivo(dir / "err.txt").find("dato 5 (Direccion)"), std::string::npos) << LeeArchivo(dir / "err.txt");
}

}  // namespace
