#include "cli/ComandoCalcula.h"

#include <QFile>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "astro/PrecisionAlta.h"
#include "astro/Calendario.h"
#include "astro/Coordenadas.h"
#include "astro/Planetas.h"
#include "astro/Precesion.h"
#include "astro/Sidereo.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Astros.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "catalogue/TablaPlanetas.h"
#include "cli/CarpetaDatos.h"
#include "sky/proyeccion/Proyeccion.h"

namespace vedrano {

namespace {

// A malformed line: reported as "ERROR sintaxis: " and the reason.
struct ErrorSintaxis {
    std::string motivo;
};

struct Token {
    std::string texto;
    bool entrecomillado = false;
};

std::vector<Token> Trocea(std::string_view linea) {
    std::vector<Token> tokens;
    std::size_t i = 0;
    while (i < linea.size()) {
        char c = linea[i];
        if (c == ' ' || c == '\t' || c == '\r') {
            ++i;
            continue;
        }
        Token t;
        if (c == '"') {
            t.entrecomillado = true;
            ++i;
            bool cerrado = false;
            while (i < linea.size()) {
                if (linea[i] == '"') {
                    if (i + 1 < linea.size() && linea[i + 1] == '"') {
                        t.texto += '"';
                        i += 2;
                        continue;
                    }
                    ++i;
                    cerrado = true;
                    break;
                }
                t.texto += linea[i++];
            }
            if (!cerrado) throw ErrorSintaxis{"falta la comilla de cierre"};
            if (i < linea.size() && linea[i] != ' ' && linea[i] != '\t' && linea[i] != '\r')
                throw ErrorSintaxis{"texto mal cerrado"};
        } else {
            while (i < linea.size() && linea[i] != ' ' && linea[i] != '\t' && linea[i] != '\r')
                t.texto += linea[i++];
        }
        tokens.push_back(std::move(t));
    }
    return tokens;
}

// The arguments of one operation, read in order with their types.
class Argumentos {
public:
    Argumentos(std::vector<Token> t, std::size_t esperados) : t_(std::move(t)) {
        if (t_.size() != esperados)
            throw ErrorSintaxis{"se esperaban " + std::to_string(esperados) + " argumentos y hay " +
                                std::to_string(t_.size())};
    }
    double D() {
        const Token& t = Siguiente();
        double v = 0;
        const char* fin = t.texto.data() + t.texto.size();
        auto [p, ec] = std::from_chars(t.texto.data(), fin, v);
        if (t.entrecomillado || ec != std::errc() || p != fin || !std::isfinite(v))
            throw ErrorSintaxis{"número no válido: " + t.texto};
        return v;
    }
    float F() {
        double v = D();
        float f = static_cast<float>(v);
        if (std::isinf(f)) throw ErrorEjecucion(ErrDesbordamiento);
        return f;
    }
    int16_t I() {
        double v = D();
        if (v != std::floor(v)) throw ErrorSintaxis{"se esperaba un entero: " + t_[i_ - 1].texto};
        if (v < -32768 || v > 32767) throw ErrorEjecucion(ErrDesbordamiento);
        return static_cast<int16_t>(v);
    }
    bool B() {
        int16_t v = I();
        if (v != 0 && v != -1) throw ErrorSintaxis{"un valor lógico es -1 o 0"};
        return v == -1;
    }
    std::string T() {
        const Token& t = Siguiente();
        if (!t.entrecomillado) throw ErrorSintaxis{"se esperaba un texto entre comillas"};
        return A1252(t.texto);
    }

private:
    const Token& Siguiente() { return t_[i_++]; }
    std::vector<Token> t_;
    std::size_t i_ = 0;
};

// One result line, built piece by piece.
class Resultado {
public:
    Resultado& D(double v) { return Pon("%.17g", v); }
    Resultado& F(float v) { return Pon("%.9g", static_cast<double>(v)); }
    Resultado& I(long v) {
        Separa();
        linea_ += std::to_string(v);
        return *this;
    }
    Resultado& B(bool v) { return I(v ? -1 : 0); }
    Resultado& T(std::string_view cp1252) {
        Separa();
        linea_ += '"';
        for (char c : DesdeA1252(cp1252)) {
            if (c == '"') linea_ += '"';
            linea_ += c;
        }
        linea_ += '"';
        return *this;
    }
    const std::string& linea() const { return linea_; }

private:
    Resultado& Pon(const char* formato, double v) {
        char buf[48];
        std::snprintf(buf, sizeof buf, formato, v);
        Separa();
        linea_ += buf;
        return *this;
    }
    void Separa() {
        if (!linea_.empty()) linea_ += ' ';
    }
    std::string linea_;
};

class Calculadora {
public:
    Calculadora(std::string dirDatos, bool precisionAlta) : dirDatos_(std::move(dirDatos)) {
        Registra();
        if (precisionAlta) RegistraPrecisionAlta();
    }

