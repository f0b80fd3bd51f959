// The main window: the sky picture and, around it, the control panel (nine
// dialog buttons, five hold-to-repeat arrow pairs, the animation and
// restore push buttons, the real-time indicator), the location panel, the
// cursor panel and the objects panel. Every dialog is opened from here,
// modally and centred on this window.
#pragma once
#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>

#include "app/estado/Estado.h"
#include "catalogue/Catalogos.h"
#include "app/base/InterfazMensajes.h"
#include "ui/controles/Contexto.h"
#include "ui/formas/ContextoDialogo.h"
#include "ui/formas/EstadoVentana.h"
#include "sky/apunta/ObjetoBajo.h"

class QScrollArea;

namespace vedrano {

class VistaCielo;
class Panel;
class CampoInfo;
class BotonPanel;
class PanelLeyenda;
namespace controles {
class SubBaj;
class Pulsador;
}  // namespace controles

// The entry functions of the dialogs and the message box, filled by the
// start-up: the window opens forms only through these.
struct DialogosCielo {
    std::function<void(ContextoDialogo&)> CargaGuar, Personal, Locali, Hora, Objetos, Buscar, Impresor, Animar;
    std::function<void(QWidget*, int)> Ayuda;  // the help window at a topic
    std::function<int(QWidget*)> TemaDe;       // the help topic of a form (0: the main window's)
    std::function<void(ContextoDialogo&, const ObjetoSenalado&)> Informacion;  // an object's form
    // The message box centred on a window; returns the answer (0 cancel).
    std::function<int16_t(QWidget*, const std::string&, const std::string&, int16_t, int16_t)> Mensaje;
};

// The window's message port: the message box of DialogosCielo centred on
// the window. Unwired (a window under test), nobody is asked and the answer
// is cancel.
class MensajesCielo : public InterfazMensajes {
public:
    MensajesCielo(const DialogosCielo& d, QWidget* ventana) : d_(d), ventana_(ventana) {}
    int16_t Mensaje(const std::string& texto, const std::string& titulo, int16_t botones, int16_t icono) override {
        return d_.Mensaje ? d_.Mensaje(ventana_, texto, titulo, botones, icono) : 0;
    }

private:
    const DialogosCielo& d_;
    QWidget* ventana_;
};

class Cielo : public QWidget {
    Q_OBJECT
public:
    // `controles` is the drawn controls' context, shared with the message
    // box that the start-up shows before the window.
    Cielo(Estado& e, controles::Contexto& controles, const Catalogos& c, DialogosCielo dialogos);
    ~Cielo() override;

    VistaCielo& Vista() { return *vista_; }
    InterfazMensajes& Mensajes() { return mensajes_; }
    ContextoDialogo& Contexto() { return contexto_; }

    // Recompute everything and redraw (start-up, loaded configurations).
    void ActualizaCielo();
    void DibujaCielo();
    // The text of every information field from the state.
    void RefrescaCampos();

    // The hold-to-repeat loop of arrow pair `i` (flechas::, IndicesCielo.h) pressed at x.
    void SubBajHaPulsado(int i, int x);
    // One step of arrow pair `i` from the keyboard (-1 the left arrow).
    void PasoTecla(int i, int signo);
    // F1: the help of the form that holds the focus.
    void AyudaContexto();
    // The information form of an object (none: nothing opens).
    void InformaObjeto(const ObjetoSenalado& objeto);
    // The dialog button `k` released (boton::, IndicesCielo.h).
    void BotonSoltado(int k);
    // Push buttons 44 (animation dialog) and 45 (restore the work file).
    void PulsadorAccionado(int k);
    // One tick of the real-time clock.
    void TicTiempoReal();
    void ArrancaTiempoReal();
    void ParaTiempoReal();
    bool TiempoRealActivo() const { return reloj_.isActive(); }
    QString TextoTiempoReal() const;
    controles::SubBaj* SubBaj(int i) const { return subbaj_[static_cast<std::size_t>(i)]; }
    BotonPanel* Boton(int k) const { return botones_[static_cast<std::size_t>(k)]; }
    controles::Pulsador* Restaurar() const { return pulsador45_; }  // "Restaurar situación anterior"
    // The smallest size at which no panel and no field is cut.
    QSize TamanoMinimo() const;

protected:
    void resizeEvent(QResizeEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void closeEvent(QCloseEvent*) override;
    bool eventFilter(QObject* objeto, QEvent* ev) override;

private:
    void Construye();
    void Coloca();
    void Abre(const std::function<void(ContextoDialogo&)>& abre, bool cargaConfiguraciones = false);
    void SubBajMovido(int i, bool enBanda);
    void SubBajPresionado(int i, int x);
    void PasoVista(int i, int signo);
    bool RechazaTiempoReal(int i);
    void RecalculaCuerpos();
    void Atajos();

    Estado& e_;
    controles::Contexto& controles_;
    EstadoVentana ventana_;
    const Catalogos& c_;
    DialogosCielo dialogos_;
    MensajesCielo mensajes_;
    ContextoDialogo contexto_;
    VistaCielo* vista_ = nullptr;
    QScrollArea* columna_ = nullptr;
    Panel *panelBotones_ = nullptr, *panelControl_ = nullptr, *panelLocalizacion_ = nullptr,
          *panelCursor_ = nullptr, *panelObjetos_ = nullptr;
    PanelLeyenda* leyenda_ = nullptr;
    std::array<BotonPanel*, 10> botones_{};
    std::array<controles::SubBaj*, 6> subbaj_{};
    controles::Pulsador *pulsador44_ = nullptr, *pulsador45_ = nullptr;
    CampoInfo *fecJul_ = nullptr, *fecLoc_ = nullptr, *horLoc_ = nullptr, *fecUni_ = nullptr, *horUni_ = nullptr;
    CampoInfo *longi_ = nullptr, *lati_ = nullptr, *loca_ = nullptr, *direc_ = nullptr, *eleva_ = nullptr,
              *zoom_ = nullptr;
    CampoInfo *aRecta_ = nullptr, *dec_ = nullptr, *altitud_ = nullptr, *azimut_ = nullptr;
    CampoInfo* tiempoReal_ = nullptr;
    QTimer reloj_;
};

}  // namespace vedrano
