#include "cli/ComandoLista.h"

#include <cstring>
#include <iostream>
#include <memory>
#include <string>

#include "app/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/CategoriasLista.h"
#include "cli/CarpetaDatos.h"

namespace vedrano {

namespace {

// The loader's messages, one per line on standard error.
class AvisosEnErrorEstandar : public Notificador {
public:
    void Avisa(const std::string& texto, const std::string& titulo) override {
        std::cerr << DesdeA1252(titulo) << ": " << DesdeA1252(texto) << "\n";
    }
};

// A Windows-1252 text in lower case without accents, with runs of blanks
// made one, to compare category names as users type them.
std::string Pliega(std::string_view cp1252) {
    static const char* const SIN_ACENTO[] = {
        // 0xC0 .. 0xFF
        "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i", "i",
        "d", "n", "o", "o", "o", "o", "o", "x", "o", "u", "u", "u", "u", "y", "th", "ss",
        "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i", "i",
        "d", "n", "o", "o", "o", "o", "o", "/", "o", "u", "u", "u", "u", "y", "th", "y"};
    std::string r;
    for (char ch : cp1252) {
        auto c = static_cast<unsigned char>(ch);
        if (c == ' ' || c == '\t') {
            if (!r.empty() && r.back() != ' ') r += ' ';
        } else if (c >= 0xC0) {
            r += SIN_ACENTO[c - 0xC0];
        } else if (c >= 'A' && c <= 'Z') {
            r += static_cast<char>(c - 'A' + 'a');
        } else {
            r += static_cast<char>(c);
        }
    }
    if (!r.empty() && r.back() == ' ') r.pop_back();
    return r;
}

void NombresValidos() {
    std::cerr << "Categorías válidas:\n";
    for (const CategoriaLista& c : CATEGORIAS_LISTA) std::cerr << "  " << DesdeA1252(c.nombre) << "\n";
}

void Uso() {
    std::cerr << "Uso: vedrano-cli lista CATEGORIA [--datos DIR]\n"
                 "(una categoría de varias palabras, entre comillas o no; mayúsculas y acentos dan igual)\n";
    NombresValidos();
}

}  // namespace

int ComandoLista(int argc, char** argv) {
    std::string dirDatos, pedida;
    bool hayCategoria = false;
    for (int i = 2; i < argc; ++i) {
        if (std::strcmp(argv[i], "--datos") == 0) {
            if (i + 1 >= argc) {
                std::cerr << "vedrano-cli lista: falta la carpeta tras --datos\n";
                return 2;
            }
            dirDatos = argv[++i];
        } else if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            Uso();
            return 0;
        } else {
            // Words of an unquoted name ("Sistema Solar") join back into one.
            if (hayCategoria) pedida += ' ';
            pedida += argv[i];
            hayCategoria = true;
        }
    }
    if (!hayCategoria) {
        std::cerr << "vedrano-cli lista: falta la categoría\n";
        Uso();
        return 2;
    }
    const CategoriaLista* elegida = nullptr;
    const std::string clave = Pliega(A1252(pedida));
    for (const CategoriaLista& c : CATEGORIAS_LISTA)
        if (Pliega(c.nombre) == clave) elegida = &c;
    if (!elegida) {
        std::cerr << "vedrano-cli lista: categoría desconocida: " << pedida << "\n";
        NombresValidos();
        return 2;
    }
    if (dirDatos.empty()) dirDatos = CarpetaDatosPorDefecto(argv[0]);

    auto catalogos = std::make_unique<Catalogos>();
    AvisosEnErrorEstandar avisos;
    CargaCatalogos(dirDatos, *catalogos, avisos);
    std::string salida;
    for (const std::string& linea : catalogos->Listas.*(elegida->lista)) {
        salida += DesdeA1252(linea);
        salida += '\n';
    }
    std::cout << salida << std::flush;
    return std::cout ? 0 : 1;
}

}  // namespace vedrano
