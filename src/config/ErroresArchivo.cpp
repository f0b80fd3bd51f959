#include "config/ErroresArchivo.h"

#include <cerrno>

#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"

namespace vedrano {

namespace {

const char* Descripcion(int numero) {
    switch (numero) {
        case ErrDesbordamiento: return "Desbordamiento: un número no cabe en su tipo";
        case ErrSubindice: return "Subíndice fuera del intervalo";
        case ErrTipoNoCoincide: return "Un dato no es del tipo esperado";
        case ErrNombreArchivo: return "Nombre de archivo erróneo";
        case ErrArchivoNoExiste: return "No existe el archivo";
        case ErrIoDispositivo: return "Error de entrada o salida en el dispositivo";
        case ErrDiscoLleno: return "El disco está lleno";
        case ErrFinDeArchivo: return "Faltan datos: el archivo termina antes de tiempo";
        case ErrPermisoDenegado: return "Permiso denegado";
        case ErrAccesoRuta: return "Error de acceso a la ruta o al archivo";
        case ErrRutaNoEncontrada: return "No se encuentra la carpeta";
        case ErrValorNoValido: return "Valor fuera de los admitidos";
        default: return "Error inesperado";
    }
}

}  // namespace

std::string TextoErrorArchivo(const char* modulo, int numero) {
    return A1252(std::string("ERROR ") + modulo + std::to_string(numero) + ": " + Descripcion(numero) + ".");
}

int ErrorDeSistema(int codigo) {
    switch (codigo) {
        case ENOENT: return ErrRutaNoEncontrada;
        case EACCES:
        case EPERM:
        case EROFS: return ErrPermisoDenegado;
        case ENOSPC:
        case EFBIG:  // past the largest file allowed: no room either
#ifdef EDQUOT
        case EDQUOT:
#endif
            return ErrDiscoLleno;
        case EIO: return ErrIoDispositivo;
        case ENAMETOOLONG:
        case EINVAL: return ErrNombreArchivo;
        default: return ErrAccesoRuta;
    }
}

}  // namespace vedrano
