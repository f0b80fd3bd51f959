#include "catalogue/LineasLista.h"

#include <array>
#include <cctype>
#include <cmath>
#include <tuple>
#include <initializer_list>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Formato.h"
#include "app/base/TextosAngulo.h"

namespace vedrano {

namespace {

float Finito(float v) {
    if (!std::isfinite(v)) throw ErrorEjecucion(ErrDesbordamiento);
    return v;
}

std::string AR(float ar) { return TextoHoras(Finito(ar)); }

// The blank keeps positive and negative declinations in the same columns.
std::string DECConHueco(float dec) {
    std::string t = TextoSexagesimal(Finito(dec));
    if (dec >= 0) t.insert(t.begin(), ' ');
    return t;
}

// Joins the pieces of a line.
std::string Une(std::initializer_list<std::string_view> piezas) {
    std::string l;
    l.reserve(96);
    for (std::string_view p : piezas) l += p;
    return l;
}

const std::array<const char*, 4> COLUMNA_TIPO = {"  ", " V", " M", " X"};

}  // namespace

std::string LineaMessier(int numeroRegistro, const ObjetoMessier& m) {
    std::string l = Une({Formato(numeroRegistro, "@@@"), " ", m.Numero.texto(), "  ", m.Tipo.texto()});
    if (numeroRegistro == 102) return l;
    return Une({l, "  ", m.Nombre.texto(), "  ", m.Magnitud.texto(), "  ", AR(m.AR), "  ",
                TextoSexagesimal(Finito(m.DEC))});
}

std::string LineaConstelacion(const Constelacion& c) {
    return Une({" ", c.Abreviatura.texto(), "   ", c.NombreLatino.texto(), "  ", c.Genitivo.texto(), "  ",
                c.NombreCastellano.texto(), "   ", c.Visible.texto()});
}

std::string LineaProfundo(const ObjetoProfundo& o) {
    return Une({"  ", o.Designacion.texto(), "   ", Str(o.Clase), "   ", AR(o.AR), "    ", DECConHueco(o.DEC)});
}

std::string LineaCodigoPosicion(std::string_view sangria, std::string_view codigo, float ar, float dec) {
    std::string relleno(codigo.size() < 12 ? 12 - codigo.size() : 0, ' ');
    return Une({sangria, codigo, relleno, "   ", AR(ar), "    ", DECConHueco(dec)});
}

bool EntraEnListaEstrellas(const EstrellaNombre& e) {
    if (e.Magnitud <= 3.0) return true;
    char primera = e.Designacion.c[0], segunda = e.Designacion.c[1];
    return !(primera == ' ' && segunda == ' ') && primera != 'V' && primera != 'v';
}

std::string LineaEstrella(const EstrellaNombre& e) {
    if (e.Tipo < 0 || e.Tipo > 3) throw ErrorEjecucion(ErrSubindice);
    // A star without a name keeps the name's blank width, so that the
    // columns after it line up.
    return Une({e.Designacion.texto(), " ", e.Nombre.texto(), COLUMNA_TIPO[static_cast<std::size_t>(e.Tipo)], "  ",
                AR(e.AR), "  ", DECConHueco(e.DEC), "  ", Formato(Finito(e.Magnitud), " 0.0;-0.0")});
}

namespace {

struct Columna {
    std::size_t desde, largo;
};

template <class Campo>
constexpr std::size_t Largo() {
    return std::tuple_size_v<decltype(Campo::c)>;
}

std::string_view Recorta(std::string_view t) {
    const auto a = t.find_first_not_of(' ');
    if (a == std::string_view::npos) return {};
    return t.substr(a, t.find_last_not_of(' ') - a + 1);
}

// Where the names stand in the lines built above.
std::vector<Columna> ColumnasNombres(int categoria) {
    constexpr std::size_t NUMERO = 3, NGC = Largo<decltype(ObjetoMessier::Numero)>(),
                          TIPO = Largo<decltype(ObjetoMessier::Tipo)>(),
                          NOMBRE_M = Largo<decltype(ObjetoMessier::Nombre)>();
    constexpr std::size_t ABREV = Largo<decltype(Constelacion::Abreviatura)>(),
                          NOMBRE_C = Largo<decltype(Constelacion::NombreLatino)>();
    constexpr std::size_t DESIG_E = Largo<decltype(EstrellaNombre::Designacion)>(),
                          NOMBRE_E = Largo<decltype(EstrellaNombre::Nombre)>();
    constexpr std::size_t DESIG_P = Largo<decltype(ObjetoProfundo::Designacion)>(), CODIGO = 12;
    switch (categoria) {
        case 1: {
            const std::size_t ngc = NUMERO + 1, tipo = ngc + NGC + 2, nombre = tipo + TIPO + 2;
            return {{0, NUMERO}, {ngc, NGC}, {tipo, TIPO}, {nombre, NOMBRE_M}};
        }
        case 2: {
            const std::size_t latino = 1 + ABREV + 3, genitivo = latino + NOMBRE_C + 2,
                              castellano = genitivo + NOMBRE_C + 2;
            return {{1, ABREV}, {latino, NOMBRE_C}, {genitivo, NOMBRE_C}, {castellano, NOMBRE_C}};
        }
        case 3: return {{0, DESIG_E}, {DESIG_E + 1, NOMBRE_E}};
        case 4:
        case 5:
        case 6: return {{2, DESIG_P}};
        case 7:
        case 8: return {{SANGRIA_CUMULOS.size(), CODIGO}};
        case 9: return {{SANGRIA_CUASARES.size(), CODIGO}};
        case 10: return {{SANGRIA_PULSARES.size(), CODIGO}};
        case 11: return {{SANGRIA_AGUJEROS.size(), CODIGO}};
        default: return {};
    }
}

// "N224" is NGC 224 and "I342" IC 342 in the deep-sky lists.
void AnadeFormaLarga(std::vector<std::string>& nombres, std::string_view d) {
    if (d.size() < 2 || !std::isdigit(static_cast<unsigned char>(d[1]))) return;
    if (d[0] == 'N') nombres.push_back("NGC " + std::string(d.substr(1)));
    if (d[0] == 'I') nombres.push_back("IC " + std::string(d.substr(1)));
}

}  // namespace

std::vector<std::string> NombresDeLinea(int categoria, std::string_view linea) {
    std::vector<std::string> nombres;
    if (categoria < 0 || categoria > 11) {
        nombres.emplace_back(Recorta(linea));
        return nombres;
    }
    if (categoria == 0) {
        // The body's name is the first word of its row of physical data.
        nombres.emplace_back(Recorta(linea.substr(0, linea.find(' '))));
        return nombres;
    }
    const std::vector<Columna> columnas = ColumnasNombres(categoria);
    for (std::size_t i = 0; i < columnas.size() && columnas[i].desde < linea.size(); ++i) {
        const std::string_view campo = Recorta(linea.substr(columnas[i].desde, columnas[i].largo));
        if (campo.empty()) continue;
        const bool messier = categoria == 1;
        // The Messier line begins with its number and then the NGC number.
        nombres.push_back(messier && i == 0 ? "M" + std::string(campo) : std::string(campo));
        if (messier && i == 1 && std::isdigit(static_cast<unsigned char>(campo[0])))
            nombres.push_back("NGC " + std::string(campo));
        if (categoria >= 4 && categoria <= 8) AnadeFormaLarga(nombres, campo);
    }
    return nombres;
}

}  // namespace vedrano
