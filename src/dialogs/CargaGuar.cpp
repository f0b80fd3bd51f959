#include "dialogs/CargaGuar.h"

#include <QBoxLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>

#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "config/EscribeConfiguracion.h"
#include "config/LeeConfiguracion.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Pulsador.h"

namespace vedrano {

using namespace controles;

namespace {

const std::string TITULO_CARGAR = A1252("Cargar configuración");
const std::string TITULO_GUARDAR = A1252("Guardar configuración");
const std::string TITULO_BORRAR = A1252("Borrar configuración");
const std::string NO_EXISTE = A1252("No existe un archivo de configuración con ese nombre.");

// Text fields and lists in the family's font, black on white.
void Estiliza(QWidget* w) {
    w->setFont(FuenteControles());
    QPalette pal = w->palette();
    pal.setColor(QPalette::Base, BLANCO);
    pal.setColor(QPalette::Text, QColor(0, 0, 0));
    pal.setColor(QPalette::Highlight, QColor(0, 0, 128));
    pal.setColor(QPalette::HighlightedText, BLANCO);
    w->setPalette(pal);
}

bool TieneExtension(const std::string& nombre) { return nombre.find('.') != std::string::npos; }

}  // namespace

std::vector<std::string> CargaGuar::Configuraciones(const std::string& carpeta) {
    const QStringList nombres = QDir(QString::fromStdString(carpeta))
                                    .entryList({QStringLiteral("*.ls1")}, QDir::Files,
                                               QDir::Name | QDir::IgnoreCase);
    std::vector<std::string> r;
    for (const QString& n : nombres) r.push_back(n.toStdString());
    return r;
}

CargaGuar::CargaGuar(ContextoDialogo& ctx)
    : MarcoOpciones(ctx, "Mantenimiento de configuraciones", "Configuraciones", 1040),
      lista_(new QListWidget),
      nombre_(new QLineEdit),
      cargar_(new Pulsador(ctx.controles, control::Cargar)),
      guardar_(new Pulsador(ctx.controles, control::Guardar)),
      borrar_(new Pulsador(ctx.controles, control::Borrar)),
      animacion_(new Interruptor(ctx.controles, control::IncluirAnimacion)) {
    Estado& e = ctx.e;
    lista_->setAccessibleName(QStringLiteral("Configuraciones"));
    nombre_->setAccessibleName(QStringLiteral("Nombre de la configuración"));

    auto* archivos = new Grupo("Configuraciones");
    Estiliza(lista_);
    lista_->setFixedSize(230, 190);
    archivos->contenido()->addWidget(lista_);
    auto* filaNombre = new QHBoxLayout;
    filaNombre->addWidget(new Rotulo("Nombre:"));
    Estiliza(nombre_);
    nombre_->setMaxLength(120);
    filaNombre->addWidget(nombre_);
    archivos->contenido()->addSpacing(4);
    archivos->contenido()->addLayout(filaNombre);

    auto* acciones = new QVBoxLayout;
    acciones->setSpacing(8);
    acciones->addSpacing(8);
    for (Pulsador* b : {cargar_, guardar_, borrar_}) {
        b->setFixedSize(110, b->sizeHint().height());
        acciones->addWidget(b);
    }
    acciones->addSpacing(8);
    animacion_->setEncendido(e.IncluirAnimacion);
    acciones->addWidget(animacion_);
    acciones->addStretch(1);

    auto* cuerpo = new QHBoxLayout;
    cuerpo->setSpacing(10);
    cuerpo->addWidget(archivos);
    cuerpo->addLayout(acciones);
    ponCuerpo(cuerpo);

    connect(lista_, &QListWidget::currentTextChanged, nombre_, [this](const QString& t) {
        if (!t.isEmpty()) nombre_->setText(t);
    });
    connect(lista_, &QListWidget::itemDoubleClicked, this, [this] { carga(); });
    connect(cargar_, &Pulsador::accionado, this, [this] { carga(); });
    connect(guardar_, &Pulsador::accionado, this, [this] { guarda(); });
    connect(borrar_, &Pulsador::accionado, this, [this] { borra(); });
    connect(animacion_, &Interruptor::cambiado, this, [&e](bool si) { e.IncluirAnimacion = si; });
    llenaLista(std::string());
    // The keys start at the name: typed and saved, or the list a Shift+Tab away.
    nombre_->setFocus();
}

void CargaGuar::llenaLista(const std::string& elegido) {
    lista_->clear();
    for (const std::string& n : Configuraciones(ctx_.e.DirArchivo)) {
        lista_->addItem(QString::fromStdString(n));
        if (!elegido.empty() && QString::compare(QString::fromStdString(n), QString::fromStdString(elegido),
                                                 Qt::CaseInsensitive) == 0)
            lista_->setCurrentRow(lista_->count() - 1);
    }
}

std::string CargaGuar::nombreEscrito(const std::string& tituloCp1252) {
    // File names stay as typed (UTF-8): any name the file system takes.
    const std::string n = nombre_->text().trimmed().toStdString();
    if (n.empty())
        ctx_.mensajes.Mensaje(A1252("Escriba el nombre del archivo de configuración o elija uno de la lista."),
                              tituloCp1252, 1, 2);
    return n;
}

void CargaGuar::carga() {
    std::string n = nombreEscrito(TITULO_CARGAR);
    if (n.empty()) return;
    if (!TieneExtension(n)) n += ".ls1";
    // A name that leads nowhere is told and leaves the situation alone: the
    // reader would replace it with the defaults.
    const std::string ruta = RutaConfiguracion(ctx_.e, n);
    if (!QFileInfo(QString::fromStdString(ruta)).isFile()) {
        ctx_.mensajes.Mensaje(TextoConArchivo(NO_EXISTE, ruta), TITULO_CARGAR, 1, 1);
        return;
    }
    // The reader tells the faults it finds inside the file.
    LeeConfiguracion(ctx_.e, n, ctx_.mensajes);
    // The situation saved before a centring no longer applies.
    ctx_.e.Centrado = false;
    ctx_.e.Cambiado = true;
    if (ctx_.ActualizaCielo) ctx_.ActualizaCielo();
}

void CargaGuar::guarda() {
    const std::string n = nombreEscrito(TITULO_GUARDAR);
    if (n.empty()) return;
    const ResultadoConfiguracion r = EscribeConfiguracion(ctx_.e, n, ctx_.mensajes, false);
    if (r.escrito) {
        nombre_->setText(QString::fromStdString(r.archivo));
        llenaLista(r.archivo);
    }
}

void CargaGuar::borra() {
    std::string n = nombreEscrito(TITULO_BORRAR);
    if (n.empty()) return;
    if (!TieneExtension(n)) n += ".ls1";
    const QString ruta = QString::fromStdString(RutaConfiguracion(ctx_.e, n));
    if (!QFileInfo(ruta).isFile()) {
        ctx_.mensajes.Mensaje(TextoConArchivo(NO_EXISTE, ruta.toStdString()), TITULO_BORRAR, 1, 1);
        return;
    }
    const std::string pregunta =
        A1252("Va a borrar el archivo de configuración  " + n +
              ".   Para confirmarlo pulse el  Botón  Aceptar.   Para salir sin borrarlo pulse el  Botón  Cancelar.");
    if (ctx_.mensajes.Mensaje(pregunta, TITULO_BORRAR, 2, 6) == 0) return;
    if (!QFile::remove(ruta)) {
        ctx_.mensajes.Mensaje(A1252("No se ha podido borrar el archivo de configuración  " + n + "."), TITULO_BORRAR,
                              1, 1);
        return;
    }
    nombre_->clear();
    llenaLista(std::string());
}

void AbreCargaGuar(ContextoDialogo& ctx) { AbreForma<CargaGuar>(ctx); }

}  // namespace vedrano
