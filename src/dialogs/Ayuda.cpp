#include "dialogs/Ayuda.h"

#include <QApplication>
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
        {tema::IMPRESOR, "impresor"}, {tema::ANIMAR, "animar"},
    };
    auto it = paginas.find(t);
    return QStringLiteral("qrc:/ayuda/%1.html").arg(QString::fromLatin1(it == paginas.end() ? "indice" : it->second));
}

VentanaAyuda::VentanaAyuda(Estado& e, QWidget* padre, int t)
    : QDialog(padre, Qt::Dialog), visor_(new QTextBrowser) {
    setModal(true);
    setWindowTitle(QStringLiteral("Ayuda de VEDRANO"));
    setFont(FuenteControles());
    QPalette pal = palette();
    pal.setColor(QPalette::Window, GRIS_CLARO);
    setPalette(pal);
    setAutoFillBackground(true);

    visor_->setOpenLinks(true);
    visor_->setOpenExternalLinks(false);
    visor_->setSource(QUrl(PaginaAyuda(t)));
    visor_->setMinimumSize(560, 420);

    auto* salir = new BotonDialogo(e, BotonDialogo::Tipo::Salir, this);
    salir->setToolTip(QStringLiteral(" Salir de la Ayuda "));
    connect(salir, &BotonDialogo::pulsado, this, &QDialog::accept);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(salir);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(8, 8, 8, 8);
    l->addWidget(visor_, 1);
    l->addLayout(botones);
    resize(640, 520);
}

void MuestraAyuda(Estado& e, QWidget* padre, int t) {
    // Over the form that asked, which is modal itself when it is a dialog.
    if (QWidget* modal = QApplication::activeModalWidget()) padre = modal;
    VentanaAyuda v(e, padre, t);
    if (padre) {
        const QRect sobre = padre->window()->frameGeometry();
        v.move(sobre.center() - QPoint(v.width() / 2, v.height() / 2));
    }
    v.exec();
}

}  // namespace vedrano
