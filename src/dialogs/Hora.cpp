#include "dialogs/Hora.h"
#include "dialogs/piezas/Ayuda.h"

#include <QBoxLayout>
#include <QLineEdit>

#include "app/base/Aritmetica.h"
#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "astro/Calendario.h"
#include "app/acciones/TiempoPresente.h"
#include "app/estado/Astros.h"
#include "app/estado/Tiempo.h"
#include "app/acciones/HoraReglas.h"
#include "platform/NumerosLocales.h"
#include "platform/Reloj.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/Spin.h"
#include "ui/controles/TeclaAD.h"

namespace vedrano {

using namespace controles;

namespace {

constexpr int TEMA_AYUDA = tema::HORA;

const char* const NOMBRES_TECLAS[7] = {"Minuto", "Hora", "Dia", "Mes", "Año", "Siglo", "Milenio"};

std::string TextoCampo(const QLineEdit* campo) { return A1252(campo->text().toStdString()); }

}  // namespace

Hora::Hora(ContextoDialogo& ctx)
    : MarcoOpciones(ctx, "Fecha y Hora", "Fecha y Hora", TEMA_AYUDA), c_(ctx), reloj_(plataforma::FechaHoraUniversal) {
    Estado& e = ctx.e;
    auto* cuerpo = new QVBoxLayout;
    cuerpo->setSpacing(8);

    // The instant twice: Universal time and the observer's local time.
    auto* filaTiempos = new QHBoxLayout;
    const char* const titulos[2] = {"Tiempo Universal", "Fecha y Hora local"};
    for (int k = 0; k < 2; ++k) {
        auto* grupo = new Grupo(titulos[k]);
        auto* fila = new QHBoxLayout;
        fila->setSpacing(3);
        campos_[k][DIA] = nuevoCampo(2, Qt::AlignCenter);
        campos_[k][MES] = nuevoCampo(2, Qt::AlignCenter);
        campos_[k][ANO] = nuevoCampo(5, Qt::AlignRight);
        campos_[k][HORA] = nuevoCampo(8, Qt::AlignCenter);
        fila->addWidget(campos_[k][DIA]);
        fila->addWidget(new Rotulo("/"));
        fila->addWidget(campos_[k][MES]);
        fila->addWidget(new Rotulo("/"));
        fila->addWidget(campos_[k][ANO]);
        fila->addSpacing(12);
        fila->addWidget(campos_[k][HORA]);
        grupo->contenido()->addLayout(fila);
        filaTiempos->addWidget(grupo);
        const char* const partes[4] = {"día", "mes", "año", "hora"};
        for (int parte = DIA; parte <= HORA; ++parte)
            campos_[k][parte]->setAccessibleName(QString::fromUtf8(titulos[k]) + QStringLiteral(": ") +
                                                 QString::fromUtf8(partes[parte]));
        for (int parte = DIA; parte <= HORA; ++parte)
            connect(campos_[k][parte], &QLineEdit::editingFinished, this,
                    [this, k, parte] { validaFecha(k, static_cast<Parte>(parte)); });
    }
    cuerpo->addLayout(filaTiempos);

    // Julian day, time zone and summer time.
    auto* filaDatos = new QHBoxLayout;
    filaDatos->setSpacing(6);
    filaDatos->addWidget(new Rotulo("Dia Juliano..:"));
    juliano_ = nuevoCampo(15, Qt::AlignRight);
    juliano_->setAccessibleName(QStringLiteral("Día juliano"));
    connect(juliano_, &QLineEdit::editingFinished, this, &Hora::validaJuliano);
    filaDatos->addWidget(juliano_);
    filaDatos->addStretch(1);
    zona_ = new Spin(c_.controles, control::ZonaHora);
    zona_->setFixedSize(zona_->sizeHint());
    zona_->setValor(e.ZonaHoraria);
    // While the keys repeat the local fields follow; the value stays once stored.
    auto cambiaZona = [this](float v) {
        validaPendientes();
        Observador o = ObservadorDe(c_.e);
        o.ZonaHoraria = v;
        FijaLugar(c_.e, c_.c.TablaPlanetas, o);  // the local fields follow (MuestraFechas)
        c_.e.Cambiado = true;
        muestra();
    };
    connect(zona_, &Spin::paso, this, cambiaZona);
    zona_->setAlmacen(cambiaZona);
    filaDatos->addWidget(zona_);
    verano_ = new Interruptor(c_.controles, control::HorarioVerano);
    verano_->setFixedSize(verano_->sizeHint());
    verano_->setEncendido(e.HorarioVerano);
    connect(verano_, &Interruptor::cambiado, this, [this](bool si) {
        validaPendientes();
        Observador o = ObservadorDe(c_.e);
        o.HorarioVerano = si;
        FijaLugar(c_.e, c_.c.TablaPlanetas, o);
        c_.e.Cambiado = true;
        muestra();
    });
    filaDatos->addWidget(verano_);
    cuerpo->addLayout(filaDatos);

    // Present, noon, midnight.
    auto* filaPulsadores = new QHBoxLayout;
    filaPulsadores->setSpacing(10);
    for (int i = 0; i < 3; ++i) {
        auto* p = new Pulsador(c_.controles, control::FechaHoraActuales + i);
        p->setFixedSize(i == 0 ? 150 : 110, p->sizeHint().height());
        connect(p, &Pulsador::accionado, this, [this, i] { pulsa(control::FechaHoraActuales + i); });
        pulsadores_[i] = p;
        filaPulsadores->addWidget(p);
    }
    filaPulsadores->addStretch(1);
    cuerpo->addLayout(filaPulsadores);

    // The step keys and the kind of their units.
    auto* incrementos = new Grupo("Incrementos de tiempo");
    auto* filaTeclas = new QHBoxLayout;
    filaTeclas->setSpacing(4);
    for (int i = 0; i < 7; ++i) {
        auto* t = new TeclaAD(c_.controles, i, A1252(NOMBRES_TECLAS[i]));
        t->setFixedSize(46, t->sizeHint().height() + 5);  // room between the label and the frame
        connect(t, &TeclaAD::pulsada, this, [this, i](int) {
            validaPendientes();
            c_.ventana.RedibujoPermitido = false;
            c_.e.TeclaPaso = static_cast<int16_t>(i + 1);
        });
        t->setPaso([this, i](int sentido) { paso(i, sentido); });
        connect(t, &TeclaAD::soltada, this, [this] { c_.ventana.RedibujoPermitido = true; });
        teclas_[i] = t;
        filaTeclas->addWidget(t);
    }
    filaTeclas->addSpacing(10);
    auto* columnaTipos = new QVBoxLayout;
    columnaTipos->setSpacing(2);
    tipos_[0] = new Casilla(c_.controles, "Tiempos Solares");
    tipos_[1] = new Casilla(c_.controles, "Tiempos Siderales");
    tipos_[0]->setMarcada(e.TipoPaso == 1);
    tipos_[1]->setMarcada(e.TipoPaso == 0);
    Casilla::HazOpciones({tipos_[0], tipos_[1]}, [this](int i) { c_.e.TipoPaso = static_cast<int16_t>(i == 0 ? 1 : 0); });
    columnaTipos->addStretch(1);
    columnaTipos->addWidget(tipos_[0]);
    columnaTipos->addWidget(tipos_[1]);
    columnaTipos->addStretch(1);
    filaTeclas->addLayout(columnaTipos);
    incrementos->contenido()->addLayout(filaTeclas);
    cuerpo->addWidget(incrementos);

    ponCuerpo(cuerpo);
    MuestraFechas(e);
    muestra();
}

QLineEdit* Hora::nuevoCampo(int caracteres, Qt::Alignment alineacion) {
    auto* campo = new QLineEdit;
    EstiloCampo(campo);
    campo->setAlignment(alineacion | Qt::AlignVCenter);
    campo->setFixedSize(7 * caracteres + 12, 20);
    campo->setTextMargins(1, 0, 1, 0);
    campo->setMaxLength(24);
    return campo;
}

void Hora::muestra() {
    const Estado& e = c_.e;
    for (int k = 0; k < 2; ++k) {
        const CamposFecha& f = e.Fechas[static_cast<std::size_t>(k)];
        campos_[k][DIA]->setText(Texto(f.Dia));
        campos_[k][MES]->setText(Texto(f.Mes));
        campos_[k][ANO]->setText(Texto(f.Ano));
        campos_[k][HORA]->setText(Texto(f.Hora));
    }
    // Shown with the decimal comma, as the main window shows it; the field
    // reads back either separator.
    juliano_->setText(Texto(plataforma::NumeroLocal(e.TextoDiaJuliano)));
    zona_->setValor(e.ZonaHoraria);
    verano_->setEncendido(e.HorarioVerano);
}

void Hora::validaFecha(int k, Parte parte) {
    QLineEdit* campo = campos_[k][parte];
    if (validando_ || !campo->isModified()) return;
    validando_ = true;
    const std::array<QLineEdit*, 4>& fila = campos_[k];
    switch (parte) {
        case ANO: {
            const AnoCorregido a = CorrigeAno(TextoCampo(campo));
            campo->setText(Texto(a.texto));
            // 29 February of a year that is not a leap year.
            if (CorrigeMes(TextoCampo(fila[MES])).valor == 2 && Val(TextoCampo(fila[DIA])) == 29 &&
                !EsBisiesto(a.ano))
                fila[DIA]->setText(QStringLiteral("28"));
            break;
        }
        case MES: {
            const NumeroCorregido m = CorrigeMes(TextoCampo(campo));
            campo->setText(Texto(m.texto));
            const int ano = CorrigeAno(TextoCampo(fila[ANO])).ano;
            fila[DIA]->setText(Texto(CorrigeDia(TextoCampo(fila[DIA]), m.valor, ano).texto));
            break;
        }
        case DIA: {
            const int mes = CorrigeMes(TextoCampo(fila[MES])).valor;
            const int ano = CorrigeAno(TextoCampo(fila[ANO])).ano;
            campo->setText(Texto(CorrigeDia(TextoCampo(campo), mes, ano).texto));
            break;
        }
        case HORA:
            campo->setText(Texto(CorrigeHora(TextoCampo(campo), c_.e.FormatoHora == 1).texto));
            break;
    }
    reconstruye(k);
    validando_ = false;
}

void Hora::reconstruye(int k) {
    const std::array<QLineEdit*, 4>& fila = campos_[k];
    const int ano = CorrigeAno(TextoCampo(fila[ANO])).ano;
    const int mes = CorrigeMes(TextoCampo(fila[MES])).valor;
    const int dia = CorrigeDia(TextoCampo(fila[DIA]), mes, ano).valor;
    const HoraCorregida h = CorrigeHora(TextoCampo(fila[HORA]), c_.e.FormatoHora == 1);
    fijaJuliana(JulianaDeCampos(c_.e, k == 1, ano, mes, dia, h.horaDelDia(), h.minuto));
}

void Hora::validaJuliano() {
    if (validando_ || !juliano_->isModified()) return;
    validando_ = true;
    double jd = 0;
    if (LeeJuliana(TextoCampo(juliano_), jd))
        fijaJuliana(jd);
    else
        muestra();  // no number in it: the field shows the instant again
    validando_ = false;
}

void Hora::validaPendientes() {
    for (int k = 0; k < 2; ++k)
        for (int parte = DIA; parte <= HORA; ++parte)
            if (campos_[k][parte]->isModified()) validaFecha(k, static_cast<Parte>(parte));
    validaJuliano();
}

void Hora::fijaJuliana(double jd) {
    FijaFechaJuliana(c_.e, c_.c.TablaPlanetas, jd);
    c_.e.Cambiado = true;
    muestra();
}

void Hora::pulsa(int indice) {
    validaPendientes();
    Estado& e = c_.e;
    switch (indice) {
        case control::FechaHoraActuales:
            TiempoActual(e, c_.c.TablaPlanetas, reloj_());
            e.Cambiado = true;
            muestra();
            break;
        case control::Mediodia: fijaJuliana(JulianaMediodia(e, RelojLocal(e, reloj_()))); break;
        case control::Medianoche: fijaJuliana(JulianaMedianoche(e, RelojLocal(e, reloj_()))); break;
        default: break;
    }
}

void Hora::paso(int tecla, int sentido) {
    Estado& e = c_.e;
    fijaJuliana(PasoTeclaHora(e, e.FechaJuliana, tecla, e.TipoPaso == 0 ? 0 : 1, sentido));
}

void Hora::done(int r) {
    validaPendientes();
    MarcoOpciones::done(r);
}

void AbreHora(ContextoDialogo& ctx) { AbreForma<Hora>(ctx); }

}  // namespace vedrano
