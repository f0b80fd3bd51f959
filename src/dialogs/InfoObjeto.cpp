#include "dialogs/InfoObjeto.h"

#include <QBoxLayout>
#include <QLabel>

#include "dialogs/piezas/Ayuda.h"
#include "dialogs/piezas/PiezasForma.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

using controles::BotonDialogo;

InfoObjeto::InfoObjeto(ContextoDialogo& ctx, const ObjetoSenalado& objeto) : QDialog(ctx.cielo) {
    setWindowTitle(QStringLiteral("Información del objeto"));
    setFont(controles::FuenteControles());
    const std::vector<std::string> descripcion = DescribeObjeto(ctx.e, ctx.c, objeto);
    const std::vector<std::string> dia = TextosDia(HallaDia(ctx.e, ctx.c.TablaPlanetas, objeto.dia));

    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(12, 10, 12, 10);
    caja->setSpacing(3);
    auto* titulo = new Relieve(descripcion.empty() ? QString() : controles::Texto(descripcion.front()), this);
    caja->addWidget(titulo);
    caja->addSpacing(4);
    auto linea = [&](const std::string& t) {
        const QString q = controles::Texto(t);
        lineas_ << q;
        auto* l = new QLabel(q, this);
        l->setTextFormat(Qt::PlainText);
        l->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        caja->addWidget(l);
    };
    lineas_ << titulo->texto();
    for (std::size_t k = 1; k < descripcion.size(); ++k) linea(descripcion[k]);
    caja->addSpacing(6);
    caja->addWidget(new Relieve(QStringLiteral("Hoy en este lugar"), this));
    for (const std::string& t : dia) linea(t);

    auto* ayuda = new BotonDialogo(ctx.controles, BotonDialogo::Tipo::Ayuda, this);
    ayuda->setToolTip(QStringLiteral(" Ayuda: el teclado y el ratón "));
    connect(ayuda, &BotonDialogo::pulsado, this, [&ctx] {
        if (ctx.Ayuda) ctx.Ayuda(tema::TECLADO);
    });
    salir_ = new BotonDialogo(ctx.controles, BotonDialogo::Tipo::Salir, this);
    salir_->setToolTip(QStringLiteral(" Salir de la información "));
    connect(salir_, &BotonDialogo::pulsado, this, [this] { done(QDialog::Rejected); });
    auto* pie = new QHBoxLayout;
    pie->addStretch(1);
    pie->addWidget(ayuda);
    pie->addWidget(salir_);
    caja->addSpacing(6);
    caja->addLayout(pie);
    setMinimumWidth(340);
}

void InfoObjeto::paintEvent(QPaintEvent*) { PintaFondoForma(this); }

void AbreInfoObjeto(ContextoDialogo& ctx, const ObjetoSenalado& objeto) {
    if (objeto.clase == ClaseObjeto::Ninguno) return;
    InfoObjeto forma(ctx, objeto);
    MuestraCentrado(forma, ctx.cielo);
}

}  // namespace vedrano
