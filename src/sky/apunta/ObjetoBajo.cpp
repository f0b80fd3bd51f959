#include "sky/apunta/ObjetoBajo.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>

#include "app/base/Aritmetica.h"
#include "app/base/Constantes.h"
#include "astro/Coordenadas.h"
#include "app/estado/Rotaciones.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "catalogue/MovimientosPropios.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

namespace {

bool Encendido(int16_t s) { return s != 0; }

// The last record a detail level draws (the count table's entry).
int Cuenta(const TablaCuentas& t, int nivel) {
    return nivel >= 0 && nivel <= 7 ? t[static_cast<std::size_t>(nivel)] : -1;
}

struct Busqueda {
    const Estado& e;
    float X, Y, radio;
    ObjetoSenalado mejor;
    Vector3f direccion;  // of the best, for a catalogue object

    void Prueba(ClaseObjeto clase, int i, const PuntoProyectado& p, ObjetoDelDia dia, double alcance = 0,
                Vector3f v = {}) {
        if (!EsVisible(e, p)) return;
        const double d = std::hypot(p.X - X, p.Y - Y);
        if (d > radio + alcance) return;
        // A body's disc is part of it: measure from its edge.
        const double desde = std::max(0.0, d - alcance);
        if (mejor.clase != ClaseObjeto::Ninguno && desde >= mejor.distancia) return;
        mejor = {clase, i, dia, desde};
        direccion = v;
    }

    // `mov` the table's proper motions (none but the stars').
    template <class Registro>
    void Tabla(ClaseObjeto clase, const std::vector<Registro>& t, int ultimo,
               const std::vector<Vector3f>& mov = {}) {
        const DireccionesEnFecha donde(mov, AnosMovimientoPropio(e));
        for (int i = 0; i <= ultimo && i < static_cast<int>(t.size()); ++i) {
            const Vector3f v = donde(static_cast<std::size_t>(i), t[static_cast<std::size_t>(i)].Direccion);
            Prueba(clase, i, ProyectaPunto(e, v), {}, 0, v);
        }
    }
};

// Disc radii of the bodies as drawn (user units).
double RadioCuerpo(int b) { return b >= 10 ? 0.009 : 0.005; }

std::string Recorta(std::string t) {
    std::size_t a = t.find_first_not_of(' '), z = t.find_last_not_of(' ');
    return a == std::string::npos ? std::string() : t.substr(a, z - a + 1);
}

// The Spanish name of a constellation by its abbreviation ("CMa").
std::string NombreConstelacion(const Catalogos& c, const std::string& abreviatura) {
    for (const Constelacion& k : c.TablaConstelaciones)
        if (Recorta(k.Abreviatura.texto()) == abreviatura && !abreviatura.empty())
            return Recorta(k.NombreCastellano.texto());
    return {};
}

std::string Decimal(double v, int decimales) {
    char s[32];
    std::snprintf(s, sizeof s, "%.*f", decimales, v);
    std::string t = s;
    for (char& ch : t)
        if (ch == '.') ch = ',';
    return t;
}

// The place of the date of a direction, as the picture draws it.
void Lugar(const Estado& e, Vector3f v, double& ar, double& dec) {
    LugarDeFecha(e, v);
    VectorAAngulos(v, ar, dec);
}

}  // namespace

