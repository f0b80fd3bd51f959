#include "dialogs/Impresor.h"
#include "dialogs/piezas/Ayuda.h"

#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QVBoxLayout>

#include "app/base/Cursores.h"
#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "dialogs/piezas/Mensajes.h"
#include "dialogs/piezas/PiezasForma.h"
#include "sky/PaginaImpresa.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Spin.h"

namespace vedrano {

using controles::BotonDialogo;
using controles::Interruptor;
using controles::Spin;

namespace {
constexpr int TEMA_AYUDA_IMPRESOR = tema::IMPRESOR;
}

Impresor::Impresor(ContextoDialogo& ctx, QWidget* padre) : QDialog(padre ? padre : ctx.cielo), ctx_(ctx) {
    Estado& e = ctx_.e;
    setWindowTitle(QStringLiteral("Imprimir"));
    setFont(controles::FuenteControles());

    ancho_ = new Spin(ctx_.controles, control::AnchoImpresion, this);
    ancho_->setValor(e.AnchoMm);
    ancho_->setAlmacen([&e](float v) { e.AnchoMm = static_cast<int16_t>(v); });
    alto_ = new Spin(ctx_.controles, control::AltoImpresion, this);
    alto_->setValor(e.AltoMm);
    alto_->setAlmacen([&e](float v) { e.AltoMm = static_cast<int16_t>(v); });
    enPantalla_ = new Interruptor(ctx_.controles, control::ImagenEnPantalla, this);
    enPantalla_->setEncendido(e.ImagenEnPantalla);
    connect(enPantalla_, &Interruptor::cambiado, this, [&e](bool si) { e.ImagenEnPantalla = si; });
    localizacion_ = new Interruptor(ctx_.controles, control::IncluirLocalizacion, this);
    localizacion_->setEncendido(e.DatosLocalizacion);
    connect(localizacion_, &Interruptor::cambiado, this, [&e](bool si) { e.DatosLocalizacion = si; });

    imprimir_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Aceptar, this);
    imprimir_->setToolTip(QStringLiteral(" Imprimir el cielo "));
    ayuda_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Ayuda, this);
    ayuda_->setToolTip(QStringLiteral(" Ayuda sobre Imprimir "));
    salir_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Salir, this);
    salir_->setToolTip(QStringLiteral(" Salir de Imprimir "));
    connect(imprimir_, &BotonDialogo::pulsado, this, [this] { imprime(); });
    connect(ayuda_, &BotonDialogo::pulsado, this, [this] {
        if (ctx_.Ayuda) ctx_.Ayuda(TEMA_AYUDA_IMPRESOR);
    });
    connect(salir_, &BotonDialogo::pulsado, this, [this] { done(QDialog::Rejected); });

    auto* campos = new QGridLayout;
    campos->setHorizontalSpacing(12);
    campos->setVerticalSpacing(6);
    campos->addWidget(ancho_, 0, 0);
    campos->addWidget(alto_, 1, 0);
    campos->addWidget(enPantalla_, 0, 1);
    campos->addWidget(localizacion_, 1, 1);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(imprimir_);
    botones->addWidget(ayuda_);
    botones->addWidget(salir_);

    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(12, 8, 12, 10);
    caja->setSpacing(8);
    caja->addWidget(new Relieve(QStringLiteral("Tamaño de la imagen en el papel"), this));
    caja->addLayout(campos);
    caja->addLayout(botones);
}

bool Impresor::guardaPdf(const QString& archivo) {
    if (EscribePdf(archivo, ctx_.e, ctx_.c)) return true;
    MuestraMensaje(ctx_.e, ctx_.controles, this,
                   A1252("No se puede escribir el archivo " + QDir::toNativeSeparators(archivo).toStdString()),
                   "Imprimir", 1, 1);
    return false;
}

void Impresor::imprime() {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(QStringLiteral("VEDRANO - Cielo"));
    // With no printer installed the page goes to a PDF file.
    if (QPrinterInfo::availablePrinters().isEmpty())
        impresora.setOutputFileName(QDir::home().filePath(QStringLiteral("cielo.pdf")));
    QPrintDialog dialogo(&impresora, this);
    dialogo.setWindowTitle(QStringLiteral("Imprimir el cielo"));
    if (dialogo.exec() != QDialog::Accepted) return;
    controles::FijaCursor(ctx_.controles, this, cursor::Espera);
    const bool bien = ImprimePagina(impresora, ctx_.e, ctx_.c);
    controles::FijaCursor(ctx_.controles, this, cursor::Normal);
    if (!bien) {
        MuestraMensaje(ctx_.e, ctx_.controles, this, A1252("No se ha podido imprimir: la impresora no responde"),
                       "Imprimir", 1, 1);
        return;
    }
    done(QDialog::Accepted);
}

void Impresor::paintEvent(QPaintEvent*) { PintaFondoForma(this); }

void AbreImpresor(ContextoDialogo& ctx) {
    AbreForma<Impresor>(ctx);
    // The sizes and switches are configuration settings.
    ctx.e.Cambiado = true;
}

}  // namespace vedrano
