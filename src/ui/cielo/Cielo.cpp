#include "ui/cielo/Cielo.h"
#include "ui/cielo/IndicesCielo.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QDialog>
#include <QKeyEvent>
#include <QScrollArea>
#include <QShortcut>

#include "app/base/TablasControles.h"
#include "app/base/Texto1252.h"
#include "app/base/TextosAngulo.h"
#include "config/LeeConfiguracion.h"
#include "platform/qt/PantallaQt.h"
#include "sky/DibujaCielo.h"
#include "ui/cielo/Paneles.h"
#include "ui/cielo/PanelLeyenda.h"
#include "ui/cielo/VistaCielo.h"
#include "ui/controles/BotonDialogo.h"
#include "ui/controles/ControlDibujado.h"
#include "ui/controles/Estilo.h"
#include "ui/controles/Pulsador.h"
#include "ui/controles/SubBaj.h"

namespace vedrano {

namespace {

struct DatosBoton {
    int izquierda, arriba;
    const char* ayuda;
};
// Place and tooltip of each dialog button (the blanks are part of the text).
constexpr DatosBoton BOTONES[10] = {{0, 0, ""},
                                     {15, 10, " Mantenimiento de configuraciones "},
                                     {78, 10, " Personalizar "},
                                     {15, 68, " Localización "},
                                     {78, 68, " Fecha y Hora "},
                                     {15, 126, " Objetos "},
                                     {78, 126, " Buscar objetos "},
                                     {46, 184, " Imprimir "},
                                     {15, 242, " Ayuda de la aplicación "},
                                     {78, 242, " Salir de la aplicación "}};

const char* const ROTULOS_SUBBAJ[6] = {"", "Dirección", "Elevación", "Zoom", "Tiempo", "Animación"};
// The keys of each arrow pair, told in its tooltip.
const char* const TECLAS_SUBBAJ[6] = {"",
                                      " Dirección: flechas izquierda y derecha del teclado ",
                                      " Elevación: flechas arriba y abajo del teclado ",
                                      " Zoom: teclas + y - ",
                                      " Tiempo: un paso atrás con Re Pág, adelante con Av Pág ",
                                      " Animación: la barra espaciadora la pone en marcha o la para "};

QString Q(const std::string& cp1252) { return QString::fromUtf8(DesdeA1252(cp1252)); }

}  // namespace

Cielo::Cielo(Estado& e, controles::Contexto& controles, const Catalogos& c, DialogosCielo dialogos)
    : e_(e),
      controles_(controles),
      c_(c),
      dialogos_(std::move(dialogos)),
      mensajes_(dialogos_, this),
      contexto_{e, controles_, ventana_, c, mensajes_, this, {}, {}, {}, {}, {}, true} {
    setWindowTitle("VEDRANO");
    setFont(controles::FuenteControles());
    contexto_.ActualizaCielo = [this] { ActualizaCielo(); };
    contexto_.DibujaCielo = [this] { DibujaCielo(); };
    contexto_.Ayuda = [this](int tema) {
        if (dialogos_.Ayuda) dialogos_.Ayuda(this, tema);
    };
    contexto_.ArrancaTiempoReal = [this] { ArrancaTiempoReal(); };
    contexto_.ParaTiempoReal = [this] { ParaTiempoReal(); };
    Construye();
    Atajos();
    qApp->installEventFilter(this);
    reloj_.setInterval(1000);
    connect(&reloj_, &QTimer::timeout, this, &Cielo::TicTiempoReal);
    // The smallest window that cuts nothing, unless the screen is smaller
    // still (a large scale factor): then the left column scrolls. Placed by
    // the program, not left to the window manager, so that the messages of
    // the start-up are centred on it before it has been mapped.
    const QSize cabe = plataforma::AreaVentanas().size();
    setMinimumSize(TamanoMinimo().boundedTo(cabe));
    resize(QSize(800, 600).expandedTo(minimumSize()).boundedTo(cabe));
    move(plataforma::PosicionCentrada(size(), nullptr));
}

Cielo::~Cielo() { ventana_.Sujecion = ventana_.Enganche = false; }

void Cielo::Construye() {
    vista_ = new VistaCielo(e_, c_, mensajes_, this);
    vista_->setFocusPolicy(Qt::StrongFocus);
    vista_->setAccessibleName(QStringLiteral("Cielo"));
    connect(vista_, &VistaCielo::ObjetoPedido, this, &Cielo::InformaObjeto);
    connect(vista_, &VistaCielo::Dibujado, this, &Cielo::RefrescaCampos);
    connect(vista_, &VistaCielo::VistaCentrada, this, [this] {
        RefrescaCampos();
        pulsador45_->show();
    });

    // The left column scrolls on a screen too short for it.
    columna_ = new QScrollArea(this);
    columna_->setFrameShape(QFrame::NoFrame);
    columna_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* contenido = new QWidget;
    columna_->setWidget(contenido);
    // The button panel keeps its own warm colours.
    panelBotones_ = new Panel(contenido, QColor(200, 82, 52), QColor(238, 136, 102), QColor(119, 26, 18));
    panelBotones_->setFixedSize(141, 300);
    for (int k = boton::Configuraciones; k <= boton::NUM; ++k) {
        auto* b = new BotonPanel(controles_, k, QString::fromUtf8(BOTONES[k].ayuda), panelBotones_);
        b->move(BOTONES[k].izquierda, BOTONES[k].arriba);
        connect(b, &BotonPanel::soltado, this, &Cielo::BotonSoltado);
        // The tooltips keep their texts; the keys go to the screen reader.
        static const char* const teclas[10] = {"", "Ctrl+O, Ctrl+S", "", "", "", "", "Ctrl+F", "Ctrl+P", "F1", "Ctrl+Q"};
        if (*teclas[k]) b->setAccessibleDescription(QStringLiteral("Teclas: ") + QString::fromLatin1(teclas[k]));
        botones_[static_cast<std::size_t>(k)] = b;
    }

    panelControl_ = new Panel(contenido);
    for (int i = flechas::Direccion; i <= flechas::NUM; ++i) {
        auto* s = new controles::SubBaj(controles_, i, A1252(ROTULOS_SUBBAJ[i]), panelControl_);
        s->move(3, 5 + 35 * (i - 1));
        s->resize(135, s->height());
        s->dibuja(-1);
        connect(s, &controles::SubBaj::pulsado, this, [this, i](int x) { SubBajPresionado(i, x); });
        connect(s, &controles::SubBaj::movido, this, [this, i](int, int, bool dentro) { SubBajMovido(i, dentro); });
        connect(s, &controles::SubBaj::soltado, this, [this] {
            if (!ventana_.Enganche) ventana_.Sujecion = false;
        });
        connect(s, &controles::SubBaj::tecla, this, [this, i](int signo) { PasoTecla(i, signo); });
        s->setToolTip(QString::fromUtf8(TECLAS_SUBBAJ[i]));
        subbaj_[static_cast<std::size_t>(i)] = s;
    }
    pulsador44_ = new controles::Pulsador(controles_, control::Animacion, panelControl_);
    pulsador44_->setGeometry(3, 180, 135, 23);
    connect(pulsador44_, &controles::Pulsador::accionado, this, [this] { PulsadorAccionado(control::Animacion); });
    pulsador45_ = new controles::Pulsador(controles_, control::Restaurar, panelControl_);
    pulsador45_->setGeometry(3, 207, 135, 23);
    connect(pulsador45_, &controles::Pulsador::accionado, this, [this] { PulsadorAccionado(control::Restaurar); });
    pulsador45_->hide();

    tiempoReal_ = new CampoInfo(contenido);
    tiempoReal_->setAccessibleName(QStringLiteral("Tiempo real"));
    tiempoReal_->FijaTexto(QString::fromUtf8("Animación tiempo real"));
    connect(tiempoReal_, &CampoInfo::pulsado, this, [this] { PulsadorAccionado(control::Animacion); });

    panelLocalizacion_ = new Panel(this);
    auto campo = [this](QWidget* padre, int abre, const char* nombre) {
        auto* f = new CampoInfo(padre);
        f->setAccessibleName(QString::fromUtf8(nombre));
        connect(f, &CampoInfo::pulsado, this, [this, abre] { BotonSoltado(abre); });
        return f;
    };
    loca_ = campo(panelLocalizacion_, boton::Localizacion, "Localidad");
    longi_ = campo(panelLocalizacion_, boton::Localizacion, "Longitud");
    lati_ = campo(panelLocalizacion_, boton::Localizacion, "Latitud");
    direc_ = campo(panelLocalizacion_, boton::Localizacion, "Dirección");
    eleva_ = campo(panelLocalizacion_, boton::Localizacion, "Elevación");
    zoom_ = campo(panelLocalizacion_, boton::Localizacion, "Zoom");
    fecUni_ = campo(panelLocalizacion_, boton::FechaHora, "Fecha universal");
    horUni_ = campo(panelLocalizacion_, boton::FechaHora, "Hora universal");
    fecLoc_ = campo(panelLocalizacion_, boton::FechaHora, "Fecha local");
    horLoc_ = campo(panelLocalizacion_, boton::FechaHora, "Hora local");
    fecJul_ = campo(panelLocalizacion_, boton::FechaHora, "Día juliano");

    panelCursor_ = new Panel(this);
    aRecta_ = new CampoInfo(panelCursor_);
    dec_ = new CampoInfo(panelCursor_);
    altitud_ = new CampoInfo(panelCursor_);
    azimut_ = new CampoInfo(panelCursor_);
    aRecta_->setAccessibleName(QStringLiteral("Ascensión recta del cursor"));
    dec_->setAccessibleName(QStringLiteral("Declinación del cursor"));
    altitud_->setAccessibleName(QStringLiteral("Altitud del cursor"));
    azimut_->setAccessibleName(QStringLiteral("Azimut del cursor"));
    connect(vista_, &VistaCielo::CursorMovido, this, [this](const TextosCursor& t) {
        aRecta_->FijaTexto(Q(" " + t.AR));
        dec_->FijaTexto(Q(" " + t.DEC));
        altitud_->FijaTexto(Q(" " + t.Altitud));
        azimut_->FijaTexto(Q(" " + t.Azimut));
    });

    panelObjetos_ = new Panel(this);
    leyenda_ = new PanelLeyenda(e_, panelObjetos_);
}

void Cielo::resizeEvent(QResizeEvent*) { Coloca(); }

void Cielo::ActualizaCielo() {
    Coloca();
    vista_->ActualizaCielo();
}

void Cielo::DibujaCielo() {
    Coloca();
    vista_->DibujaCielo();
}

void Cielo::RefrescaCampos() {
    // The texts follow the state even between passes (the time arrows step
    // the date without redrawing the sky).
    const PanelInformacion p = TextosPanel(e_);
    fecJul_->FijaTexto(Q(p.DiaJuliano));
    fecUni_->FijaTexto(Q(p.FechaUniversal));
    horUni_->FijaTexto(Q(p.HoraUniversal));
    fecLoc_->FijaTexto(Q(p.FechaLocal));
    horLoc_->FijaTexto(Q(p.HoraLocal));
    direc_->FijaTexto(Q(p.Direccion));
    eleva_->FijaTexto(Q(p.Elevacion));
    zoom_->FijaTexto(Q(p.Zoom));
    longi_->FijaTexto(Q(" " + TextoLongitud(e_.Longitud)));
    lati_->FijaTexto(Q(" " + TextoLatitud(e_.Latitud)));
    std::string lugar = e_.TextoLugar;
    if (lugar.find_first_not_of(' ') == std::string::npos && e_.IndiceLugar >= 0 &&
        e_.IndiceLugar < static_cast<int>(c_.TablaCiudades.size()))
        lugar = c_.TablaCiudades[static_cast<std::size_t>(e_.IndiceLugar)].Nombre.texto();
    loca_->FijaTexto(Q(" " + lugar));
    pulsador45_->setVisible(e_.Centrado);
    // What each arrow pair steps, for the screen reader.
    subbaj_[flechas::Direccion]->setValor(direc_->Texto().trimmed());
    subbaj_[flechas::Elevacion]->setValor(eleva_->Texto().trimmed());
    subbaj_[flechas::Zoom]->setValor(zoom_->Texto().trimmed());
    subbaj_[flechas::Tiempo]->setValor(fecLoc_->Texto().trimmed() + " " + horLoc_->Texto().trimmed());
    subbaj_[flechas::Animacion]->setValor(ventana_.Enganche ? QStringLiteral("en marcha") : QStringLiteral("parada"));
}

void Cielo::Abre(const std::function<void(ContextoDialogo&)>& abre, bool cargaConfiguraciones) {
    // A dialog leaves the situation that a centring saved behind: the
    // restore button goes, and comes back only if the dialog centres anew.
    e_.Centrado = false;
    pulsador45_->hide();
    e_.Cambiado = false;
    if (abre) abre(contexto_);
    // Whatever the dialog changed is on the screen when it closes, even if
    // it did not redraw itself (the time, the real-time start).
    if (e_.Cambiado)
        ActualizaCielo();
    else
        Coloca();
    RefrescaCampos();
    // A loaded configuration may ask to be animated at once.
    bool animar = e_.AnimarTrasCambio || (cargaConfiguraciones && e_.IncluirAnimacion);
    if (e_.Cambiado && animar) SubBajHaPulsado(flechas::Animacion, 35);
}

void Cielo::BotonSoltado(int k) {
    controles::Suena(controles_, 0, 9);
    ventana_.Sujecion = false;
    ventana_.Enganche = false;
    switch (k) {
        case boton::Configuraciones: Abre(dialogos_.CargaGuar, true); break;
        case boton::Personalizar: Abre(dialogos_.Personal); break;
        case boton::Localizacion: Abre(dialogos_.Locali); break;
        case boton::FechaHora: Abre(dialogos_.Hora); break;
        case boton::Objetos: Abre(dialogos_.Objetos); break;
        case boton::Buscar: Abre(dialogos_.Buscar); break;
        case boton::Imprimir: Abre(dialogos_.Impresor); break;
        case boton::Ayuda: contexto_.Ayuda(1020); break;
        case boton::Salir: {
            const int16_t respuesta =
                mensajes_.Mensaje(A1252("Va a abandonar el programa  VEDRANO.   Para confirmarlo pulse el  Botón  Aceptar.   "
                                        "Para volver al programa pulse el Botón Cancelar."),
                                  "Salir de VEDRANO", 2, 2);
            if (respuesta != 0) {
                ventana_.SalidaConfirmada = true;
                close();
                QApplication::quit();
            }
            break;
        }
        default: break;
    }
}

void Cielo::PulsadorAccionado(int k) {
    if (k == control::Animacion) {
        ventana_.Sujecion = false;
        ventana_.Enganche = false;
        Abre(dialogos_.Animar);
        return;
    }
    if (k == control::Restaurar) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        LeeConfiguracion(e_, "Temporal.wrk", mensajes_);
        e_.Centrado = false;
        ActualizaCielo();
        QApplication::restoreOverrideCursor();
    }
}

