#include "app/acciones/Arranque.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "app/base/Formato.h"
#include "app/base/Texto1252.h"

namespace vedrano {

const MuestraConfiguracion MUESTRAS[14] = {
    {"Inicial.ls1", "Inicial.ls1"},
    {"Constelaciones.ls1", "Constelaciones.ls1"},
    {"Cúmula de Virgo.ls1", "Cúmulo de Virgo.ls1"},
    {"Eclipse 1990.ls1", "Eclipse 1990.ls1"},
    {"Eclipse 1991.ls1", "Eclipse 1991.ls1"},
    {"Eclipse 2005.ls1", "Eclipse 2005.ls1"},
    {"Marte retrógrado.ls1", "Marte retrógrado.ls1"},
    {"Planetas 1986.ls1", "Planetas 1986.ls1"},
    {"Planetas 2002.ls1", "Planetas 2002.ls1"},
    {"Planetas Interiores.ls1", "Planetas Interiores.ls1"},
    {"Pléyades.ls1", "Pléyades.ls1"},
    {"Plutón.ls1", "Plutón.ls1"},
    {"Sol bisiesto.ls1", "Sol bisiesto.ls1"},
    {"Sol de medianoche.ls1", "Sol de medianoche.ls1"},
};

namespace {

std::filesystem::path RutaUtf8(const char* nombre) {
    return std::filesystem::path(reinterpret_cast<const char8_t*>(nombre));
}

std::string ConBarra(std::string carpeta) {
    if (carpeta.empty() || (carpeta.back() != '/' && carpeta.back() != '\\')) carpeta += '/';
    return carpeta;
}

}  // namespace

void PreparaCarpetas(Estado& e, const std::string& carpetaPrograma, const std::string& carpetaSistema) {
    namespace fs = std::filesystem;
    e.DirPrograma = ConBarra(carpetaPrograma);
    e.DirArchivo = e.DirPrograma + "Archivo/";
    e.DirDatos = e.DirPrograma + "Datos/";
    e.SoloLectura = false;

    const fs::path sonda = fs::path(e.DirPrograma) / "CSCD.WRK";
    bool escribible = false;
    {
        std::ofstream f(sonda);
        escribible = static_cast<bool>(f);
    }
    if (escribible) {
        std::error_code ec;
        fs::remove(sonda, ec);  // error ignored: the probe is only a probe
        return;
    }

    e.SoloLectura = true;
    const std::string origen = e.DirPrograma;
    e.DirPrograma = ConBarra(carpetaSistema) + "Temp/Qrx/";
    e.DirArchivo = e.DirPrograma + "Archivo/";
    std::error_code ec;
    fs::create_directories(e.DirPrograma, ec);  // error ignored: an existing folder is fine
    fs::create_directories(e.DirArchivo, ec);   // error ignored, likewise

    // The test looks in the working folder itself while the copies go to its
    // Archivo/ folder, so the samples are copied afresh at every start.
    std::ifstream inicial(fs::path(e.DirPrograma) / "Inicial.ls1");
    if (inicial) return;
    for (const MuestraConfiguracion& m : MUESTRAS) {
        fs::copy_file(fs::path(origen) / "Archivo" / RutaUtf8(m.origen), fs::path(e.DirArchivo) / RutaUtf8(m.copia),
                      fs::copy_options::overwrite_existing, ec);  // error ignored: that sample is not offered
    }
}

bool CompruebaPantalla(plataforma::Pantalla& p, InterfazMensajes& m) {
    int ancho = p.Ancho(), alto = p.Alto();
    if (ancho >= 800) return true;
    std::string texto = A1252(
        "Este  programa  se  ha  diseñado  para  funcionar  con  una resolución mínima de pantalla de "
        "800x600 con profundidad de color de 16 bits o superior.  La resolución seleccionada actualmente "
        "es de (") +
        Formato(ancho, "@@@") + "x" + Formato(alto, "@@@") +
        A1252(").  Pulse  Aceptar  para cambiar  la  resolución  de  la  pantalla  a  800x600  o  Cancelar  "
              "para abandonar el programa.");
    if (m.Mensaje(texto, A1252("Resolución de pantalla"), 2, 6) == 0) return false;

    const std::string titulo = A1252("Cambio de resolución de pantalla");
    std::string resultado;
    if (p.PruebaCambio800x600() != 0) {
        resultado = A1252("No se puede cambiar la resolución de la pantalla.");
    } else {
        long r = p.Cambia800x600();
        if (r == 0) {
            resultado = A1252("Se ha cambiado con éxito la resolución de la pantalla a 800x600.");
        } else if (r == 1) {
            resultado = A1252("Necesita reiniciar el equipo para que los cambios tengan efecto.");
        } else {
            m.Mensaje(A1252("No se ha podido realizar el cambio de resolución de la pantalla. Inténtelo de forma manual."),
                      titulo, 1, 2);
            return true;
        }
    }
    m.Mensaje(resultado, titulo, 1, 2);
    return true;
}

}  // namespace vedrano
