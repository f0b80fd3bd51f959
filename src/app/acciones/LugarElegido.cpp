#include "app/acciones/LugarElegido.h"

#include <cctype>
#include <cmath>
#include <span>

#include "app/base/Constantes.h"
#include "catalogue/ArchivoRegistros.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Tiempo.h"

namespace vedrano {

namespace {

bool EsEspanol(const std::string& nombre) {
    // The country code stands in brackets after the 15 characters of name.
    std::string codigo = nombre.size() >= 19 ? nombre.substr(16, 3) : std::string();
    for (char& ch : codigo) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    return codigo == "ESP";
}

double Distancia(double lon1, double lat1, double lon2, double lat2) {
    double c = std::sin(lat1) * std::sin(lat2) + std::cos(lat1) * std::cos(lat2) * std::cos(lon1 - lon2);
    return std::acos(std::fmax(-1.0, std::fmin(1.0, c)));
}

}  // namespace

float ZonaPropuesta(Estado& e, const std::string& nombre) {
    double zona = std::floor((std::abs(GradosLongitud(e.Longitud)) + 22.5) / 15.0) - 1.0;
    if (e.Longitud < PI) zona = -zona;
    if (EsEspanol(nombre)) {
        zona = 1.0;
        if (e.Longitud > 0.19 && e.Longitud < 6.0) zona = 0.0;
    }
    return zona == 0.0 ? 0.0f : static_cast<float>(zona);
}

std::string TextoLugarCiudad(const std::string& nombre) {
    std::string n = nombre.substr(0, std::min<std::size_t>(15, nombre.size()));
    while (!n.empty() && n.back() == ' ') n.pop_back();
    return nombre.size() > 15 ? n + " " + nombre.substr(15) : n;
}

bool EligeLugar(Estado& e, const Catalogos& c, int i, bool restaurando) {
    if (i < 0 || i >= N_CIUDADES || static_cast<std::size_t>(i) >= c.TablaCiudades.size()) return false;
    const Ciudad& lugar = c.TablaCiudades[static_cast<std::size_t>(i)];
    e.IndiceLugar = static_cast<int16_t>(i);
    e.Longitud = lugar.Longitud;
    e.Latitud = lugar.Latitud;
    const std::string nombre = lugar.Nombre.texto();
    if (!restaurando) {
        e.TextoLugar = TextoLugarCiudad(nombre);
        e.ZonaHoraria = ZonaPropuesta(e, nombre);
    }
    ActualizaLugar(e, c.TablaPlanetas);
    return true;
}

std::vector<Ciudad> LeeLugares(const std::string& dirDatos) {
    std::vector<Ciudad> lugares(N_CIUDADES);
    ArchivoRegistros f;
    f.Abre(dirDatos + "VDRDATH.DAT", LARGO_CIUDAD);
    f.Lee(1, std::span<Ciudad>(lugares));
    f.Cierra();
    return lugares;
}

int LugarCercano(const std::vector<Ciudad>& lugares, double longitudOeste, double latitud) {
    std::size_t cercano = 0;
    for (std::size_t i = 1; i < lugares.size(); ++i)
        if (Distancia(longitudOeste, latitud, lugares[i].Longitud, lugares[i].Latitud) <
            Distancia(longitudOeste, latitud, lugares[cercano].Longitud, lugares[cercano].Latitud))
            cercano = i;
    return static_cast<int>(cercano);
}

void FijaPuntoPropio(Estado& e, const Catalogos& c, double longitudOeste, double latitud) {
    e.IndiceLugar = static_cast<int16_t>(LugarCercano(c.TablaCiudades, longitudOeste, latitud));
    e.Longitud = longitudOeste;
    e.Latitud = latitud;
    e.TextoLugar = "Lugar propio";
    e.ZonaHoraria = ZonaPropuesta(e, std::string());
    ActualizaLugar(e, c.TablaPlanetas);
}

double GradosOeste(double longitud) {
    return (longitud > PI ? longitud - DOS_PI : longitud) * RAD_A_GRADOS;
}

double LongitudDesdeGrados(double gradosOeste) {
    double r = gradosOeste * GRADO;
    return r < 0 ? r + DOS_PI : r;
}

}  // namespace vedrano