void Cielo::keyPressEvent(QKeyEvent* ev) {
    // Keys that no control used: the arrow pairs' steps. "q", "Q" and Esc
    // minimise, as before.
    switch (ev->key()) {
        case Qt::Key_Q:
        case Qt::Key_Escape: showMinimized(); return;
        case Qt::Key_Left: PasoTecla(flechas::Direccion, -1); return;
        case Qt::Key_Right: PasoTecla(flechas::Direccion, 1); return;
        case Qt::Key_Down: PasoTecla(flechas::Elevacion, -1); return;
        case Qt::Key_Up: PasoTecla(flechas::Elevacion, 1); return;
        case Qt::Key_Minus: PasoTecla(flechas::Zoom, -1); return;
        case Qt::Key_Plus:
        case Qt::Key_Equal: PasoTecla(flechas::Zoom, 1); return;
        case Qt::Key_PageUp: PasoTecla(flechas::Tiempo, -1); return;
        case Qt::Key_PageDown: PasoTecla(flechas::Tiempo, 1); return;
        case Qt::Key_Space:
            if (!ev->isAutoRepeat()) PasoTecla(flechas::Animacion, e_.PasoDias < 0 ? -1 : 1);
            return;
        case Qt::Key_I: {
            const QPoint p = vista_->mapFromGlobal(QCursor::pos());
            if (vista_->rect().contains(p)) InformaObjeto(vista_->ObjetoEn(p));
            return;
        }
        default: QWidget::keyPressEvent(ev);
    }
}

