// The parts of start-up that need no window: where the program keeps its
// files (with a private working folder when the installation cannot be
// written) and the check of the screen's width.
#pragma once
#include <string>

#include "app/estado/Estado.h"
#include "app/base/InterfazMensajes.h"
#include "platform/Pantalla.h"

namespace vedrano {

// The fourteen sample configurations: the name under the installation's
// Archivo/ folder and the name given to the copy. The third pair differs on
// purpose ("Cúmula" read, "Cúmulo" written). Names are UTF-8, as the file
// system has them.
struct MuestraConfiguracion {
    const char* origen;
    const char* copia;
};
extern const MuestraConfiguracion MUESTRAS[14];

// Sets DirPrograma (the installation folder, ending in '/'), DirArchivo and
// DirDatos. When a probe file "CSCD.WRK" cannot be created there, the
// program works in carpetaSistema + "Temp/Qrx/" instead (SoloLectura), and,
// when no "Inicial.ls1" stands in that folder itself, copies the fourteen
// samples into its Archivo/ folder. Catalogues are always read from the
// installation's Datos/. Errors while creating folders or copying are
// ignored: a sample that could not be copied simply is not offered.
void PreparaCarpetas(Estado& e, const std::string& carpetaPrograma, const std::string& carpetaSistema);

// Checks that the screen is at least 800 pixels wide; otherwise asks
// whether to switch to 800x600 and reports what happened. Returns false
// when the user chose to leave the program.
bool CompruebaPantalla(plataforma::Pantalla& p, InterfazMensajes& m);

}  // namespace vedrano
