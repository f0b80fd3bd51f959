// Spanish texts of the run-time errors that reading and writing a file can
// raise, and the message that names them.
#pragma once
#include <string>

namespace vedrano {

// Error numbers met only with files (the others are in app/ErrorEjecucion.h).
enum CodigoErrorArchivo : int {
    ErrTipoNoCoincide = 13,
    ErrIoDispositivo = 57,
    ErrDiscoLleno = 61,
    ErrPermisoDenegado = 70,
    ErrAccesoRuta = 75,
    ErrRutaNoEncontrada = 76,
    ErrValorNoValido = 380,
};

// "ERROR <modulo><numero>: <description>." in Windows-1252.
std::string TextoErrorArchivo(const char* modulo, int numero);

// The run-time error number of a C library error code (errno).
int ErrorDeSistema(int codigo);

}  // namespace vedrano
