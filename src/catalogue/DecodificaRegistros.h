// One decoder per record type, field by field in file order. Every file of
// the same record (the deep-sky objects and clusters, the figures and the
// boundaries, the quasars, pulsars and black holes) goes through the same
// decoder. A record shorter than its length reads blank past its end.
#pragma once
#include <string_view>

#include "catalogue/Catalogos.h"

namespace vedrano {

// Record lengths in bytes.
inline constexpr std::size_t LARGO_CIUDAD = 28, LARGO_MESSIER = 66, LARGO_CONSTELACION = 94,
                             LARGO_PUNTO_TRAZO = 14, LARGO_PROFUNDO = 28, LARGO_ESTRELLA_NOMBRE = 44,
                             LARGO_ESTRELLA = 18, LARGO_PUNTO_CIELO = 12, LARGO_EXOTICO = 32,
                             LARGO_CUENTAS = 16;

void Decodifica(std::string_view r, Ciudad& d);
void Decodifica(std::string_view r, ElementosPlaneta& d);
void Decodifica(std::string_view r, ObjetoMessier& d);
void Decodifica(std::string_view r, Constelacion& d);
void Decodifica(std::string_view r, PuntoTrazo& d);
void Decodifica(std::string_view r, ObjetoProfundo& d);
void Decodifica(std::string_view r, EstrellaNombre& d);
void Decodifica(std::string_view r, Estrella& d);
void Decodifica(std::string_view r, ObjetoExotico& d);
void Decodifica(std::string_view r, Vector3f& d);     // a sky point: three Singles
void Decodifica(std::string_view r, TablaCuentas& d);  // eight Integers

}  // namespace vedrano