void Cielo::Atajos() {
    struct Atajo {
        QKeySequence teclas;
        std::function<void()> accion;
    };
    const Atajo atajos[] = {
        {QKeySequence(Qt::CTRL | Qt::Key_F), [this] { BotonSoltado(boton::Buscar); }},
        {QKeySequence(Qt::CTRL | Qt::Key_O), [this] { BotonSoltado(boton::Configuraciones); }},
        {QKeySequence(Qt::CTRL | Qt::Key_S), [this] { BotonSoltado(boton::Configuraciones); }},
        {QKeySequence(Qt::CTRL | Qt::Key_P), [this] { BotonSoltado(boton::Imprimir); }},
        {QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { BotonSoltado(boton::Salir); }},
        {QKeySequence(Qt::Key_F11), [this] { isFullScreen() ? showNormal() : showFullScreen(); }},
    };
    for (const Atajo& a : atajos) {
        auto* s = new QShortcut(a.teclas, this);
        connect(s, &QShortcut::activated, this, a.accion);
    }
}

void Cielo::InformaObjeto(const ObjetoSenalado& objeto) {
    if (objeto.clase == ClaseObjeto::Ninguno || !dialogos_.Informacion) return;
    ventana_.Sujecion = ventana_.Enganche = false;  // as every form does, it stops the animation
    dialogos_.Informacion(contexto_, objeto);
}

