// What the tests of both programs share: a message port that notes what it
// is told, the shipped catalogues read once, whole files read back, the
// error number a call raises, a fresh folder of the test's own, and
// vedrano-cli run as users run it.
#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "app/base/ErrorEjecucion.h"
#include "app/base/InterfazMensajes.h"
#include "catalogue/CargaCatalogos.h"

namespace pruebas {

struct MensajeVisto {
    std::string texto, titulo;  // as written: Windows-1252
    int16_t botones, icono;
};

// Notes every message and answers each with `respuesta`.
struct Anota : vedrano::InterfazMensajes {
    int16_t respuesta = 1;
    std::vector<MensajeVisto> vistos;
    int16_t Mensaje(const std::string& t, const std::string& ti, int16_t b, int16_t i) override {
        vistos.push_back({t, ti, b, i});
        return respuesta;
    }
    std::vector<std::string> Textos() const {
        std::vector<std::string> v;
        for (const MensajeVisto& m : vistos) v.push_back(m.texto);
        return v;
    }
};

inline std::string LeeArchivo(const std::filesystem::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

// The run-time error number `f` raises; 0 when it raises none.
template <class F>
int ErrorDe(F&& f) {
    try {
        f();
    } catch (const vedrano::ErrorEjecucion& e) {
        return e.numero();
    }
    return 0;
}

// The shipped catalogues, loaded once; they load without a word.
inline const vedrano::Catalogos& CatalogosDatos() {
    static const vedrano::Catalogos* c = [] {
        auto* cat = new vedrano::Catalogos;
        Anota a;
        vedrano::CargaCatalogos(VEDRANO_DATOS, *cat, a);
        EXPECT_TRUE(a.vistos.empty());
        return cat;
    }();
    return *c;
}

// An empty folder named after the running test, removed with the object.
struct CarpetaPrueba {
    std::filesystem::path ruta;
    explicit CarpetaPrueba(const std::string& prefijo)
        : ruta(std::filesystem::temp_directory_path() /
               (prefijo + "_" + std::to_string(::getpid()) + "_" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::remove_all(ruta);
        std::filesystem::create_directories(ruta);
    }
    ~CarpetaPrueba() { std::filesystem::remove_all(ruta); }
    std::vector<std::string> Nombres() const {
        std::vector<std::string> v;
        for (const auto& f : std::filesystem::directory_iterator(ruta)) v.push_back(f.path().filename().string());
        std::sort(v.begin(), v.end());
        return v;
    }
};

#ifdef VEDRANO_CLI
struct Ejecucion {
    int codigo = -1;
    std::string salida, errores;
    std::vector<std::string> Lineas() const {
        std::vector<std::string> v;
        for (std::size_t i = 0, j; (j = salida.find('\n', i)) != std::string::npos; i = j + 1)
            v.push_back(salida.substr(i, j - i));
        return v;
    }
};

// Runs vedrano-cli through the shell: `argumentos` as typed, standard input
// from `entrada`, standard output into `destino` (read back when empty).
inline Ejecucion EjecutaCli(const std::string& argumentos, const std::string& entrada = "/dev/null",
                            const std::string& destino = "") {
    const std::string base =
        (std::filesystem::temp_directory_path() / ("vedrano_cli_" + std::to_string(::getpid()))).string();
    const std::string out = base + ".out", err = base + ".err";
    const std::string orden = std::string(VEDRANO_CLI) + " " + argumentos + " < '" + entrada + "' > '" +
                              (destino.empty() ? out : destino) + "' 2> '" + err + "'";
    Ejecucion e;
    const int estado = std::system(orden.c_str());
    e.codigo = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    e.salida = LeeArchivo(out);
    e.errores = LeeArchivo(err);
    std::filesystem::remove(out);
    std::filesystem::remove(err);
    return e;
}
#endif

}  // namespace pruebas
