#include "cli/MuestrasConfiguracion.h"

#include <cmath>
#include <iomanip>
#include <iostream>
#include <memory>
#include <ostream>
#include <sstream>
#include <vector>

#include "app/base/ErrorEjecucion.h"
#include "catalogue/TablaPlanetas.h"
#include "cli/EscenaMuestra.h"
#include "config/EscribeConfiguracion.h"

namespace vedrano {

namespace {

using namespace muestras;

// Place indices of the places file used below.
constexpr int C_DE_MEXICO = 33, HELSINKI = 65, LOS_ANGELES = 88, MADRID = 91, INICIAL = 95;

class SinPreguntas : public InterfazMensajes {
public:
    explicit SinPreguntas(std::ostream& salida) : salida_(salida) {}
    int16_t Mensaje(const std::string& texto, const std::string&, int16_t botones, int16_t) override {
        if (botones == 1) salida_ << DesdeA1252(texto) << "\n";
        return -1;  // the samples replace the files of the same name
    }

private:
    std::ostream& salida_;
};

std::string Num(double v, int decimales) {
    std::ostringstream s;
    s << std::fixed << std::setprecision(decimales) << v;
    return s.str();
}

Vector3f Centro(const std::vector<Vector3f>& v) {
    double x = 0, y = 0, z = 0;
    for (const auto& p : v) {
        x += p.x;
        y += p.y;
        z += p.z;
    }
    double n = std::sqrt(x * x + y * y + z * z);
    return {static_cast<float>(x / n), static_cast<float>(y / n), static_cast<float>(z / n)};
}

double Dispersion(const std::vector<Vector3f>& v) {
    double m = 0;
    for (std::size_t i = 0; i < v.size(); ++i)
        for (std::size_t j = i + 1; j < v.size(); ++j) m = std::fmax(m, Angulo(v[i], v[j]));
    return m;
}

// The eclipse at its greatest as the picture shows it: the minute, within
// two hours of the local maximum given, where the Sun (clear of the horizon
// line, 2 degrees up) and the Moon come closest. The short lunar series
// puts that minute up to an hour and a half before the true maximum.
std::string Eclipse(Escena& s, int ano, int mes, int dia, int hora, int minuto) {
    s.Fecha(ano, mes, dia, hora, minuto);
    double centro = s.e.FechaJuliana;
    double separacion = s.Minimo(centro - 2.0 / 24, centro + 2.0 / 24, [&] {
        Vector3f sol = s.Cuerpo(10);
        return s.Donde(sol).altura > 2 * GRADO ? Angulo(sol, s.Cuerpo(11)) : INFINITY;
    });
    Vector3f sol = s.Cuerpo(10);
    s.Mira(sol, 12);
    return "Sol y Luna a " + Num(Grados(separacion), 2) + " grados, Sol a " + Num(Grados(s.Donde(sol).altura), 1) +
           " grados de altura";
}

std::string Alturas(Escena& s, const std::vector<int>& cuerpos) {
    static const char* nombres[] = {"",        "Mercurio", "Venus",   "Tierra", "Marte", "Júpiter",
                                    "Saturno", "Urano",    "Neptuno", "Plutón", "Sol",   "Luna"};
    std::string r;
    for (int c : cuerpos)
        r += std::string(r.empty() ? "" : ", ") + nombres[c] + " " + Num(Grados(s.Donde(s.Cuerpo(c)).altura), 0);
    return r + " grados de altura";
}

std::string Inicial(Escena& s) {
    s.Lugar(INICIAL);
    s.Zona(1, false);
    s.Fecha(2025, 1, 25, 19, 30);
    s.e.NivelEstrellas = 5;  // to magnitude 5.5
    s.e.IdEstrellas = 0;
    s.e.Capas.ViaLa = 1;
    s.Mira(PI, 40 * GRADO, 1);
    return Alturas(s, {2, 4, 5, 6, 10});
}

std::string Constelaciones(Escena& s) {
    s.Lugar(INICIAL);
    s.Zona(1, false);
    s.Fecha(2024, 2, 10, 21, 0);
    s.e.IdEstrellas = 2;
    s.e.Capas.LimCo = 1;
    s.Mira(PI, 45 * GRADO, 1.3f);
    Horizontal orion = s.Donde(s.Catalogo(5.6036, -1.2019));  // Alnilam, the middle of the belt
    return "cinturón de Orión a " + Num(Grados(orion.altura), 0) + " grados de altura y acimut " +
           Num(Grados(orion.azimut), 0);
}

std::string CumuloVirgo(Escena& s) {
    s.Lugar(INICIAL);
    s.Zona(1, true);
    s.Fecha(2024, 4, 15, 23, 0);
    s.e.NivelEstrellas = 6;
    s.e.Capas.Galax = 1;
    s.e.NivelGalaxias = 4;
    s.e.Capas.Messi = 1;
    s.e.IdMessier = 1;
    Vector3f m87 = s.Catalogo(12.5137, 12.3911);
    s.Mira(m87, 8);
    return "M87 a " + Num(Grados(s.Donde(m87).altura), 0) + " grados de altura";
}

std::string Eclipse1990(Escena& s) {
    s.Lugar(HELSINKI);
    s.Zona(2, true);
    return Eclipse(s, 1990, 7, 22, 2, 55);
}

std::string Eclipse1991(Escena& s) {
    s.Lugar(C_DE_MEXICO);
    s.Zona(-6, false);
    return Eclipse(s, 1991, 7, 11, 19, 20);
}

std::string Eclipse2005(Escena& s) {
    s.Lugar(MADRID);
    s.Zona(1, true);
    return Eclipse(s, 2005, 10, 3, 8, 57);
}

std::string MarteRetrogrado(Escena& s) {
    s.Lugar(MADRID);
    s.Zona(1, true);
    s.Fecha(2020, 10, 3, 23, 0);
    s.Cuerpo(4);
    double antes = s.e.Planetas[4].AscRecta;
    s.Fecha(2020, 10, 23, 23, 0);
    s.Cuerpo(4);
    double despues = s.e.Planetas[4].AscRecta;
    s.Fecha(2020, 10, 13, 23, 0);  // opposition
    Vector3f marte = s.Cuerpo(4);
    s.Mira(marte, 4);
    // Day by day, so that stepping shows the loop.
    s.e.TipoPaso = 1;
    s.e.TeclaPaso = 3;
    s.e.PasoUnidad = 8;
    s.e.PasoCantidad = 1;
    s.e.Capas.Eclip = 1;
    return "ascensión recta de Marte del 3 al 23 de octubre: " + Num(Grados(despues - antes), 2) +
           " grados; Marte a " + Num(Grados(s.Donde(marte).altura), 0) + " grados de altura";
}

std::string Agrupamiento(Escena& s, const std::vector<int>& cuerpos, float zoom) {
    std::vector<Vector3f> v;
    for (int c : cuerpos) v.push_back(s.Cuerpo(c));
    s.Mira(Centro(v), zoom);
    s.e.Capas.Eclip = 1;
    return "dispersión " + Num(Grados(Dispersion(v)), 1) + " grados; " + Alturas(s, cuerpos) + "; Sol " +
           Num(Grados(s.Donde(s.Cuerpo(10)).altura), 0);
}

std::string Planetas1986(Escena& s) {
    s.Lugar(MADRID);
    s.Zona(1, false);
    s.Fecha(1986, 3, 15, 5, 0);
    return Agrupamiento(s, {4, 6, 7, 8}, 2);
}

std::string Planetas2002(Escena& s) {
    s.Lugar(MADRID);
    s.Zona(1, true);
    s.Fecha(2002, 5, 14, 20, 15);
    return Agrupamiento(s, {1, 2, 4, 5, 6}, 2);
}

std::string PlanetasInteriores(Escena& s) {
    s.Lugar(MADRID);
    s.Zona(1, true);
    s.Fecha(2005, 6, 26, 20, 30);
    return Agrupamiento(s, {1, 2}, 8);
}

std::string Pleyades(Escena& s) {
    s.Lugar(INICIAL);
    s.Zona(1, false);
    s.Fecha(2023, 11, 15, 23, 0);
    s.e.NivelEstrellas = 7;
    s.e.IdEstrellas = 2;
    s.e.Capas.Messi = 1;
    s.e.IdMessier = 2;
    Vector3f alcyone = s.Catalogo(3.7914, 24.1051);
    s.Mira(alcyone, 15);
    return "Alcíone a " + Num(Grados(s.Donde(alcyone).altura), 0) + " grados de altura";
}

std::string Pluton(Escena& s) {
    // The evening after Tombaugh found Pluto on the plates of 23 and 29
    // January 1930, taken at Flagstaff; Los Ángeles is the nearest listed place.
    s.Lugar(LOS_ANGELES);
    s.Zona(-8, false);
    s.Fecha(1930, 2, 19, 4, 0);
    s.e.NivelEstrellas = 7;
    s.e.IdEstrellas = 2;
    Vector3f pluton = s.Cuerpo(9);
    s.Mira(pluton, 12);
    Vector3f wasat = s.Catalogo(7.3354, 21.9822);  // delta Geminorum
    return "Plutón a " + Num(Grados(Angulo(pluton, wasat)), 2) + " grados de delta Gem y a " +
           Num(Grados(s.Donde(pluton).altura), 0) + " grados de altura";
}

std::string SolBisiesto(Escena& s) {
    s.Lugar(MADRID);
    s.Zona(1, false);
    s.Fecha(2024, 2, 29, 11, 0);
    double inicio = s.e.FechaJuliana;
    double altura = -s.Minimo(inicio, inicio + 3.0 / 24, [&] { return -s.Donde(s.Cuerpo(10)).altura; });
    s.Mira(s.Cuerpo(10), 2);
    s.e.Capas.Eclip = 1;
    return "mediodía verdadero, Sol a " + Num(Grados(altura), 1) + " grados de altura";
}

std::string SolMedianoche(Escena& s) {
    // Tromsø, 69° 39' N, 18° 57' E: longitude west positive as the program keeps it.
    s.LugarPropio(A1252("Tromsø (NOR)"), DOS_PI - 18.9553 * GRADO, 69.6492 * GRADO);
    s.Zona(1, true);
    s.Fecha(2023, 6, 21, 21, 0);
    double inicio = s.e.FechaJuliana;
    double altura = s.Minimo(inicio, inicio + 4.0 / 24, [&] { return s.Donde(s.Cuerpo(10)).altura; });
    s.Mira(0, 10 * GRADO, 1.5f);
    return "Sol en su punto más bajo a " + Num(Grados(altura), 1) + " grados sobre el horizonte norte";
}

struct Muestra {
    const char* archivo;  // UTF-8
    std::string (*prepara)(Escena&);
};

const Muestra MUESTRAS[] = {
    {"Inicial.ls1", Inicial},
    {"Constelaciones.ls1", Constelaciones},
    {"Cúmula de Virgo.ls1", CumuloVirgo},  // the source name; start-up copies it as "Cúmulo"
    {"Eclipse 1990.ls1", Eclipse1990},
    {"Eclipse 1991.ls1", Eclipse1991},
    {"Eclipse 2005.ls1", Eclipse2005},
    {"Marte retrógrado.ls1", MarteRetrogrado},
    {"Planetas 1986.ls1", Planetas1986},
    {"Planetas 2002.ls1", Planetas2002},
    {"Planetas Interiores.ls1", PlanetasInteriores},
    {"Pléyades.ls1", Pleyades},
    {"Plutón.ls1", Pluton},
    {"Sol bisiesto.ls1", SolBisiesto},
    {"Sol de medianoche.ls1", SolMedianoche},
};

}  // namespace

int GeneraMuestras(const std::string& carpeta, const std::string& dirDatos, std::ostream& informe) {
    // Only the places and the planets are needed.
    auto c = std::make_unique<Catalogos>();
    const char* fichero = "VDRDATH.DAT";
    try {
        c->TablaCiudades = LeeLugares(dirDatos);
        fichero = "VDRDATF.DAT";
        LeeTablaPlanetas(dirDatos + fichero, c->TablaPlanetas);
    } catch (const ErrorEjecucion& error) {
        // Samples from missing or cut data would be wrong: none is written.
        std::cerr << "vedrano-cli configuracion: ERROR " << error.numero() << " al leer " << dirDatos << fichero
                  << "\n";
        return error.numero();
    }
    SinPreguntas ui(informe);
    for (const Muestra& m : MUESTRAS) {
        Escena s(*c);
        std::string hechos = m.prepara(s);
        s.e.DirArchivo = carpeta.empty() || carpeta.back() == '/' ? carpeta : carpeta + "/";
        ResultadoConfiguracion r = EscribeConfiguracion(s.e, m.archivo, ui, false);
        if (r.error != 0) return r.error;
        informe << m.archivo << ": " << s.TextoInstante() << ", " << DesdeA1252(s.e.TextoLugar) << "; "
                << hechos << "\n";
    }
    return 0;
}

}  // namespace vedrano
