#include "app/gui/Dialogos.h"

#include "dialogs/Animar.h"
#include "dialogs/piezas/Ayuda.h"
#include "dialogs/Buscar.h"
#include "dialogs/Careta.h"
#include "dialogs/CargaGuar.h"
#include "dialogs/Hora.h"
#include "dialogs/Impresor.h"
#include "dialogs/InfoObjeto.h"
#include "dialogs/Locali.h"
#include "dialogs/piezas/Mensajes.h"
#include "dialogs/Objetos.h"
#include "dialogs/Personal.h"

namespace vedrano {

DialogosCielo Dialogos(Estado& e, controles::Contexto& controles) {
    DialogosCielo d;
    d.CargaGuar = AbreCargaGuar;
    d.Personal = AbrePersonal;
    d.Objetos = AbreObjetos;
    d.Locali = AbreLocali;
    d.Hora = AbreHora;
    d.Buscar = AbreBuscar;
    d.Impresor = AbreImpresor;
    d.Animar = AbreAnimar;
    d.Ayuda = [&controles](QWidget* padre, int tema) { MuestraAyuda(controles, padre, tema); };
    d.TemaDe = TemaDeForma;
    d.Informacion = AbreInfoObjeto;
    d.Mensaje = [&e, &controles](QWidget* padre, const std::string& texto, const std::string& titulo, int16_t botones,
                     int16_t icono) { return MuestraMensaje(e, controles, padre, texto, titulo, botones, icono); };
    return d;
}

int TemaDeForma(QWidget* forma) {
    if (qobject_cast<CargaGuar*>(forma)) return tema::CARGAGUAR;
    if (qobject_cast<Personal*>(forma)) return tema::PERSONAL;
    if (qobject_cast<Locali*>(forma)) return tema::LOCALI;
    if (qobject_cast<Hora*>(forma)) return tema::HORA;
    if (qobject_cast<Objetos*>(forma)) return tema::OBJETOS;
    if (qobject_cast<Buscar*>(forma)) return tema::BUSCAR;
    if (qobject_cast<Impresor*>(forma)) return tema::IMPRESOR;
    if (qobject_cast<Animar*>(forma)) return tema::ANIMAR;
    if (qobject_cast<InfoObjeto*>(forma)) return tema::TECLADO;
    if (auto* m = qobject_cast<Mensajes*>(forma)) return m->tema();
    return 0;
}

QPointer<QWidget> MuestraCareta(const Estado& e) { return AbreCareta(e); }

void CierraCareta(QPointer<QWidget> careta, QWidget* cielo) {
    if (auto* c = qobject_cast<Careta*>(careta.data())) c->cierraCuandoListo(cielo);
}

}  // namespace vedrano
