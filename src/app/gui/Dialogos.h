// The dialogs of the main window and the cover, as the start-up wires them.
#pragma once
#include <QPointer>

#include "ui/cielo/Cielo.h"

namespace vedrano {

DialogosCielo Dialogos(Estado& e, controles::Contexto& controles);

// The help topic of one of the program's forms; 0 for any other window.
int TemaDeForma(QWidget* forma);

// The cover shown while the program starts; it closes by itself once the
// main window is active.
QPointer<QWidget> MuestraCareta(const Estado& e);
void CierraCareta(QPointer<QWidget> careta, QWidget* cielo);

}  // namespace vedrano
