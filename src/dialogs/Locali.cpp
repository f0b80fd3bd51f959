#include "dialogs/Locali.h"
#include "dialogs/piezas/Ayuda.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <cmath>

#include "app/base/Constantes.h"
#include "app/base/Formato.h"
#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "app/estado/Astros.h"
#include "app/estado/Tiempo.h"
#include "app/estado/Vista.h"
#include "dialogs/piezas/CampoAngulo.h"
#include "dialogs/piezas/FiltroLista.h"
#include "app/acciones/LugarElegido.h"
#include "dialogs/MapaMundi.h"
#include "dialogs/piezas/PiezasForma.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/Estilo.h"

namespace vedrano {

using controles::BotonDialogo;
using controles::Spin;

namespace {

constexpr int TEMA_AYUDA_LOCALI = tema::LOCALI;

// Sets up one angle field: its text, how typing is read and corrected key
// by key, and where the value goes.
void PreparaAngulo(Spin* s, Estado& e, const TablaPlanetas& planetas, TipoAngulo tipo) {
    const bool lon = tipo == TipoAngulo::Longitud;
    // The state keeps the place's own radians; the spin's single-precision
    // degrees would lose its last second, so they are shown only once they differ.
    auto radianes = [&e, lon](float v) {
        const double actual = lon ? e.Longitud : e.Latitud;
        const double grados = lon ? GradosOeste(actual) : actual * RAD_A_GRADOS;
        if (std::abs(grados - v) < 1e-4) return actual;
        return lon ? LongitudDesdeGrados(v) : v * GRADO;
    };
    s->setFormateador([radianes, lon](float v) { return lon ? TextoLongitud(radianes(v)) : TextoLatitud(radianes(v)); });
    s->setLector([tipo, lon](const std::string& t) -> std::optional<float> {
        std::optional<double> r = LeeCampoAngulo(t, tipo);
        if (!r) return std::nullopt;
        return static_cast<float>(lon ? GradosOeste(*r) : *r * RAD_A_GRADOS);
    });
    s->setAlmacen([&e, &planetas, radianes, lon](float v) {
        Observador o = ObservadorDe(e);
        (lon ? o.Longitud : o.Latitud) = radianes(v);
        FijaLugar(e, planetas, o);
    });
    QLineEdit* campo = s->campo();
    QObject::connect(campo, &QLineEdit::textEdited, campo, [campo, tipo](const QString& t) {
        const QString corregido = CorrigeTeclas(t, tipo);
        if (corregido == t) return;
        const int cursor = campo->cursorPosition() - static_cast<int>(t.size() - corregido.size());
        campo->setText(corregido);
        campo->setCursorPosition(std::max(0, cursor));
    });
}

}  // namespace

Locali::Locali(ContextoDialogo& ctx, QWidget* padre) : QDialog(padre ? padre : ctx.cielo), ctx_(ctx) {
    Estado& e = ctx_.e;
    setWindowTitle(QStringLiteral("Localización"));
    setFont(controles::FuenteControles());

    lugares_ = new QListWidget(this);
    lugares_->setAccessibleName(QStringLiteral("Lugares"));
    VisteLista(lugares_, FuenteColumnas());  // the country codes line up
    for (const std::string& l : ctx_.c.Listas.Lugares) lugares_->addItem(controles::Texto(l));
    lugares_->setMinimumWidth(QFontMetrics(FuenteColumnas()).horizontalAdvance(QString(20, 'M')) + 30);
    connect(lugares_, &QListWidget::itemClicked, this, [this](QListWidgetItem* i) { eligeLugar(lugares_->row(i)); });
    connect(lugares_, &QListWidget::itemActivated, this, [this](QListWidgetItem* i) { eligeLugar(lugares_->row(i)); });

    filtro_ = new QLineEdit(this);
    filtro_->setAccessibleName(QStringLiteral("Buscar lugar"));
    VisteCampo(filtro_);
    filtro_->setClearButtonEnabled(true);
    filtro_->setToolTip(QStringLiteral(" Escriba parte del nombre o del código del país; Intro elige el lugar "));
    connect(filtro_, &QLineEdit::textChanged, this, [this](const QString& t) { FiltraLista(lugares_, t); });
    connect(filtro_, &QLineEdit::returnPressed, this, [this] {
        if (QListWidgetItem* i = lugares_->currentItem(); i && !i->isHidden()) eligeLugar(lugares_->row(i));
    });

    mapa_ = new MapaMundi(e, ctx_.controles, ctx_.c, this);
    connect(mapa_, &MapaMundi::lugarPulsado, this, [this](int i) {
        filtro_->clear();
        eligeLugar(i);
    });
    connect(mapa_, &MapaMundi::puntoPulsado, this, [this](double lon, double lat) {
        FijaPuntoPropio(ctx_.e, ctx_.c, lon, lat);
        lugares_->clearSelection();
        lugares_->setCurrentRow(-1);
        muestraValores();
    });

    longitud_ = new SpinAngulo(ctx_.controles, control::Longitud, 14, this);
    latitud_ = new SpinAngulo(ctx_.controles, control::Latitud, 13, this);
    PreparaAngulo(longitud_, e, ctx_.c.TablaPlanetas, TipoAngulo::Longitud);
    PreparaAngulo(latitud_, e, ctx_.c.TablaPlanetas, TipoAngulo::Latitud);
    for (Spin* s : {longitud_, latitud_}) connect(s, &Spin::almacenado, this, [this] { mapa_->Actualiza(); });
    zona_ = new Spin(ctx_.controles, control::ZonaLocali, this);
    zona_->setAlmacen([this](float v) {
        Observador o = ObservadorDe(ctx_.e);
        o.ZonaHoraria = v;
        FijaLugar(ctx_.e, ctx_.c.TablaPlanetas, o);
    });
    direccion_ = new Spin(ctx_.controles, control::Direccion, this);
    direccion_->setAlmacen([&e](float v) { FijaVista(e, v * GRADO, e.Elevacion); });
    elevacion_ = new Spin(ctx_.controles, control::Elevacion, this);
    elevacion_->setAlmacen([&e](float v) { FijaVista(e, e.Direccion, v * GRADO); });
    zoom_ = new Spin(ctx_.controles, control::Zoom, this);
    zoom_->setAlmacen([&e](float v) { FijaZoom(e, v); });

    ayuda_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Ayuda, this);
    ayuda_->setToolTip(QStringLiteral(" Ayuda sobre Localización "));
    salir_ = new BotonDialogo(ctx_.controles, BotonDialogo::Tipo::Salir, this);
    salir_->setToolTip(QStringLiteral(" Salir de Localización "));
    connect(ayuda_, &BotonDialogo::pulsado, this, [this] {
        if (ctx_.Ayuda) ctx_.Ayuda(TEMA_AYUDA_LOCALI);
    });
    connect(salir_, &BotonDialogo::pulsado, this, [this] { sale(); });

