#include "app/gui/Dialogos.h"

#include "dialogs/Ayuda.h"
#include "dialogs/Careta.h"
#include "dialogs/CargaGuar.h"
#include "dialogs/Objetos.h"
#include "dialogs/Personal.h"

namespace vedrano {

DialogosCielo Dialogos(Estado& e) {
    DialogosCielo d;
    d.CargaGuar = AbreCargaGuar;
    d.Personal = AbrePersonal;
    d.Objetos = AbreObjetos;
    d.Ayuda = [&e](QWidget* padre, int tema) { MuestraAyuda(e, padre, tema); };
    return d;
}

QPointer<QWidget> MuestraCareta(const Estado& e) { return AbreCareta(e); }

void CierraCareta(QPointer<QWidget> careta, QWidget* cielo) {
    if (auto* c = qobject_cast<Careta*>(careta.data())) c->cierraCuandoListo(cielo);
}

}  // namespace vedrano