ObjetoSenalado ObjetoBajo(const Estado& e, const Catalogos& c, float X, float Y, float radio) {
    Busqueda b{e, X, Y, radio, {}, {}};
    const Interruptores& s = e.Capas;
    if (e.NivelEstrellas > 0) b.Tabla(ClaseObjeto::Estrella, c.TablaEstrellas, Cuenta(c.TablasCuentas.Estrellas, e.NivelEstrellas),
                                     c.MovEstrellas);
    if (Encendido(s.Messi)) b.Tabla(ClaseObjeto::Messier, c.TablaMessier, static_cast<int>(c.TablaMessier.size()) - 1);
    const Cuentas& t = c.TablasCuentas;
    if (Encendido(s.Galax)) b.Tabla(ClaseObjeto::Galaxia, c.TablaGalaxias, Cuenta(t.Galaxias, e.NivelGalaxias));
    if (Encendido(s.NebPl))
        b.Tabla(ClaseObjeto::NebPlanetaria, c.TablaNebPlanetarias, Cuenta(t.NebPlanetarias, e.NivelNebPlanetarias));
    if (Encendido(s.NebDi)) b.Tabla(ClaseObjeto::NebDifusa, c.TablaNebDifusas, Cuenta(t.NebDifusas, e.NivelNebDifusas));
    if (Encendido(s.CumAb)) b.Tabla(ClaseObjeto::CumAbierto, c.TablaCumAbiertos, Cuenta(t.CumAbiertos, e.NivelCumAbiertos));
    if (Encendido(s.CumGl))
        b.Tabla(ClaseObjeto::CumGlobular, c.TablaCumGlobulares, Cuenta(t.CumGlobulares, e.NivelCumGlobulares));
    if (Encendido(s.Quasa)) b.Tabla(ClaseObjeto::Cuasar, c.TablaCuasares, static_cast<int>(c.TablaCuasares.size()) - 1);
    if (Encendido(s.Pulsa)) b.Tabla(ClaseObjeto::Pulsar, c.TablaPulsares, static_cast<int>(c.TablaPulsares.size()) - 1);
    if (Encendido(s.Aguje)) b.Tabla(ClaseObjeto::Agujero, c.TablaAgujeros, static_cast<int>(c.TablaAgujeros.size()) - 1);
    // The bodies last, from the screen points the pass left: over a star
    // the disc wins.
    for (int k = 1; k <= 11; ++k) {
        const bool dibujado = k <= 9 ? k != 3 && Encendido(s.Plane[static_cast<std::size_t>(k - 1)])
                                     : Encendido(k == 10 ? s.Sol : s.Luna);
        if (!dibujado) continue;
        const PosicionCuerpo& p = e.Planetas[static_cast<std::size_t>(k)];
        b.Prueba(ClaseObjeto::Cuerpo, k, {p.X, p.Y, p.Z}, {k, 0, 0}, RadioCuerpo(k));
    }
    if (b.mejor.clase != ClaseObjeto::Cuerpo && b.mejor.clase != ClaseObjeto::Ninguno) {
        // The catalogue's place, which the day's reckoning precesses itself.
        b.mejor.dia.cuerpo = 0;
        VectorAAngulos(b.direccion, b.mejor.dia.ar, b.mejor.dia.dec);
    }
    return b.mejor;
}

