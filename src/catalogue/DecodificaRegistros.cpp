#include "catalogue/DecodificaRegistros.h"

namespace vedrano {

namespace {

Vector3f Direccion(LectorCampos& l) {
    Vector3f v;
    v.x = l.Simple();
    v.y = l.Simple();
    v.z = l.Simple();
    return v;
}

}  // namespace

void Decodifica(std::string_view r, Ciudad& d) {
    LectorCampos l(r);
    d.Nombre = l.Texto<20>();
    d.Longitud = l.Simple();
    d.Latitud = l.Simple();
}

void Decodifica(std::string_view r, ElementosPlaneta& d) { d = DecodificaPlaneta(r); }

void Decodifica(std::string_view r, ObjetoMessier& d) {
    LectorCampos l(r);
    d.Clase = l.Texto<1>();
    d.Numero = l.Texto<6>();
    d.AR = l.Simple();
    d.DEC = l.Simple();
    d.Magnitud = l.Texto<4>();
    d.Tipo = l.Texto<20>();
    d.Nombre = l.Texto<15>();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, Constelacion& d) {
    LectorCampos l(r);
    d.Nivel = l.Entero();
    d.Abreviatura = l.Texto<3>();
    d.NombreLatino = l.Texto<20>();
    d.Genitivo = l.Texto<20>();
    d.NombreCastellano = l.Texto<20>();
    d.Visible = l.Texto<9>();
    d.AR = l.Simple();
    d.DEC = l.Simple();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, PuntoTrazo& d) {
    LectorCampos l(r);
    d.Pluma = l.Entero();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, ObjetoProfundo& d) {
    LectorCampos l(r);
    d.Designacion = l.Texto<6>();
    d.AR = l.Simple();
    d.DEC = l.Simple();
    d.Clase = l.Entero();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, EstrellaNombre& d) {
    LectorCampos l(r);
    d.Designacion = l.Texto<8>();
    d.Nombre = l.Texto<10>();
    d.AR = l.Simple();
    d.DEC = l.Simple();
    d.Magnitud = l.Simple();
    d.Tipo = l.Entero();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, Estrella& d) {
    LectorCampos l(r);
    d.Magnitud = l.Simple();
    d.Tipo = l.Entero();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, ObjetoExotico& d) {
    LectorCampos l(r);
    d.Nombre = l.Texto<12>();
    d.AR = l.Simple();
    d.DEC = l.Simple();
    d.Direccion = Direccion(l);
}

void Decodifica(std::string_view r, Vector3f& d) {
    LectorCampos l(r);
    d = Direccion(l);
}

void Decodifica(std::string_view r, TablaCuentas& d) {
    LectorCampos l(r);
    for (int16_t& v : d) v = l.Entero();
}

}  // namespace vedrano
