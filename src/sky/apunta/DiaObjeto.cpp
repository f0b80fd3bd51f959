#include "sky/apunta/DiaObjeto.h"

#include <cmath>
#include <cstdio>

#include "app/base/Aritmetica.h"
#include "astro/Coordenadas.h"
#include "app/estado/Rotaciones.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Tiempo.h"
#include "catalogue/MovimientosPropios.h"
#include "sky/proyeccion/Proyeccion.h"
#include "sky/proyeccion/SistemaSolar.h"

namespace vedrano {

namespace {

// `mov` the table's proper motions (the named stars' only).
template <class Registro>
bool Fijo(const std::vector<Registro>& tabla, int i, ObjetoDelDia& o, const std::vector<Vector3f>& mov = {}) {
    if (i < 0 || static_cast<std::size_t>(i) >= tabla.size()) return false;
    const std::size_t k = static_cast<std::size_t>(i);
    o = {0, tabla[k].AR, tabla[k].DEC, k < mov.size() ? mov[k] : Vector3f{}};
    return true;
}

// The local clock reading "hh:mm" of an instant.
std::string Hora(const DiaObjeto& d, const Instante& t) {
    if (!t.hay) return "--:--";
    double local = t.jd + d.adelanto + 0.5;
    int minutos = static_cast<int>(std::lround((local - std::floor(local)) * 1440)) % 1440;
    char s[8];
    std::snprintf(s, sizeof s, "%02d:%02d", minutos / 60, minutos % 60);
    return s;
}

std::string Limpio(const std::string& t) {
    std::size_t a = t.find_first_not_of(' ');
    return a == std::string::npos ? std::string() : t.substr(a);
}

}  // namespace

bool ObjetoDeLista(const Catalogos& c, int categoria, int linea, ObjetoDelDia& o) {
    if (linea < 0) return false;
    switch (categoria) {
        case 0:
            if (linea > 10 || linea == 2) return false;  // the Earth
            o = {linea + 1, 0, 0};
            return true;
        case 1: return Fijo(c.TablaMessier, linea, o);
        case 2: return Fijo(c.TablaConstelaciones, linea, o);
        case 3:
            if (static_cast<std::size_t>(linea) >= c.IndiceListaEstrellas.size()) return false;
            return Fijo(c.TablaEstrellasNombre, c.IndiceListaEstrellas[static_cast<std::size_t>(linea)], o,
                        c.MovEstrellasNombre);
        case 4: return Fijo(c.TablaGalaxias, linea, o);
        case 5: return Fijo(c.TablaNebPlanetarias, linea, o);
        case 6: return Fijo(c.TablaNebDifusas, linea, o);
        case 7: return Fijo(c.TablaCumAbiertos, linea, o);
        case 8: return Fijo(c.TablaCumGlobulares, linea, o);
        case 9: return Fijo(c.TablaCuasares, linea, o);
        case 10: return Fijo(c.TablaPulsares, linea, o);
        case 11: return Fijo(c.TablaAgujeros, linea, o);
        default: return false;
    }
}

DiaObjeto HallaDia(const Estado& e, const TablaPlanetas& planetas, const ObjetoDelDia& o) {
    DiaObjeto d;
    d.adelanto = e.ZonaHoraria / 24.0 + (e.HorarioVerano ? 1.0 / 24.0 : 0.0);
    d.jdInicio = Int(e.FechaJuliana + d.adelanto + 0.5) - 0.5 - d.adelanto;
    d.esSol = o.cuerpo == 10;

    // A scratch copy of the state walks through the day in the model in
    // use (classic or precise); the caller's state and caches stay as they were.
    Estado w = e;
    w.Precesion = false;  // a fixed place is carried to the date once, below
    auto en = [&](double jd) {
        FijaFechaJuliana(w, planetas, jd);
    };
    SidereoEn sidereo = [&](double jd) {
        en(jd);
        return w.TiempoSidereo;
    };
    PosicionEn posicion;
    if (o.cuerpo >= 1 && o.cuerpo <= 11) {
        posicion = [&](double jd) {
            en(jd);
            HallaCuerpo(w, planetas, static_cast<int16_t>(o.cuerpo));
            const PosicionCuerpo& p = w.Planetas[static_cast<std::size_t>(o.cuerpo)];
            return Ecuatorial{p.AscRecta, p.Declinacion};
        };
    } else {
        // A fixed place moves only by precession: once for the day's middle.
        Ecuatorial fijo{o.ar, o.dec};
        if (PrecesaCatalogo(e)) {
            // The precession angles come with the instant's refresh (the
            // switch is on when the precise model is not).
            Estado medio = e;
            FijaFechaJuliana(medio, planetas, d.jdInicio + 0.5);
            Vector3f v = MueveDireccion(AngulosAVector(o.ar, o.dec), o.movimiento, AnosMovimientoPropio(medio));
            LugarDeFecha(medio, v);
            VectorAAngulos(v, fijo.ar, fijo.dec);
        }
        posicion = [fijo](double) { return fijo; };
    }

    const double h0 = o.cuerpo == 10 || o.cuerpo == 11 ? altura::SOL : altura::ESTRELLA;
    d.horizonte = HallaOrtoOcaso(d.jdInicio, e.Latitud, h0, posicion, sidereo);
    if (d.esSol) {
        const double crepusculo[3] = {altura::CIVIL, altura::NAUTICO, altura::ASTRONOMICO};
        for (int k = 0; k < 3; ++k) d.crepusculos[static_cast<std::size_t>(k)] =
            HallaOrtoOcaso(d.jdInicio, e.Latitud, crepusculo[k], posicion, sidereo);
    }
    return d;
}

std::vector<std::string> TextosDia(const DiaObjeto& d) {
    std::vector<std::string> l;
    const OrtoTransitoOcaso& h = d.horizonte;
    if (h.visibilidad == Visibilidad::Circumpolar) {
        l.push_back("Salida y puesta: circumpolar");
    } else if (h.visibilidad == Visibilidad::NoSale) {
        l.push_back("Salida y puesta: no sale");
    } else {
        // In the order of the day: a body that set in the morning rises later.
        const bool antes = !h.orto.hay || !h.ocaso.hay || h.orto.jd <= h.ocaso.jd;
        const std::string salida = "Salida: " + Hora(d, h.orto), puesta = "Puesta: " + Hora(d, h.ocaso);
        l.push_back(antes ? salida + "    " + puesta : puesta + "    " + salida);
    }
    if (h.transito.hay)
        l.push_back(A1252("Tránsito: ") + Hora(d, h.transito) + "  a " + Limpio(TextoSexagesimal(h.alturaTransito)));
    if (d.esSol) {
        const char* nombres[3] = {"civil", "náutico", "astronómico"};
        for (std::size_t k = 0; k < 3; ++k) {
            const OrtoTransitoOcaso& c = d.crepusculos[k];
            std::string t = A1252(std::string("Crepúsculo ") + nombres[k] + ": ");
            if (c.visibilidad == Visibilidad::Circumpolar)
                t += "no llega a oscurecer";
            else if (c.visibilidad == Visibilidad::NoSale)
                t += "no hay";
            else
                t += "empieza " + Hora(d, c.orto) + ", acaba " + Hora(d, c.ocaso);
            l.push_back(t);
        }
    }
    return l;
}

}  // namespace vedrano
