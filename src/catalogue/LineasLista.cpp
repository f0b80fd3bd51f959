#include "catalogue/LineasLista.h"

#include <array>
#include <cmath>
#include <initializer_list>

#include "app/ErrorEjecucion.h"
#include "app/Formato.h"
#include "astro/TextosAngulo.h"

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

}  // namespace vedrano
