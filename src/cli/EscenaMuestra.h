// The scene a sample configuration is set up in: a state with what every
// sample shares, and the few moves the samples are made of (a place, a
// zone, an instant, a body or catalogue direction, where it stands, where
// the view looks, the minute where a value is least).
#pragma once
#include <cmath>
#include <functional>
#include <string>

#include "app/acciones/LugarElegido.h"
#include "app/base/Constantes.h"
#include "app/base/Texto1252.h"
#include "app/estado/Astros.h"
#include "app/estado/Estado.h"
#include "app/estado/Rotaciones.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "astro/Calendario.h"
#include "astro/Coordenadas.h"
#include "catalogue/Catalogos.h"

namespace vedrano::muestras {

inline double Angulo(const Vector3f& a, const Vector3f& b) {
    double c = double{a.x} * b.x + double{a.y} * b.y + double{a.z} * b.z;
    return std::acos(std::fmax(-1.0, std::fmin(1.0, c)));
}

inline double Grados(double radianes) { return radianes / GRADO; }

// Where a sky direction stands for the observer: azimuth from north
// through east and altitude, radians.
struct Horizontal {
    double azimut = 0, altura = 0;
};

class Escena {
public:
    explicit Escena(const Catalogos& c) : c_(c), planetas_(c.TablaPlanetas) {
        // What every sample shares: the sky of the date, the horizon, the
        // Sun, the Moon and the planets, and the daylight colour.
        e.Precesion = true;
        e.Capas.Horiz = 1;
        e.Capas.LuzDi = 1;
        e.NivelEstrellas = 5;
        e.NivelConstelaciones = 4;  // every figure
        e.IdConstelaciones = 2;     // Spanish names
        e.PanelCursor = true;       // the coordinates under the mouse
        e.Marcar = true;
    }

    // A listed place, as the location form chooses it (its zone is set apart).
    void Lugar(int indice) { EligeLugar(e, c_, indice, false); }

    // A place not in the table: its own coordinates and text, with the
    // nearest listed place selected in the places list.
    void LugarPropio(const std::string& texto, double longitudOeste, double latitud) {
        FijaPuntoPropio(e, c_, longitudOeste, latitud);
        e.TextoLugar = texto;
    }

    void Zona(float horas, bool verano) {
        Observador o = ObservadorDe(e);
        o.ZonaHoraria = horas;
        o.HorarioVerano = verano;
        FijaLugar(e, planetas_, o);
    }

    // An instant in Universal Time.
    void Fecha(int ano, int mes, int dia, int hora, int minuto) {
        FijaJuliana(FechaAJuliana(ArmaCadenaFecha(ano, mes, dia, hora, minuto)));
    }

    void FijaJuliana(double jd) {
        FijaFechaJuliana(e, planetas_, jd);
    }

    // The direction of a body (1..9 planets, 10 Sun, 11 Moon) at the
    // state's instant, as the sky picture places it.
    Vector3f Cuerpo(int indice) {
        if (indice == 11) {
            HallaLuna(e);
        } else if (indice == 10) {
            HallaSolAparente(e);
        } else {
            HallaPlaneta(e, planetas_, static_cast<int16_t>(indice));
        }
        const PosicionCuerpo& p = e.Planetas[static_cast<std::size_t>(indice)];
        return AngulosAVector(p.AscRecta, p.Declinacion);
    }

    // A catalogue direction (right ascension in hours, declination in
    // degrees, J2000) carried to the date as the picture carries it.
    Vector3f Catalogo(double horas, double grados) {
        Vector3f v = AngulosAVector(horas * 15 * GRADO, grados * GRADO);
        AplicaPrecesion(e, v);
        return v;
    }

    Horizontal Donde(const Vector3f& v) {
        Vector3f h = EcuatorialAHorizontal(e, v);  // x west, y north, z zenith
        Horizontal r;
        r.azimut = std::atan2(-double{h.x}, double{h.y});
        if (r.azimut < 0) r.azimut += 2 * PI;
        r.altura = std::asin(std::fmax(-1.0, std::fmin(1.0, double{h.z})));
        return r;
    }

    void Mira(const Vector3f& v, float zoom) {
        Horizontal h = Donde(v);
        Mira(h.azimut, h.altura, zoom);
    }

    void Mira(double azimut, double altura, float zoom) {
        FijaVista(e, azimut, altura);
        FijaZoom(e, zoom);
    }

    // The minute of [desde, hasta] (Julian days) where `valor` is least,
    // left as the state's instant.
    double Minimo(double desde, double hasta, const std::function<double()>& valor) {
        double mejorJd = desde, mejor = INFINITY;
        for (double jd = desde; jd <= hasta; jd += 1.0 / 1440) {
            FijaJuliana(jd);
            double v = valor();
            if (v < mejor) {
                mejor = v;
                mejorJd = jd;
            }
        }
        FijaJuliana(mejorJd);
        return mejor;
    }

    std::string TextoInstante() {
        TextoFechaHora(e, e.FechaJuliana);
        return DesdeA1252(e.TextoFecha) + " " + DesdeA1252(e.TextoHora) + " TU";
    }

    Estado e;

private:
    const Catalogos& c_;
    const TablaPlanetas& planetas_;
};

}  // namespace vedrano::muestras