    std::string Ejecuta(std::string_view linea) {
        try {
            std::vector<Token> tokens = Trocea(linea);
            if (tokens.front().entrecomillado) throw ErrorSintaxis{"falta el nombre de la operación"};
            std::string nombre = tokens.front().texto;
            auto op = operaciones_.find(nombre);
            if (op == operaciones_.end()) throw ErrorSintaxis{"operación desconocida: " + nombre};
            tokens.erase(tokens.begin());
            Argumentos args(std::move(tokens), op->second.aridad);
            Estado e;  // every line starts from a fresh state
            Resultado r;
            op->second.ejecuta(args, e, r);
            return r.linea();
        } catch (const ErrorSintaxis& s) {
            return "ERROR sintaxis: " + s.motivo;
        } catch (const ErrorEjecucion& err) {
            return "ERROR " + std::to_string(err.numero());
        }
    }

private:
    struct Operacion {
        std::size_t aridad;
        std::function<void(Argumentos&, Estado&, Resultado&)> ejecuta;
    };

    const TablaPlanetas& Planetas() {
        if (!cargada_) {
            // A missing file is reported on every line that needs it.
            LeeTablaPlanetas(dirDatos_ + "VDRDATF.DAT", planetas_);
            cargada_ = true;
        }
        return planetas_;
    }

