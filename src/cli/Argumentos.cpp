#include "cli/Argumentos.h"

#include <QCommandLineParser>
#include <QFile>
#include <vector>

namespace vedrano {

namespace {

struct Opcion {
    const char* nombre;
    const char* valor;  // nullptr: a switch without value
    const char* ayuda;
};

struct DescripcionOrden {
    Orden orden;
    const char* nombre;
    const char* uso;       // after "vedrano-cli NAME "
    const char* resumen;   // one line for the general help
    const char* detalle;   // paragraph of its own help
    std::vector<Opcion> opciones;
};

const Opcion OPCION_DATOS{"datos", "DIR", "carpeta de los ficheros de catálogo (por omisión, la del programa)"};
const Opcion OPCION_PRECISION{"precision", "alta", "el modelo preciso del Sol, la Luna y los planetas (ERFA)"};

const std::vector<DescripcionOrden>& Ordenes() {
    static const std::vector<DescripcionOrden> ordenes = {
        {Orden::Calcula, "calcula", "[--datos DIR] [--precision alta]", "calculadora por lotes",
         "Lee operaciones de la entrada estándar, una por línea, y escribe una línea de\n"
         "resultado por operación. Las líneas en blanco y las que empiezan por # no\n"
         "producen salida. Un error de ejecución se escribe «ERROR n». Con --precision alta\n"
         "se añade la operación «LugarAparente cuerpo JD» (lugar aparente geocéntrico).\n",
         {OPCION_DATOS, OPCION_PRECISION}},
        {Orden::Configuracion, "configuracion", "--lee A.ls1 [--escribe B.ls1] | --muestras CARPETA [--datos DIR]",
         "muestra, reescribe o genera configuraciones \".ls1\"",
         "Muestra una configuración dato a dato y, si se pide, la vuelve a escribir; o\n"
         "escribe en una carpeta las catorce configuraciones de ejemplo.\n",
         {{"lee", "A.ls1", "configuración que se lee y se muestra"},
          {"escribe", "B.ls1", "fichero en que se vuelve a escribir lo leído"},
          {"muestras", "CARPETA", "carpeta en que se escriben las configuraciones de ejemplo"},
          OPCION_DATOS}},
        {Orden::Lista, "lista", "CATEGORIA [--datos DIR]", "escribe una lista del buscador o de lugares",
         "Escribe las líneas de una lista del buscador («Estrellas», «Objetos Messier»,\n"
         "«Sistema Solar»...) o de «Lugares». Una categoría de varias palabras puede ir\n"
         "entre comillas o no; mayúsculas y acentos dan igual.\n",
         {OPCION_DATOS}},
        {Orden::Dibuja, "dibuja",
         "[--config A.ls1] [--datos DIR] [--ancho W] [--alto H] [--precision alta] --salida FICHERO",
         "dibuja el cielo de una configuración en una imagen",
         "Dibuja el cielo de una configuración (por omisión Archivo/Inicial.ls1) tal como\n"
         "lo muestra la ventana. La salida es una imagen (.png, .jpg...), una página\n"
         "impresa en PDF (.pdf) o un dibujo vectorial SVG (.svg).\n",
         {{"config", "A.ls1", "configuración que se dibuja"},
          OPCION_DATOS,
          {"ancho", "W", "ancho de la imagen en píxeles, de 16 a 16384 (1024)"},
          {"alto", "H", "alto de la imagen en píxeles, de 16 a 16384 (768)"},
          {"salida", "FICHERO", "fichero que se escribe"},
          OPCION_PRECISION}},
    };
    return ordenes;
}

std::string Utf8(const QString& s) { return s.toStdString(); }

// An unknown option as it was typed: QCommandLineParser drops the dashes.
std::string Desconocida(const QCommandLineParser& p) {
    const QString nombre = p.unknownOptionNames().first();
    return (nombre.size() == 1 ? "-" : "--") + Utf8(nombre);
}

// One column of options, as help texts usually look.
std::string TextoOpciones(const std::vector<Opcion>& opciones) {
    std::string t = "Opciones:\n";
    auto fila = [&t](const QString& izquierda, const char* ayuda) {
        t += "  " + Utf8(izquierda.leftJustified(24)) + " " + ayuda + "\n";
    };
    for (const Opcion& o : opciones)
        fila(QStringLiteral("--%1%2").arg(QString::fromUtf8(o.nombre), o.valor ? QStringLiteral(" ") + o.valor : QString()),
             o.ayuda);
    fila(QStringLiteral("-h, --help"), "muestra esta ayuda");
    return t;
}

std::string AyudaGeneral() {
    std::string t =
        "Uso: vedrano-cli ORDEN [opciones]\n"
        "El planetario VEDRANO desde la línea de órdenes.\n\nÓrdenes:\n";
    for (const DescripcionOrden& d : Ordenes())
        t += "  " + Utf8(QString::fromUtf8(d.nombre).leftJustified(14)) + " " + d.resumen + "\n";
    t += "\nOpciones:\n"
         "  -h, --help     muestra esta ayuda\n"
         "  --version      muestra la versión del programa\n"
         "\n«vedrano-cli ORDEN --help» explica cada orden.\n";
    return t;
}

std::string AyudaOrden(const DescripcionOrden& d) {
    return std::string("Uso: vedrano-cli ") + d.nombre + " " + d.uso + "\n" + d.detalle + "\n" +
           TextoOpciones(d.opciones);
}

AnalisisCli Termina(int codigo, std::string salida, std::string error) {
    AnalisisCli a;
    a.terminar = true;
    a.codigo = codigo;
    a.salida = std::move(salida);
    a.error = std::move(error);
    return a;
}

AnalisisCli Mal(const char* orden, const std::string& motivo) {
    std::string prefijo = orden ? std::string("vedrano-cli ") + orden : std::string("vedrano-cli");
    return Termina(2, {}, prefijo + ": " + motivo + "\nPruebe «" + prefijo + " --help».\n");
}

// The option a failed parse points at: QCommandLineParser names it between
// quotes in its own message.
QString OpcionCitada(const QString& texto) {
    qsizetype a = texto.indexOf(u'\''), b = texto.lastIndexOf(u'\'');
    return a >= 0 && b > a ? texto.mid(a + 1, b - a - 1) : texto;
}

// A whole number within [16, 16384], or none.
bool Tamano(const QString& texto, int& destino) {
    bool bien = false;
    int v = texto.toInt(&bien);
    if (!bien || v < 16 || v > 16384) return false;
    destino = v;
    return true;
}

AnalisisCli AnalizaOrden(const DescripcionOrden& d, const QStringList& argumentos) {
    QCommandLineParser p;
    p.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    p.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")}));
    for (const Opcion& o : d.opciones) {
        QCommandLineOption opcion(QString::fromUtf8(o.nombre));
        if (o.valor) opcion.setValueName(QString::fromUtf8(o.valor));
        p.addOption(opcion);
    }
    if (!p.parse(argumentos)) {
        if (!p.unknownOptionNames().isEmpty())
            return Mal(d.nombre, "opción no válida: " + Desconocida(p));
        QString opcion = OpcionCitada(p.errorText());
        if (p.errorText().startsWith(QStringLiteral("Missing")))
            return Mal(d.nombre, "falta el valor de la opción " + Utf8(opcion));
        return Mal(d.nombre, "la opción " + Utf8(opcion) + " no lleva valor");
    }
    if (p.isSet(QStringLiteral("help"))) return Termina(0, AyudaOrden(d), {});

    AnalisisCli a;
    OpcionesCli& o = a.opciones;
    o.orden = d.orden;
    auto valor = [&p](const char* nombre) {
        QStringList v = p.values(QString::fromUtf8(nombre));
        return v.isEmpty() ? QString() : v.last();
    };
    o.datos = valor("datos");
    const bool conPrecision = d.orden == Orden::Calcula || d.orden == Orden::Dibuja;
    if (conPrecision && p.isSet(QStringLiteral("precision"))) {
        const QString modo = valor("precision");
        if (modo != QLatin1String("alta"))
            return Mal(d.nombre, "valor no válido para --precision: «" + Utf8(modo) + "» (solo «alta»)");
        o.precisionAlta = true;
    }
    const QStringList sueltos = p.positionalArguments();
    if (d.orden == Orden::Lista) {
        o.categoria = sueltos.join(u' ');
        if (o.categoria.trimmed().isEmpty()) return Mal(d.nombre, "falta la categoría");
        return a;
    }
    if (!sueltos.isEmpty()) return Mal(d.nombre, "argumento no esperado: " + Utf8(sueltos.first()));
    if (d.orden == Orden::Dibuja) {
        o.config = valor("config");
        o.salida = valor("salida");
        for (const char* nombre : {"ancho", "alto"}) {
            if (!p.isSet(QString::fromUtf8(nombre))) continue;
            QString texto = valor(nombre);
            if (!Tamano(texto, nombre[1] == 'n' ? o.ancho : o.alto))
                return Mal(d.nombre, std::string("valor no válido para --") + nombre + ": «" + Utf8(texto) +
                                         "» (de 16 a 16384 píxeles)");
        }
        if (o.salida.isEmpty()) return Mal(d.nombre, "falta --salida FICHERO");
    } else if (d.orden == Orden::Configuracion) {
        o.lee = valor("lee");
        o.escribe = valor("escribe");
        o.muestras = valor("muestras");
        if (o.muestras.isEmpty() && o.lee.isEmpty()) return Mal(d.nombre, "falta --lee A.ls1 o --muestras CARPETA");
        if (!o.muestras.isEmpty() && !o.lee.isEmpty()) return Mal(d.nombre, "--lee y --muestras no van juntas");
        if (!o.escribe.isEmpty() && o.lee.isEmpty()) return Mal(d.nombre, "--escribe necesita --lee");
    }
    return a;
}

}  // namespace

AnalisisCli AnalizaArgumentos(const QStringList& argumentos) {
    if (argumentos.size() < 2) return Termina(2, {}, AyudaGeneral());
    const QString primero = argumentos[1];
    if (primero == QLatin1String("--help") || primero == QLatin1String("-h")) return Termina(0, AyudaGeneral(), {});
    if (primero == QLatin1String("--version"))
        return Termina(0, std::string("vedrano-cli ") + VEDRANO_VERSION + "\n", {});
    for (const DescripcionOrden& d : Ordenes())
        if (primero == QLatin1String(d.nombre)) return AnalizaOrden(d, argumentos.mid(1));
    if (primero.startsWith(u'-')) return Mal(nullptr, "opción no válida: " + Utf8(primero));
    return Mal(nullptr, "orden desconocida: " + Utf8(primero));
}

AnalisisCli AnalizaArgumentosVentana(const QStringList& argumentos) {
    static const char* const AYUDA =
        "Uso: vedrano [ARCHIVO.ls1]\n"
        "VEDRANO, planetario de escritorio. Abre la ventana con la situación de\n"
        "ARCHIVO.ls1 o, sin él, con la de «Inicial.ls1» de la carpeta de trabajo.\n\n"
        "Opciones:\n"
        "  -h, --help     muestra esta ayuda\n"
        "  --version      muestra la versión del programa\n";
    QCommandLineParser p;
    p.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    p.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")}));
    p.addOption(QCommandLineOption(QStringLiteral("version")));
    auto mal = [](const std::string& motivo) {
        return Termina(2, {}, "vedrano: " + motivo + "\nPruebe «vedrano --help».\n");
    };
    if (!p.parse(argumentos)) {
        if (!p.unknownOptionNames().isEmpty()) return mal("opción no válida: " + Desconocida(p));
        return mal("la opción " + Utf8(OpcionCitada(p.errorText())) + " no lleva valor");
    }
    if (p.isSet(QStringLiteral("help"))) return Termina(0, AYUDA, {});
    if (p.isSet(QStringLiteral("version"))) return Termina(0, std::string("vedrano ") + VEDRANO_VERSION + "\n", {});
    const QStringList sueltos = p.positionalArguments();
    if (sueltos.size() > 1) return mal("sobra el argumento " + Utf8(sueltos[1]) + " (se abre un solo archivo)");
    AnalisisCli a;
    if (!sueltos.isEmpty()) a.opciones.config = sueltos.first();
    return a;
}

QStringList ArgumentosDe(int argc, char** argv) {
    QStringList lista;
    for (int i = 0; i < argc; ++i) lista << QFile::decodeName(argv[i]);
    return lista;
}

}  // namespace vedrano