std::vector<std::string> DescribeObjeto(const Estado& e, const Catalogos& c, const ObjetoSenalado& o) {
    std::vector<std::string> l;
    const std::size_t i = static_cast<std::size_t>(o.indice);
    double ar = o.dia.ar, dec = o.dia.dec;
    std::string constelacion;
    switch (o.clase) {
        case ClaseObjeto::Ninguno: return l;
        case ClaseObjeto::Cuerpo: {
            const PosicionCuerpo& p = e.Planetas[i];
            ar = p.AscRecta, dec = p.Declinacion;
            std::string nombre = i >= 1 && i <= c.Listas.SistemaSolar.size()
                                     ? c.Listas.SistemaSolar[i - 1].substr(0, c.Listas.SistemaSolar[i - 1].find(' '))
                                     : c.TablaPlanetas[i].Codigo.texto();
            for (std::size_t k = 1; k < nombre.size(); ++k)
                nombre[k] = static_cast<char>(std::tolower(static_cast<unsigned char>(nombre[k])));
            l.push_back(nombre);
            l.push_back(A1252(o.indice == 10   ? "Estrella (el Sol)"
                              : o.indice == 11 ? "Satélite de la Tierra"
                                               : "Planeta"));
            if (o.indice == 11) {
                // Elongation east of the Sun, 0..2pi: the phase and the
                // days since new Moon in a mean synodic month.
                const PosicionCuerpo& sol = e.Planetas[10];
                Vector3f vl = AngulosAVector(p.AscRecta, p.Declinacion), vs = AngulosAVector(sol.AscRecta, sol.Declinacion);
                double cosE = double(vl.x) * vs.x + double(vl.y) * vs.y + double(vl.z) * vs.z;
                double E = std::acos(std::max(-1.0, std::min(1.0, cosE)));
                if (std::remainder(p.AscRecta - sol.AscRecta, DOS_PI) < 0) E = DOS_PI - E;
                const double iluminada = (1 - std::cos(E)) / 2;
                l.push_back("Fase: " + Decimal(100 * iluminada, 0) + " % iluminada, " +
                            (E < PI ? "creciente" : "menguante") + "; edad " + Decimal(E / DOS_PI * 29.530589, 1) +
                            A1252(" días"));
            }
            break;
        }
        case ClaseObjeto::Estrella: {
            const Estrella& s = c.TablaEstrellas[i];
            // A named star is the same record in the table of names.
            const EstrellaNombre* n = nullptr;
            for (const EstrellaNombre& k : c.TablaEstrellasNombre)
                if (std::fabs(k.Direccion.x - s.Direccion.x) + std::fabs(k.Direccion.y - s.Direccion.y) +
                        std::fabs(k.Direccion.z - s.Direccion.z) < 2e-5f) {
                    n = &k;
                    break;
                }
            const char* tipos[4] = {"Estrella", "Estrella variable", "Estrella múltiple", "Estrella múltiple variable"};
            if (n) {
                const std::string designacion = Recorta(n->Designacion.texto()), nombre = Recorta(n->Nombre.texto());
                l.push_back(nombre.empty() ? designacion : nombre + "  (" + designacion + ")");
                constelacion = NombreConstelacion(c, designacion.size() >= 3 ? designacion.substr(designacion.size() - 3) : "");
            } else {
                l.push_back(A1252("Estrella sin nombre en el catálogo"));
            }
            l.push_back(A1252(tipos[s.Tipo & 3]) + ", magnitud " + Decimal(s.Magnitud, 1));
            Lugar(e, DireccionesEnFecha(c.MovEstrellas, AnosMovimientoPropio(e))(i, s.Direccion), ar, dec);
            break;
        }
        case ClaseObjeto::Messier: {
            const ObjetoMessier& m = c.TablaMessier[i];
            const std::string tipo = m.Tipo.texto();
            const std::string nombre = Recorta(m.Nombre.texto());
            l.push_back("M" + std::to_string(o.indice + 1) + (nombre.empty() ? "" : "  " + nombre) + "  (NGC " +
                        Recorta(m.Numero.texto()) + ")");
            const std::string mag = Recorta(m.Magnitud.texto());
            l.push_back(Recorta(tipo.substr(0, tipo.size() - 4)) + (mag.empty() ? "" : ", magnitud " + mag));
            constelacion = NombreConstelacion(c, Recorta(tipo.substr(tipo.size() - 4)));
            Lugar(e, m.Direccion, ar, dec);
            break;
        }
        default: {
            const std::vector<ObjetoProfundo>* tabla = nullptr;
            std::string tipo, tamano;
            switch (o.clase) {
                case ClaseObjeto::Galaxia: {
                    tabla = &c.TablaGalaxias, tipo = "Galaxia";
                    const char* t[4] = {"mayor de 30'", "mayor de 20'", "mayor de 10'", "menor de 10'"};
                    int k = (*tabla)[i].Clase;
                    if (k >= 1 && k <= 4) tamano = t[k - 1];
                    break;
                }
                case ClaseObjeto::NebPlanetaria: {
                    tabla = &c.TablaNebPlanetarias, tipo = "Nebulosa planetaria";
                    int k = (*tabla)[i].Clase;
                    if (k >= 1 && k <= 2) tamano = k == 1 ? "mayor de 1'" : "menor de 1'";
                    break;
                }
                case ClaseObjeto::NebDifusa: {
                    tabla = &c.TablaNebDifusas, tipo = "Nebulosa difusa";
                    int k = (*tabla)[i].Clase;
                    if (k >= 1 && k <= 2) tamano = k == 1 ? "mayor de 10'" : "menor de 10'";
                    break;
                }
                case ClaseObjeto::CumAbierto: tabla = &c.TablaCumAbiertos, tipo = A1252("Cúmulo abierto"); break;
                case ClaseObjeto::CumGlobular: tabla = &c.TablaCumGlobulares, tipo = A1252("Cúmulo globular"); break;
                default: break;
            }
            if (tabla) {
                const ObjetoProfundo& r = (*tabla)[i];
                l.push_back(Recorta(r.Designacion.texto()));
                l.push_back(tipo + (tamano.empty() ? "" : A1252(", tamaño ") + tamano));
                Lugar(e, r.Direccion, ar, dec);
            } else {
                const std::vector<ObjetoExotico>& t = o.clase == ClaseObjeto::Cuasar   ? c.TablaCuasares
                                                      : o.clase == ClaseObjeto::Pulsar ? c.TablaPulsares
                                                                                       : c.TablaAgujeros;
                const ObjetoExotico& r = t[i];
                l.push_back(Recorta(r.Nombre.texto()));
                l.push_back(A1252(o.clase == ClaseObjeto::Cuasar   ? "Cuásar"
                                  : o.clase == ClaseObjeto::Pulsar ? "Púlsar"
                                                                   : "Agujero negro"));
                Lugar(e, r.Direccion, ar, dec);
            }
            break;
        }
    }
    l.push_back("A.R. = " + Recorta(TextoHoras(static_cast<float>(ar))) + "   DEC. = " + Recorta(TextoSexagesimal(dec)));
    if (!constelacion.empty()) l.push_back(A1252("Constelación: ") + constelacion);
    return l;
}

}  // namespace vedrano
