#include "app/gui/Dialogos.h"

#include "dialogs/Animar.h"
#include "dialogs/Ayuda.h"
#include "dialogs/Buscar.h"
#include "dialogs/Careta.h"
#include "dialogs/CargaGuar.h"
#include "dialogs/Hora.h"
#include "dialogs/Impresor.h"
#include "dialogs/Locali.h"
#include "dialogs/Objetos.h"
#include "dialogs/Personal.h"

namespace vedrano {

DialogosCielo Dialogos(Estado& e) {
    DialogosCielo d;
    d.CargaGuar = AbreCargaGuar;
    d.Personal = AbrePersonal;
    d.Objetos = AbreObjetos;
    d.Locali = AbreLocali;
    d.Hora = AbreHora;
    d.Buscar = AbreBuscar;
    d.Impresor = AbreImpresor;
    d.Animar = AbreAnimar;
    d.Ayuda = [&e](QWidget* padre, int tema) { MuestraAyuda(e, padre, tema); };
    return d;
}

QPointer<QWidget> MuestraCareta(const Estado& e) { return AbreCareta(e); }

void CierraCareta(QPointer<QWidget> careta, QWidget* cielo) {
    if (auto* c = qobject_cast<Careta*>(careta.data())) c->cierraCuandoListo(cielo);
}

}  // namespace vedrano
