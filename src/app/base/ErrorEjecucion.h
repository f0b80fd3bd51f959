// Run-time errors that the program traps or ignores, carrying the classic
// run-time error number so that messages can name it ("ERROR CTA53", ...).
#pragma once
#include <stdexcept>
#include <string>

namespace vedrano {

// Every run-time error number the program raises or names.
enum CodigoError : int {
    ErrArgumentoInvalido = 5,   // invalid procedure call or argument
    ErrDesbordamiento = 6,      // overflow
    ErrSubindice = 9,           // subscript out of range
    ErrDivisionCero = 11,       // division by zero
    ErrNombreArchivo = 52,      // bad file name or number
    ErrArchivoNoExiste = 53,    // file not found
    // Met only when reading or writing a file (texts in config/ErroresArchivo.h).
    ErrFinDeArchivo = 62,       // input past the end of a file
    ErrTipoNoCoincide = 13,     // type mismatch
    ErrIoDispositivo = 57,      // device I/O error
    ErrDiscoLleno = 61,         // disk full
    ErrPermisoDenegado = 70,    // permission denied
    ErrAccesoRuta = 75,         // path/file access error
    ErrRutaNoEncontrada = 76,   // path not found
    ErrValorNoValido = 380,     // invalid property value
};

class ErrorEjecucion : public std::runtime_error {
public:
    explicit ErrorEjecucion(int numero)
        : std::runtime_error("error de ejecución " + std::to_string(numero)), numero_(numero) {}
    int numero() const noexcept { return numero_; }

private:
    int numero_;
};

}  // namespace vedrano