    void Registra() {
        auto& o = operaciones_;
        o["EsBisiesto"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.B(EsBisiesto(a.I())); }};
        o["FechaAJuliana"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.D(FechaAJuliana(a.T())); }};
        o["ArmaCadenaFecha"] = {5, [](Argumentos& a, Estado&, Resultado& r) {
            FechaCalendario f;
            f.Ano = a.I();
            f.Mes = a.I();
            f.Dia = a.I();
            f.Hora = a.I();
            f.Minuto = a.I();
            r.T(ArmaCadenaFecha(f));
        }};
        o["JulianaAFecha"] = {1, [](Argumentos& a, Estado&, Resultado& r) {
            FechaCalendario f = JulianaAFecha(a.D());
            r.I(f.Ano).I(f.Mes).I(f.Dia).I(f.Hora).I(f.Minuto).D(f.Fraccion);
        }};
        o["TextoFechaHora"] = {2, [](Argumentos& a, Estado& e, Resultado& r) {
            double jd = a.D();
            e.FormatoHora = a.I();
            TextoFechaHora(e, jd);
            r.T(e.TextoFecha).T(e.TextoHora);
        }};
        o["AvanzaTiempo"] = {4, [this](Argumentos& a, Estado& e, Resultado& r) {
            FijaFechaJuliana(e, vacia_, a.D());
            e.PasoUnidad = a.I();
            e.PasoCantidad = a.I();
            int16_t signo = a.I();
            if (signo != 1 && signo != -1) throw ErrorSintaxis{"el signo es 1 o -1"};
            FijaPaso(e, signo);
            // The step itself needs no elements; the refresh after it runs
            // on an empty table.
            AvanzaTiempo(e, vacia_);
            r.D(e.FechaJuliana);
        }};
        o["HallaTiempoSidereo"] = {4, [this](Argumentos& a, Estado&, Resultado& r) {
            double jd = a.D();
            Observador o;
            o.Longitud = a.D();
            o.ZonaHoraria = a.F();
            o.HorarioVerano = a.B();
            r.D(TiempoSidereoLocal(jd, o, Planetas()[3]));
        }};
        o["HallaSol"] = {1, [this](Argumentos& a, Estado&, Resultado& r) {
            double jd = a.D();
            PosicionSol s = HallaSol(jd, Planetas()[3]);
            const PosicionCuerpo& t = s.tierra;
            r.D(t.LongGeo).D(t.AscRecta).D(t.Declinacion).F(t.x).F(t.y).F(t.z).D(s.sol.SolX).D(s.sol.SolZ);
        }};
        o["HallaSolAparente"] = {1, [this](Argumentos& a, Estado&, Resultado& r) {
            double jd = a.D();
            PosicionCuerpo s = HallaSolAparente(HallaSol(jd, Planetas()[3]).tierra);
            r.D(s.AscRecta).D(s.Declinacion).F(s.x).F(s.y).F(s.z);
        }};
        o["HallaPlaneta"] = {2, [this](Argumentos& a, Estado&, Resultado& r) {
            int16_t indice = a.I();
            double jd = a.D();
            const TablaPlanetas& t = Planetas();
            if (indice < 0 || indice > 11) throw ErrorEjecucion(ErrSubindice);
            PosicionCuerpo p = HallaPlaneta(jd, t[static_cast<std::size_t>(indice)], HallaSol(jd, t[3]).sol);
            r.D(p.LongGeo).D(p.AscRecta).D(p.Declinacion);
        }};
        o["HallaLuna"] = {2, [](Argumentos& a, Estado&, Resultado& r) {
            double jd = a.D();
            PosicionCuerpo p = HallaLuna(jd, a.D());
            r.D(p.AscRecta).D(p.Declinacion);
        }};
        o["HallaPrecesion"] = {1, [](Argumentos& a, Estado&, Resultado& r) {
            AngulosPrecesion p = HallaPrecesion(a.D());
            r.D(p.zeta).D(p.z).D(p.theta);
        }};
        o["AplicaPrecesion"] = {4, [](Argumentos& a, Estado&, Resultado& r) {
            double jd = a.D();
            Vector3f v{a.F(), a.F(), a.F()};
            v = Rota(MatrizPrecesion(HallaPrecesion(jd)).m, v);
            r.F(v.x).F(v.y).F(v.z);
        }};
        o["EcuatorialAHorizontal"] = {5, [](Argumentos& a, Estado&, Resultado& r) {
            double sidereo = a.D();
            double latitud = a.D();
            Vector3f v{a.F(), a.F(), a.F()};
            Vector3f h = EcuatorialAHorizontal(HallaRotacionHorizonte(sidereo, latitud), v);
            r.F(h.x).F(h.y).F(h.z);
        }};
        o["ArcoTangente"] = {2, [](Argumentos& a, Estado&, Resultado& r) {
            double y = a.D();
            r.D(ArcoTangente(y, a.D()));
        }};
        o["AngulosAVector"] = {2, [](Argumentos& a, Estado&, Resultado& r) {
            double ang = a.D();
            Vector3f v = AngulosAVector(ang, a.D());
            r.F(v.x).F(v.y).F(v.z);
        }};
        o["VectorAAngulos"] = {3, [](Argumentos& a, Estado&, Resultado& r) {
            Vector3f v{a.F(), a.F(), a.F()};
            double ang = 0, dec = 0;
            VectorAAngulos(v, ang, dec);
            r.D(ang).D(dec);
        }};
        o["EclipticaAEcuatorial"] = {1, [](Argumentos& a, Estado&, Resultado& r) {
            double ar = 0, dec = 0;
            EclipticaAEcuatorial(a.D(), ar, dec);
            r.D(ar).D(dec);
        }};
        o["TextoSexagesimal"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.T(TextoSexagesimal(a.D())); }};
        o["TextoLatitud"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.T(TextoLatitud(a.D())); }};
        o["TextoLongitud"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.T(TextoLongitud(a.D())); }};
        o["TextoHoras"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.T(TextoHoras(a.F())); }};
        o["TextoDireccion"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.T(TextoDireccion(a.D())); }};
        o["TextoGrados"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.T(TextoGrados(a.D())); }};
        o["LeeAngulo"] = {1, [](Argumentos& a, Estado&, Resultado& r) { r.D(LeeAngulo(a.T())); }};
        o["ProyectaPunto"] = {7, [this](Argumentos& a, Estado& e, Resultado& r) {
            LeeVista(a, e);
            Vector3f v{a.F(), a.F(), a.F()};
            PuntoProyectado p = ProyectaPunto(e, v);
            r.F(p.X).F(p.Y).F(p.Z);
        }};
        o["PuntoACielo"] = {6, [this](Argumentos& a, Estado& e, Resultado& r) {
            LeeVista(a, e);
            float X = a.F(), Y = a.F();
            double ar = 0, dec = 0;
            float alt = 0, az = 0;
            PuntoACielo(e, X, Y, ar, dec, alt, az);
            r.D(ar).D(dec).F(alt).F(az);
        }};
        o["Umbral"] = {2, [](Argumentos& a, Estado& e, Resultado& r) {
            const float zoom = a.F();
            FijaOrientacion(e, a.I());
            FijaZoom(e, zoom);  // a fresh state: the scale without a picture
            r.F(e.Umbral);
        }};
    }

    // The precise model's own operation: the geocentric apparent place of
    // body 1..11 (not the Earth) at a Julian day in UT.
    void RegistraPrecisionAlta() {
        operaciones_["LugarAparente"] = {2, [](Argumentos& a, Estado&, Resultado& r) {
            int16_t cuerpo = a.I();
            double jd = a.D();
            if (cuerpo < 1 || cuerpo > 11 || cuerpo == 3) throw ErrorEjecucion(ErrSubindice);
            LugarPreciso l = LugarAparente(cuerpo, jd);
            r.D(l.ar).D(l.dec);
        }};
    }

    // The sidereal time is given as it stands, not derived from the place:
    // it is set after the place's refresh.
    void LeeVista(Argumentos& a, Estado& e) const {
        const double sidereo = a.D();
        Observador o = ObservadorDe(e);
        o.Latitud = a.D();
        FijaLugar(e, vacia_, o);
        FijaTiempoSidereo(e, sidereo);
        const double direccion = a.D();
        FijaVista(e, direccion, a.D());
        e.Precesion = false;
    }

    std::string dirDatos_;
    std::map<std::string, Operacion> operaciones_;
    TablaPlanetas planetas_{}, vacia_{};
    bool cargada_ = false;
};

}  // namespace

void Calcula(std::istream& entrada, std::ostream& salida, const std::string& dirDatos, bool precisionAlta) {
    Calculadora calc(dirDatos, precisionAlta);
    std::string linea;
    while (std::getline(entrada, linea)) {
        std::size_t p = linea.find_first_not_of(" \t\r");
        if (p == std::string::npos || linea[p] == '#') continue;
        salida << calc.Ejecuta(linea) << '\n' << std::flush;
        if (!salida) return;  // nobody reads the rest
    }
}

int ComandoCalcula(const OpcionesCli& o) {
    // Without the data folder the calculator still answers every line (the
    // operations that need orbital elements with "ERROR 53"), but the run
    // as a whole has failed.
    std::optional<std::string> dirDatos = CarpetaDatos(o.datos, "calcula");
    const std::string carpeta = dirDatos ? *dirDatos : QFile::encodeName(o.datos).toStdString() + "/";
    Calcula(std::cin, std::cout, carpeta, o.precisionAlta);
    if (!std::cout) {
        std::cerr << "vedrano-cli calcula: no se puede escribir el resultado en la salida estándar\n";
        return 1;
    }
    return dirDatos ? 0 : 1;
}

}  // namespace vedrano
