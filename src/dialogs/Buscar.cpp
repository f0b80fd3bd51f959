#include "dialogs/Buscar.h"
#include "dialogs/piezas/Ayuda.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "app/base/Cursores.h"
#include "app/base/ErrorEjecucion.h"
#include "app/base/Texto1252.h"
#include "catalogue/CategoriasLista.h"
#include "catalogue/LineasLista.h"
#include "dialogs/piezas/FiltroLista.h"
#include "dialogs/piezas/Mensajes.h"
#include "app/acciones/Centrado.h"
#include "app/acciones/ObjetivoBusqueda.h"
#include "dialogs/piezas/PiezasForma.h"
#include "dialogs/TextosBuscar.h"
#include "sky/apunta/Apunta.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/ControlDibujado.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Pulsador.h"

namespace vedrano {

using controles::BotonDialogo;

namespace {

constexpr int TEMA_AYUDA_BUSCAR = tema::BUSCAR;
constexpr int COLUMNAS_VISIBLES = 92;

QString DesdeUtf8(const char* t) { return QString::fromUtf8(t); }


}  // namespace

Buscar::Buscar(ContextoDialogo& ctx, QWidget* padre) : QDialog(padre ? padre : ctx.cielo), ctx_(ctx) {
    setWindowTitle(QStringLiteral("Buscar Objetos"));
    setFont(controles::FuenteControles());
    const QFont columnas = FuenteColumnas();
    const QFontMetrics fm(columnas);

    titulo_ = new Relieve(DesdeUtf8(TITULO_INDICE), this);
    titulo_->installEventFilter(this);
    volver_ = new controles::Pulsador(ctx_.controles, DesdeUtf8(TITULO_INDICE), this);
    volver_->setToolTip(DesdeUtf8(AYUDA_VOLVER));
    connect(volver_, &controles::Pulsador::accionado, this, [this] { muestraIndice(); });
    cabecera_ = new QLabel(this);
    cabecera_->setFont(columnas);
    cabecera_->setTextFormat(Qt::PlainText);
    leyenda_ = new QLabel(this);
    leyenda_->setFont(columnas);
    leyenda_->setTextFormat(Qt::PlainText);
    dia_ = new QLabel(this);
    dia_->setTextFormat(Qt::PlainText);
    dia_->setAccessibleName(QStringLiteral("Salida, tránsito y puesta"));

    indice_ = new QListWidget(this);
    indice_->setAccessibleName(DesdeUtf8(TITULO_INDICE));
    VisteLista(indice_, columnas);
    for (const CategoriaLista& cat : CATEGORIAS_LISTA)
        if (cat.lista != &ListasCatalogo::Lugares) indice_->addItem(QString::fromUtf8(cat.nombre));
    connect(indice_, &QListWidget::itemClicked, this, [this](QListWidgetItem* i) { eligeCategoria(indice_->row(i)); });
    connect(indice_, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* i) { eligeCategoria(indice_->row(i)); });

    auto* pila = new QGridLayout;
    pila->addWidget(indice_, 0, 0);
    for (int k = 0; k < 12; ++k) {
        auto* l = new QListWidget(this);
        l->setAccessibleName(QString::fromUtf8(CATEGORIAS_LISTA[static_cast<std::size_t>(k)].nombre));
        VisteLista(l, columnas);
        const auto& lineas = ctx_.c.Listas.*(CATEGORIAS_LISTA[static_cast<std::size_t>(k)].lista);
        for (const std::string& linea : lineas) {
            auto* item = new QListWidgetItem(controles::Texto(linea), l);
            QStringList nombres;
            for (const std::string& n : NombresDeLinea(k, linea)) nombres << controles::Texto(n);
            FijaClaves(item, nombres);
        }
        connect(l, &QListWidget::itemDoubleClicked, this, [this] { busca(); });
        connect(l, &QListWidget::currentRowChanged, this, [this] { muestraDia(); });
        l->viewport()->setMouseTracking(true);
        l->viewport()->installEventFilter(this);
        l->hide();
        listas_[static_cast<std::size_t>(k)] = l;
        pila->addWidget(l, 0, 0);
    }
    // What the search box finds across every list while the index is shown.
    hallados_ = new QListWidget(this);
    hallados_->setAccessibleName(QStringLiteral("Objetos hallados"));
    VisteLista(hallados_, columnas);
    hallados_->hide();
    pila->addWidget(hallados_, 0, 0);
    connect(hallados_, &QListWidget::itemActivated, this, [this] { abreHallado(); });
    connect(hallados_, &QListWidget::itemDoubleClicked, this, [this] { abreHallado(); });
    const int ancho = fm.horizontalAdvance(QString(COLUMNAS_VISIBLES, 'M')) + 24;
    for (QListWidget* l : listas_) l->setMinimumWidth(ancho);
    for (QListWidget* l : {indice_, hallados_}) l->setMinimumWidth(ancho);

