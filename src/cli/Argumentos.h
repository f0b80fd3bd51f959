// The command line of vedrano-cli: the order, its options and what to say
// when the line asks for help or is wrong.
#pragma once
#include <QString>
#include <QStringList>
#include <string>

namespace vedrano {

enum class Orden { Calcula, Configuracion, Lista, Dibuja };

// What a valid command line asks for. Paths stay as the system gave them.
struct OpcionesCli {
    Orden orden = Orden::Calcula;
    QString datos;      // --datos: the catalogue folder (empty: the program's own)
    QString config;     // dibuja --config
    QString salida;     // dibuja --salida
    int ancho = 1024, alto = 768;
    QString lee, escribe, muestras;  // configuracion
    QString categoria;  // lista: the words of the category, joined by blanks
    bool precisionAlta = false;  // calcula, dibuja: --precision alta
};

// The outcome of reading the command line. When `terminar` is set the
// program ends at once with `codigo`, writing `salida` to standard output
// (help, version) and `error` to standard error; otherwise it runs the
// order in `opciones`.
struct AnalisisCli {
    bool terminar = false;
    int codigo = 0;
    std::string salida, error;
    OpcionesCli opciones;
};

// Reads `argumentos` (the program's name first, as argv gives it) with
// QCommandLineParser: "--opción valor" and "--opción=valor", --help and -h
// (general or of one order), --version. Needs no application object. A
// wrong line gives code 2 and a Spanish text naming the option.
AnalisisCli AnalizaArgumentos(const QStringList& argumentos);

// The command line of the window program: "vedrano [ARCHIVO.ls1]", with
// --help and --version. `terminar`, `codigo`, `salida` and `error` as
// above; `opciones.config` is the configuration to start with (empty: the
// working folder's "Inicial.ls1"). Qt's own options (-platform...) are
// taken out by QApplication before this sees the list.
AnalisisCli AnalizaArgumentosVentana(const QStringList& argumentos);

// The arguments of main() as Qt strings, decoded as the system encodes
// file names.
QStringList ArgumentosDe(int argc, char** argv);

}  // namespace vedrano
