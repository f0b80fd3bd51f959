// The application state: one record of the instant, the place, the view,
// the levels, pointing and interface flags. The program owns one instance
// and hands it by reference; tests and tools make their own. A fresh record
// holds the program's defaults (those used when no configuration is read;
// the configuration reader takes them from here).
//
// The derived values follow the fields they come from through setters, and
// the compiler holds every writer to them (app/estado/Fijado.h): the
// instant is set with FijaFechaJuliana (the time refresh), the place, zone
// and summer time with FijaLugar (the sidereal time), the view with
// FijaVista (the turned azimuth), the zoom and the orientation with FijaZoom
// and FijaOrientacion (the scale, for the picture size of the last pass);
// the derived values themselves are written only by the refreshes that
// derive them; the rendering pass refreshes all of
// them once more before it draws. The caches of the projection are plain
// fields filled through a writable state, never through a const one
// (app/estado/Derivados.h).
#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "app/base/Constantes.h"
#include "astro/Coordenadas.h"
#include "astro/Cuerpos.h"
#include "app/estado/Derivados.h"
#include "app/estado/Fijado.h"
#include "app/estado/Preferencias.h"

namespace vedrano {

// The four date fields and the time field shown for one kind of time.
struct CamposFecha {
    std::string Dia, Mes, Ano, Hora;
};

// The check boxes of the object options, 0 or 1 (anything non-zero is on),
// which gate the layers of the sky picture.
struct Interruptores {
    int16_t Sol = 1, Luna = 1;
    // Mercury .. Pluto; the Earth's place (index 2) is kept but never drawn.
    std::array<int16_t, 9> Plane{1, 1, 0, 1, 1, 1, 1, 1, 1};
    int16_t Galax = 0, NebPl = 0, NebDi = 0, CumAb = 0, CumGl = 0;
    int16_t Quasa = 0, Pulsa = 0, Aguje = 0;
    int16_t ARDEC30 = 0, ARDEC15 = 0;
    int16_t Horiz = 1, Eclip = 0, LimCo = 0, LuzDi = 0, ViaLa = 0, Messi = 0;
};

struct Estado {
    // Time.
    // FechaJuliana, the place and its zone, the view and the zoom are set
    // through their setters only (app/estado/Fijado.h).
    Fijado<double> FechaJuliana{2482294.0};  // 9 March 2084, 12:00 UT
    Fijado<float> ZonaHoraria{0.0f};
    Fijado<bool> HorarioVerano{false};
    int16_t FormatoHora = 1;
    int16_t PasoUnidad = 1;
    int16_t PasoCantidad = 1;
    double PasoDias = 1.0 / 1440.0;
    int16_t FecAno = 0, FecMes = 0, FecDia = 0, FecHora = 0, FecMinuto = 0;
    double FecFraccion = 0;
    bool TiempoCambiado = false;
    std::string TextoFecha, TextoHora;     // left by TextoFechaHora
    std::array<CamposFecha, 2> Fechas;     // 0 universal, 1 local (MuestraFechas)
    std::string TextoDiaJuliano;           // the Julian-day field
    bool CampoHorarioVerano = false;       // the daylight-saving switch as drawn

    // Place.
    int16_t IndiceLugar = 95;
    Fijado<double> Longitud{0.0829029977321625};  // radians, west positive
    Fijado<double> Latitud{0.640890002250671};    // radians, north positive
    std::string TextoLugar;

    // Sky quantities derived from time and place (the sidereal time and the
    // precession angles written only by the refreshes that derive them).
    Fijado<double> TiempoSidereo{0};
    bool Precesion = false;
    Fijado<double> PrecZeta{0}, PrecZ{0}, PrecTheta{0};
    double SolX = 0, SolZ = 0;
    std::array<PosicionCuerpo, 12> Planetas;  // index 3 Earth (the Sun's results), 10 Sun, 11 Moon

