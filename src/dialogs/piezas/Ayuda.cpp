#include "dialogs/piezas/Ayuda.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QTextBrowser>
#include <map>

#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

using namespace controles;

QString PaginaAyuda(int t) {
    static const std::map<int, const char*> paginas = {
        {tema::INDICE, "indice"},     {tema::GENERAL, "general"},   {tema::CIELO, "cielo"},
        {tema::CARGAGUAR, "cargaguar"}, {tema::PERSONAL, "personal"}, {tema::LOCALI, "locali"},
        {tema::HORA, "hora"},         {tema::OBJETOS, "objetos"},   {tema::BUSCAR, "buscar"},
        {tema::IMPRESOR, "impresor"}, {tema::ANIMAR, "animar"},     {tema::TECLADO, "teclado"},
        {tema::ORDENES, "ordenes"},   {tema::ARCHIVOS, "archivos"},
    };
    auto it = paginas.find(t);
    return QStringLiteral("qrc:/ayuda/%1.html").arg(QString::fromLatin1(it == paginas.end() ? "indice" : it->second));
}

VentanaAyuda::VentanaAyuda(controles::Contexto& ctx, QWidget* padre, int t)
    : QDialog(padre, Qt::Dialog), visor_(new QTextBrowser) {
    setModal(false);
    setAccessibleName(QStringLiteral("Ayuda de VEDRANO"));
    visor_->setAccessibleName(QStringLiteral("Página de ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de VEDRANO"));
    setFont(FuenteControles());
    QPalette pal = palette();
    pal.setColor(QPalette::Window, GRIS_CLARO);
    setPalette(pal);
    setAutoFillBackground(true);

    visor_->setOpenLinks(true);
    visor_->setOpenExternalLinks(false);
    visor_->setSource(QUrl(PaginaAyuda(t)));
    visor_->setMinimumSize(380, 300);

    auto* salir = new BotonDialogo(ctx, BotonDialogo::Tipo::Salir, this);
    salir->setToolTip(QStringLiteral(" Salir de la Ayuda "));
    connect(salir, &BotonDialogo::pulsado, this, &QDialog::close);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(salir);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(8, 8, 8, 8);
    l->addWidget(visor_, 1);
    l->addLayout(botones);
    resize(460, 560);
}

void VentanaAyuda::muestraTema(int t) { visor_->setSource(QUrl(PaginaAyuda(t))); }

VentanaAyuda* MuestraAyuda(controles::Contexto& ctx, QWidget* padre, int t) {
    static QPointer<VentanaAyuda> ventana;
    QPointer<QWidget> principal = padre ? padre->window() : nullptr;
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* dueno = modal ? modal : principal.data();
    const bool nueva = !ventana;
    if (nueva) {
        ventana = new VentanaAyuda(ctx, dueno, t);
    } else {
        ventana->muestraTema(t);
        if (ventana->parentWidget() != dueno) {
            const QPoint sitio = ventana->pos();
            ventana->setParent(dueno, ventana->windowFlags());
            ventana->move(sitio);
        }
    }
    if (auto* forma = qobject_cast<QDialog*>(modal)) {
        QPointer<VentanaAyuda> v = ventana;
        QObject::connect(forma, &QDialog::finished, v, [v, principal] {
            if (!v || v->parentWidget() == principal) return;
            const QPoint sitio = v->pos();
            const bool visible = v->isVisible();
            v->setParent(principal, v->windowFlags());
            v->move(sitio);
            if (visible) v->show();
        });
    }
    if (nueva && principal) {
        // Beside the sky: right of the main window where the screen has
        // room, else against the screen's right edge over the objects panel.
        const QRect sobre = principal->frameGeometry();
        QRect pantalla = principal->screen() ? principal->screen()->availableGeometry() : sobre;
        ventana->resize(ventana->width(), std::min(sobre.height(), pantalla.height()));
        int x = sobre.right() + 8;
        if (x + ventana->width() > pantalla.right()) x = std::max(pantalla.left(), pantalla.right() - ventana->width());
        ventana->move(x, sobre.top());
    }
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
    return ventana;
}

}  // namespace vedrano
