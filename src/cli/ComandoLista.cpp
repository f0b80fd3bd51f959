#include "cli/ComandoLista.h"

#include <iostream>
#include <memory>
#include <string>

#include "app/base/Texto1252.h"
#include "catalogue/CargaCatalogos.h"
#include "catalogue/CategoriasLista.h"
#include "cli/CarpetaDatos.h"

namespace vedrano {

namespace {

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
    for (const CategoriaLista& c : CATEGORIAS_LISTA) std::cerr << "  " << c.nombre << "\n";
}

}  // namespace

int ComandoLista(const OpcionesCli& o) {
    const std::string pedida = o.categoria.toStdString();
    const CategoriaLista* elegida = nullptr;
    const std::string clave = Pliega(A1252(pedida));
    for (const CategoriaLista& c : CATEGORIAS_LISTA)
        if (Pliega(A1252(c.nombre)) == clave) elegida = &c;
    if (!elegida) {
        std::cerr << "vedrano-cli lista: categoría desconocida: " << pedida << "\n";
        NombresValidos();
        return 2;
    }
    std::optional<std::string> dirDatos = CarpetaDatos(o.datos, "lista");
    if (!dirDatos) return 1;

    auto catalogos = std::make_unique<Catalogos>();
    AvisosEnErrorEstandar avisos;
    CargaCatalogos(*dirDatos, *catalogos, avisos);
    // A list built from a catalogue that did not load would be rows of blanks.
    if (avisos.hubo) return 1;
    std::string salida;
    for (const std::string& linea : catalogos->Listas.*(elegida->lista)) {
        salida += DesdeA1252(linea);
        salida += '\n';
    }
    std::cout << salida << std::flush;
    if (!std::cout) {
        std::cerr << "vedrano-cli lista: no se puede escribir la lista en la salida estándar\n";
        return 1;
    }
    return 0;
}

}  // namespace vedrano