    // View.
    Fijado<double> Direccion{PI};  // looking south
    Fijado<double> Elevacion{ELEVACION_INICIAL};
    Fijado<float> Zoom{2.0f};
    Fijado<int16_t> Orientacion{1};  // 1 the sky as seen, 2 inverted (mirrored left to right)
    // Derived from the view: the turned azimuth (GiraDireccion) and the user
    // scale of the sky picture with its depth threshold (AjustaEscala), for
    // the pixels of the picture the scale was set for (0: none).
    Fijado<double> DireccionGirada{0};
    Fijado<float> Umbral{0};
    Fijado<float> EscalaIzquierda{0}, EscalaSuperior{0}, EscalaAncho{0}, EscalaAlto{0};
    Fijado<int> AnchoImagen{0}, AltoImagen{0};

    // Star and constellation levels and identification choices, and the
    // detail levels of the deep-sky categories.
    int16_t NivelEstrellas = 1;
    int16_t NivelConstelaciones = 1;
    int16_t IdEstrellas = 1, IdConstelaciones = 0, IdMessier = 0;
    int16_t NivelGalaxias = 3, NivelNebPlanetarias = 1, NivelNebDifusas = 1;
    int16_t NivelCumAbiertos = 1, NivelCumGlobulares = 1;
    bool IdentificarObjetos = true;  // names beside deep-sky objects
    Interruptores Capas;

    // Settings of the dialogs kept with a configuration.
    int16_t TipoPaso = 1;        // date and time form: 0 sidereal, 1 solar steps
    int16_t TeclaPaso = 3;       // date and time form: the step key last chosen (1..7)
    bool IncluirAnimacion = false;  // configuration dialog: animate after loading
    int16_t AnchoMm = 180, AltoMm = 130;  // printing: picture size on paper
    bool ImagenEnPantalla = false;        // printing: colours as on screen, not black on white
    bool DatosLocalizacion = true;        // printing: the place and its coordinates in the title
    bool PanelControl = true, PanelLocalizacion = true, PanelObjetos = true;
    bool Telescopio = false;
    double CampoTelescopio = CAMPO_TELESCOPIO_INICIAL;  // the telescope circle's angle, radians

    // Drawing: the colours of the four star kinds (&HBBGGRR: ordinary,
    // variable, multiple, both) and whether the Sun, Moon and planets are
    // recomputed with the scale.
    std::array<unsigned long, 4> ColoresEstrellas{0xFFFFFF, 0x60B0FF, 0xFFE0A0, 0x90FF90};
    bool ActualizarSistemaSolar = true;

    // Pointing.
    double ObjetivoAR = 0, ObjetivoDEC = 0;
    float CursorAltitud = 0, CursorAzimut = 0;
    bool PanelCursor = false, Marcar = false, MarcaVisible = false;
    bool CentrandoObjeto = false, Centrado = false;
    bool CorreccionLuna = false;  // one-shot extra time step of the next centring (the Moon's motion)

    // Interface flags that the forms and the configuration share (the
    // window keeps its own repeat, exit and pointer flags).
    bool Sonido = false, TiempoReal = false, AnimarTrasCambio = false;
    int16_t Velocidad = 50;
    bool Cambiado = false;
    int16_t RespuestaMensaje = 0;  // 0 = Cancel
    int16_t BotonesMensaje = 1, IconoMensaje = 0, TemaMensaje = 0;  // of the last message shown

    // Program preferences kept apart from the configuration files, and their
    // file (empty: not kept, as in tools and tests).
    Preferencias Pref;
    std::string ArchivoPreferencias;

    // Folders.
    std::string DirPrograma, DirArchivo, DirDatos;
    bool SoloLectura = false;
    static constexpr const char* SaltoLinea = "\r\n";

    // Caches of values derived from the fields above, each part keyed by
    // the fields it came from (app/estado/Derivados.h): written only through
    // a writable state by the Prepara... routines; a const state's reader
    // computes on the spot whatever is not up to date.
    DerivadosRotacion Derivados;
    InstantePreciso InstanteAlta;  // the precise model's Earth and rotation
};

}  // namespace vedrano