    filtro_ = new QLineEdit(this);
    filtro_->setAccessibleName(QStringLiteral("Buscar"));
    VisteCampo(filtro_);
    filtro_->setClearButtonEnabled(true);
    filtro_->setPlaceholderText(QStringLiteral("parte de un nombre o código"));
    filtro_->setToolTip(QStringLiteral(" Escriba parte de un nombre o código: en el Índice General se busca en "
                                       "todas las listas; Intro abre o busca la línea elegida "));
    connect(filtro_, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (categoria_ < 0)
            muestraHallados(t);
        else
            FiltraLista(listaVisible(), t);
    });

    buscar_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Aceptar, this);
    buscar_->setToolTip(DesdeUtf8(AYUDA_BUSCAR));
    ayuda_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Ayuda, this);
    ayuda_->setToolTip(QStringLiteral(" Ayuda sobre Buscar objetos "));
    salir_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Salir, this);
    salir_->setToolTip(QStringLiteral(" Salir de Buscar objetos "));
    connect(buscar_, &BotonDialogo::pulsado, this, [this] { busca(); });
    connect(ayuda_, &BotonDialogo::pulsado, this, [this] {
        if (ctx_.Ayuda) ctx_.Ayuda(TEMA_AYUDA_BUSCAR);
    });
    connect(salir_, &BotonDialogo::pulsado, this, [this] { sale(); });

    auto* pie = new QHBoxLayout;
    pie->addWidget(new Relieve(QStringLiteral("Buscar:"), this));
    pie->addWidget(filtro_, 1);
    pie->addSpacing(16);
    pie->addWidget(buscar_);
    pie->addWidget(ayuda_);
    pie->addWidget(salir_);

    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(10, 8, 10, 10);
    caja->setSpacing(4);
    auto* cabeza = new QHBoxLayout;
    cabeza->addWidget(titulo_);
    cabeza->addStretch(1);
    cabeza->addWidget(volver_);
    caja->addLayout(cabeza);
    caja->addWidget(cabecera_);
    caja->addLayout(pila, 1);
    caja->addWidget(leyenda_);
    caja->addWidget(dia_);
    caja->addLayout(pie);
    muestraIndice();
    // The keys start in the search box: what is typed is searched at once.
    filtro_->setFocus();
}

QString Buscar::titulo() const { return titulo_->texto(); }
QWidget* Buscar::rotulo() const { return titulo_; }
QString Buscar::cabecera() const { return cabecera_->isVisible() ? cabecera_->text() : QString(); }
QStringList Buscar::leyenda() const {
    return leyenda_->isHidden() || leyenda_->text().isEmpty() ? QStringList() : leyenda_->text().split('\n');
}

QString Buscar::textoDia() const { return dia_->isHidden() ? QString() : dia_->text(); }

void Buscar::busca() {
    if (categoria_ < 0) {
        // From the lines found, the search opens the chosen one's list.
        abreHallado();
        return;
    }
    QListWidget* l = listas_[static_cast<std::size_t>(categoria_)];
    QListWidgetItem* item = l->currentItem();
    const int linea = item && item->isSelected() && !item->isHidden() ? l->row(item) : -1;
    Estado& e = ctx_.e;
    controles::FijaCursor(ctx_.controles, this, cursor::Espera);  // while the target is computed
    try {
        FijaObjetivo(e, ctx_.c, categoria_, linea);
    } catch (const ErrorEjecucion& err) {
        controles::FijaCursor(ctx_.controles, this, cursor::Normal);
        MuestraMensaje(e, ctx_.controles, this,
                       A1252("ERROR BUS" + std::to_string(err.numero()) + ": línea fuera de la lista"), "Buscar Objetos",
                       1, 1);
        return;
    }
    if (e.ObjetivoAR == 0.0 && e.ObjetivoDEC == 0.0) {
        controles::FijaCursor(ctx_.controles, this, cursor::Normal);
        return;
    }
    e.Centrado = false;
    CentraObjeto(e, ctx_.c.TablaPlanetas, ctx_.mensajes);
    controles::FijaCursor(ctx_.controles, this, cursor::Normal);
    if (e.Centrado) {
        e.Cambiado = true;
        done(QDialog::Accepted);
        if (ctx_.DibujaCielo) ctx_.DibujaCielo();
    }
}

void Buscar::sale() {
    muestraIndice();
    done(QDialog::Rejected);
}

void Buscar::paintEvent(QPaintEvent*) { PintaFondoForma(this); }

void Buscar::keyPressEvent(QKeyEvent* ev) {
    switch (ev->key()) {
        case Qt::Key_Escape:
            controles::Suena(ctx_.controles, 1, 9);
            sale();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // The search box lets Enter through to here: one search per key.
            if (categoria_ >= 0 || !hallados_->isHidden()) busca();
            else if (QListWidgetItem* i = indice_->currentItem()) eligeCategoria(indice_->row(i));
            return;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: {
            // The arrows move through the open list while the search box has the focus.
            QListWidget* l = listaVisible();
            QKeyEvent copia(ev->type(), ev->key(), ev->modifiers());
            QCoreApplication::sendEvent(l, &copia);
            if (QListWidgetItem* i = l->currentItem()) i->setSelected(true);
            return;
        }
        default:
            // Typing anywhere goes to the search box.
            if (!ev->text().isEmpty() && ev->text().at(0).isPrint()) {
                filtro_->setFocus();
                filtro_->insert(ev->text());
                return;
            }
            QDialog::keyPressEvent(ev);
    }
}

void Buscar::closeEvent(QCloseEvent* ev) {
    muestraIndice();
    QDialog::closeEvent(ev);
}

bool Buscar::eventFilter(QObject* objeto, QEvent* ev) {
    // The caption leads back to the general index.
    if (objeto == titulo_) {
        if (ev->type() == QEvent::MouseButtonRelease && categoria_ >= 0) muestraIndice();
        return QDialog::eventFilter(objeto, ev);
    }
    if (ev->type() == QEvent::MouseMove && ctx_.controles.CursorActual != cursor::ManoIndice)
        controles::FijaCursor(ctx_.controles, static_cast<QWidget*>(objeto), cursor::ManoIndice);
    return QDialog::eventFilter(objeto, ev);
}

void AbreBuscar(ContextoDialogo& ctx) { AbreForma<Buscar>(ctx); }

}  // namespace vedrano
