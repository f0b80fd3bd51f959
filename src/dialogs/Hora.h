// The date and time form: the instant as Universal and as local time, its
// Julian day, the time zone and summer time, the present moment, today's
// noon and midnight, and the step keys. Every change goes at once into the
// state's Julian day, followed by the refresh of the dependent times.
#pragma once
#include <array>
#include <functional>
#include <vector>

#include "app/base/TablasControles.h"
#include "dialogs/piezas/MarcoOpciones.h"

class QLineEdit;

namespace vedrano {

namespace controles {
class Interruptor;
class Pulsador;
class Spin;
class TeclaAD;
}  // namespace controles

class Hora : public MarcoOpciones {
    Q_OBJECT
public:
    explicit Hora(ContextoDialogo& ctx);

    // Where the present moment is read: Universal Time in days since
    // 30 December 1899, the system's clock unless replaced. The form adds
    // the zone and summer time shown in it.
    void setReloj(std::function<double()> reloj) { reloj_ = std::move(reloj); }

    // For the tests. `k` is 0 for Universal and 1 for local time.
    QLineEdit* dia(int k) const { return campos_[k][0]; }
    QLineEdit* mes(int k) const { return campos_[k][1]; }
    QLineEdit* ano(int k) const { return campos_[k][2]; }
    QLineEdit* hora(int k) const { return campos_[k][3]; }
    QLineEdit* juliano() const { return juliano_; }
    controles::Spin* zona() const { return zona_; }
    controles::Interruptor* verano() const { return verano_; }
    controles::Pulsador* pulsador(int indice) const { return pulsadores_[indice - control::FechaHoraActuales]; }
    controles::TeclaAD* tecla(int i) const { return teclas_[i]; }
    Casilla* solares() const { return tipos_[0]; }
    Casilla* siderales() const { return tipos_[1]; }

    void done(int r) override;

private:
    enum Parte { DIA = 0, MES = 1, ANO = 2, HORA = 3 };

    QLineEdit* nuevoCampo(int caracteres, Qt::Alignment alineacion);
    // Corrects the field that was left and rebuilds the instant from its row.
    void validaFecha(int k, Parte parte);
    void validaJuliano();
    // Fields typed into and not yet validated are validated before any
    // other action, so that nothing typed is lost.
    void validaPendientes();
    void reconstruye(int k);
    void fijaJuliana(double jd);  // store, refresh the dependent times and the fields
    void muestra();
    void pulsa(int indice);
    void paso(int tecla, int sentido);

    ContextoDialogo& c_;
    std::function<double()> reloj_;
    std::array<std::array<QLineEdit*, 4>, 2> campos_{};
    QLineEdit* juliano_ = nullptr;
    controles::Spin* zona_ = nullptr;
    controles::Interruptor* verano_ = nullptr;
    std::array<controles::Pulsador*, 3> pulsadores_{};
    std::array<controles::TeclaAD*, 7> teclas_{};
    std::array<Casilla*, 2> tipos_{};
    bool validando_ = false;
};

// Opens the form centred on the main window. The changed flag tells the
// caller afterwards whether the instant, the zone or summer time moved.
void AbreHora(ContextoDialogo& ctx);

}  // namespace vedrano
