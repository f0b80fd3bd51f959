#include "dialogs/Animar.h"
#include "dialogs/piezas/Ayuda.h"

#include <QBoxLayout>
#include <algorithm>
#include <optional>

#include "app/base/Aritmetica.h"
#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "app/base/TablasFijas.h"
#include "app/acciones/TiempoPresente.h"
#include "app/estado/Tiempo.h"
#include "platform/Reloj.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Spin.h"

namespace vedrano {

using namespace controles;

namespace {

constexpr int TEMA_AYUDA = tema::ANIMAR;

// The captions of units 1..12, in the order of the unit-length table.
const char* const NOMBRES_UNIDADES[12] = {
    "Minuto",        "Hora",        "Dia Sidéreo", "Mes Sidéreo", "Año Sidéreo", "Siglo Sidéreo",
    "Milenio Sidéreo", "Dia Solar", "Mes Solar",   "Año Solar",   "Siglo Solar", "Milenio Solar"};

// A unit outside the table (read from a damaged configuration) leaves the
// interval as it was.
void FijaIntervalo(Estado& e) {
    if (e.PasoUnidad >= 1 && e.PasoUnidad <= 12) FijaPaso(e, 1);
}

}  // namespace

Animar::Animar(ContextoDialogo& ctx)
    : MarcoOpciones(ctx, A1252("Animación"), A1252("Animación"), TEMA_AYUDA),
      c_(ctx),
      reloj_(plataforma::FechaHoraUniversal) {
    Estado& e = ctx.e;
    auto* cuerpo = new QVBoxLayout;
    cuerpo->setSpacing(8);

    // Units 1 and 2 serve both kinds; 3..7 are sidereal, 8..12 solar.
    auto* intervalo = new Grupo("Intervalo");
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(14);
    const int desde[3] = {1, 3, 8}, hasta[3] = {2, 7, 12};
    for (int c = 0; c < 3; ++c) {
        auto* columna = new QVBoxLayout;
        columna->setSpacing(2);
        for (int u = desde[c]; u <= hasta[c]; ++u) {
            auto* opcion = new Casilla(c_.controles, A1252(NOMBRES_UNIDADES[u - 1]));
            opcion->setMarcada(u == e.PasoUnidad);
            unidades_[static_cast<std::size_t>(u - 1)] = opcion;
            columna->addWidget(opcion);
        }
        columna->addStretch(1);
        columnas->addLayout(columna);
    }
    Casilla::HazOpciones(std::vector<Casilla*>(unidades_.begin(), unidades_.end()),
                         [this](int i) { eligeUnidad(i + 1); });
    intervalo->contenido()->addLayout(columnas);
    cuerpo->addWidget(intervalo);

    auto* fila = new QHBoxLayout;
    fila->setSpacing(10);
    cantidad_ = new Spin(c_.controles, control::FactorAnimacion);
    cantidad_->setFixedSize(cantidad_->sizeHint());
    cantidad_->setValor(e.PasoCantidad);
    // A typed count is read as the classic Val reads it (letters and an
    // empty field read 0), and the spin then holds it within its limits.
    cantidad_->setLector([](const std::string& t) { return std::optional<float>(static_cast<float>(Val(t))); });
    cantidad_->setAlmacen([this](float v) {
        Estado& est = c_.e;
        est.PasoCantidad = CInt(std::clamp(double(v), 1.0, 999.0));
        cantidad_->setValor(est.PasoCantidad);  // "2.5" is kept as the whole count it stands for
        FijaIntervalo(est);
        est.Cambiado = true;
    });
    fila->addWidget(cantidad_);
    tiempoReal_ = new Interruptor(c_.controles, control::TiempoReal);
    tiempoReal_->setFixedSize(tiempoReal_->sizeHint());
    tiempoReal_->setEncendido(e.TiempoReal);
    connect(tiempoReal_, &Interruptor::cambiado, this, [this](bool si) {
        Estado& est = c_.e;
        Suena(c_.controles, 0, 6);
        est.TiempoReal = si;
        if (si) c_.ventana.ContadorTiempoReal = 0;
        est.Cambiado = true;
    });
    fila->addWidget(tiempoReal_);
    fila->addStretch(1);
    cuerpo->addLayout(fila);

    ponCuerpo(cuerpo);
}

void Animar::eligeUnidad(int unidad) {
    Estado& e = c_.e;
    if (unidad < 1 || unidad > 12) throw ErrorEjecucion(ErrSubindice);
    e.PasoUnidad = static_cast<int16_t>(unidad);
    FijaIntervalo(e);  // forward until an arrow of the main window says otherwise
    e.Cambiado = true;
}

void Animar::done(int r) {
    if (!cerrado_) {
        cerrado_ = true;
        Estado& e = c_.e;
        // The interval as it now stands, in the direction it had.
        if (e.PasoUnidad >= 1 && e.PasoUnidad <= 12) FijaPaso(e, e.PasoDias < 0 ? -1 : 1);
        if (e.TiempoReal) {
            if (c_.ArrancaTiempoReal) c_.ArrancaTiempoReal();
            TiempoActual(e, c_.c.TablaPlanetas, reloj_());
            e.Cambiado = true;
        } else if (c_.ParaTiempoReal) {
            c_.ParaTiempoReal();
        }
        Espera(c_.controles, 150);
    }
    MarcoOpciones::done(r);
}

void AbreAnimar(ContextoDialogo& ctx) { AbreForma<Animar>(ctx); }

}  // namespace vedrano