void Cielo::AyudaContexto() {
    QWidget* forma = QApplication::activeModalWidget();
    if (!forma) forma = QApplication::activeWindow();
    int t = dialogos_.TemaDe && forma ? dialogos_.TemaDe(forma) : 0;
    contexto_.Ayuda(t != 0 ? t : 1030);
}

bool Cielo::eventFilter(QObject* objeto, QEvent* ev) {
    if (ev->type() != QEvent::KeyPress || !objeto->isWidgetType()) return QWidget::eventFilter(objeto, ev);
    auto* k = static_cast<QKeyEvent*>(ev);
    if (k->key() == Qt::Key_F1 && k->modifiers() == Qt::NoModifier) {
        // F1 from any window: the help of the form in front.
        AyudaContexto();
        return true;
    }
    if (k->key() == Qt::Key_Escape && k->modifiers() == Qt::NoModifier) {
        // Esc in a form leaves it as its exit button does (sound and all).
        QWidget* forma = static_cast<QWidget*>(objeto)->window();
        if (forma != this && qobject_cast<QDialog*>(forma))
            for (auto* b : forma->findChildren<controles::BotonDialogo*>())
                if (b->tipo() == controles::BotonDialogo::Tipo::Salir && b->isVisible() && b->window() == forma) {
                    b->acciona();
                    return true;
                }
    }
    return QWidget::eventFilter(objeto, ev);
}

void Cielo::closeEvent(QCloseEvent* ev) {
    // Closing the window asks as the exit button does.
    if (ventana_.SalidaConfirmada) {
        ventana_.Sujecion = ventana_.Enganche = false;
        ev->accept();
        return;
    }
    ev->ignore();
    BotonSoltado(boton::Salir);
}

}  // namespace vedrano
