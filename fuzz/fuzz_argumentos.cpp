// The command lines of vedrano-cli and of the window program: the input is
// the arguments after the program's name, separated by zero bytes.
// Promise: a line is either run or refused with a code and a text, and a
// refused line always says why.
#include <QStringList>

#include "cli/Argumentos.h"
#include "fuzz/Objetivo.h"

using namespace vedrano;

extern "C" int LLVMFuzzerInitialize(int*, char***) { return 0; }

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    QStringList argumentos{QStringLiteral("vedrano-cli")};
    const char* p = reinterpret_cast<const char*>(datos);
    const char* fin = p + largo;
    while (p < fin) {
        const char* cero = p;
        while (cero < fin && *cero != '\0') ++cero;
        argumentos << QString::fromUtf8(p, static_cast<qsizetype>(cero - p));
        p = cero + 1;
    }
    for (const AnalisisCli& a : {AnalizaArgumentos(argumentos), AnalizaArgumentosVentana(argumentos)}) {
        if (a.terminar && a.codigo != 0 && a.error.empty()) fuzz::Incumple("una línea rechazada dice por qué");
        if (!a.terminar && (a.opciones.ancho < 16 || a.opciones.alto < 16)) fuzz::Incumple("tamaños válidos");
    }
    return 0;
}