    auto* izquierda = new QVBoxLayout;
    izquierda->setSpacing(3);
    izquierda->addWidget(new Relieve(QStringLiteral("Localidades"), this));
    izquierda->addWidget(lugares_, 1);
    auto* busca = new QHBoxLayout;
    busca->addWidget(new Relieve(QStringLiteral("Buscar:"), this));
    busca->addWidget(filtro_, 1);
    izquierda->addLayout(busca);

    auto* campos = new QGridLayout;
    campos->setHorizontalSpacing(8);
    campos->setVerticalSpacing(4);
    campos->addWidget(longitud_, 0, 0);
    campos->addWidget(latitud_, 1, 0);
    campos->addWidget(zona_, 2, 0);
    campos->addWidget(direccion_, 0, 1);
    campos->addWidget(elevacion_, 1, 1);
    campos->addWidget(zoom_, 2, 1);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(ayuda_);
    botones->addWidget(salir_);

    auto* derecha = new QVBoxLayout;
    derecha->setSpacing(6);
    derecha->addWidget(new Relieve(QStringLiteral("Mapa del mundo"), this));
    derecha->addWidget(mapa_, 0, Qt::AlignLeft);
    derecha->addLayout(campos);
    derecha->addStretch(1);
    derecha->addLayout(botones);

    auto* caja = new QHBoxLayout(this);
    caja->setContentsMargins(10, 8, 10, 10);
    caja->setSpacing(10);
    caja->addLayout(izquierda);
    caja->addLayout(derecha);

    // The state's place as it stands, a restored configuration's own time
    // zone included: opening the form changes nothing.
    muestraValores();
}

Spin* Locali::spin(int indice) const {
    switch (indice) {
        case control::Longitud: return longitud_;
        case control::Latitud: return latitud_;
        case control::ZonaLocali: return zona_;
        case control::Direccion: return direccion_;
        case control::Elevacion: return elevacion_;
        case control::Zoom: return zoom_;
        default: return nullptr;
    }
}

void Locali::muestraValores() {
    const Estado& e = ctx_.e;
    longitud_->setValor(static_cast<float>(GradosOeste(e.Longitud)));
    latitud_->setValor(static_cast<float>(e.Latitud * RAD_A_GRADOS));
    zona_->setValor(e.ZonaHoraria);
    direccion_->setValor(static_cast<float>(std::nearbyint(e.Direccion * RAD_A_GRADOS)));
    elevacion_->setValor(static_cast<float>(std::nearbyint(e.Elevacion * RAD_A_GRADOS)));
    zoom_->setValor(e.Zoom);
    if (e.IndiceLugar >= 0 && e.IndiceLugar < lugares_->count() && e.TextoLugar != "Lugar propio") {
        lugares_->setCurrentRow(e.IndiceLugar);
        lugares_->scrollToItem(lugares_->currentItem(), QAbstractItemView::PositionAtCenter);
    }
    mapa_->Actualiza();
}

void Locali::eligeLugar(int i) {
    if (!EligeLugar(ctx_.e, ctx_.c, i, false)) return;
    muestraValores();
}

void Locali::sale() {
    if (saliendo_) return;
    saliendo_ = true;
    // A field still being typed in is taken as it stands.
    if (QWidget* foco = focusWidget()) foco->clearFocus();
    ctx_.e.Cambiado = true;
    done(QDialog::Accepted);
    if (ctx_.ActualizaCielo) ctx_.ActualizaCielo();
}

void Locali::paintEvent(QPaintEvent*) { PintaFondoForma(this); }

void Locali::keyPressEvent(QKeyEvent* ev) {
    if (ev->key() == Qt::Key_Escape) {
        controles::Suena(ctx_.controles, 1, 9);
        sale();
        return;
    }
    // Enter belongs to the fields and the list, never closes the form.
    if (ev->key() == Qt::Key_Return || ev->key() == Qt::Key_Enter) return;
    QDialog::keyPressEvent(ev);
}

void Locali::closeEvent(QCloseEvent* ev) {
    sale();
    QDialog::closeEvent(ev);
}

void AbreLocali(ContextoDialogo& ctx) { AbreForma<Locali>(ctx); }

}  // namespace vedrano
