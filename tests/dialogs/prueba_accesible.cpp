// What a screen reader gets: through QAccessible, every control of the
// main window and of each form has a name, and every control that holds a
// value tells it; every painted control takes the focus with Tab; the
// keys act as the mouse gestures do.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>
#include <functional>
#include <set>

#include "../ui/EntornoQt.h"
#include "../ui/Falsos.h"
#include "../ui/VentanaPrueba.h"
#include "ContextoPrueba.h"
#include "dialogs/piezas/Ayuda.h"
#include "dialogs/piezas/Mensajes.h"
#include "ui/cielo/Cielo.h"
#include "ui/cielo/IndicesCielo.h"
#include "ui/cielo/Paneles.h"
#include "ui/controles/Interruptor.h"
#include "ui/controles/Potenciometro.h"
#include "ui/controles/Selector.h"
#include "ui/controles/Spin.h"
#include "ui/controles/SubBaj.h"

using namespace vedrano;

namespace {

bool TieneValor(QAccessible::Role r) {
    return r == QAccessible::CheckBox || r == QAccessible::SpinBox || r == QAccessible::Slider ||
           r == QAccessible::ComboBox || r == QAccessible::StaticText;
}

// Reads every control of a window through QAccessible; returns how many
// were read.
int LeeControles(QWidget* forma) {
    int leidos = 0;
    for (QWidget* w : forma->findChildren<QWidget*>()) {
        const bool propio = dynamic_cast<controles::Accesible*>(w) != nullptr;
        const bool estandar = qobject_cast<QLineEdit*>(w) || qobject_cast<QListWidget*>(w) ||
                              qobject_cast<QTextBrowser*>(w);
        if (!propio && !estandar) continue;
        if (w->isHidden() && !qobject_cast<QListWidget*>(w)) continue;
        QAccessibleInterface* i = QAccessible::queryAccessibleInterface(w);
        EXPECT_NE(i, nullptr);
        if (!i) continue;
        const std::string donde = forma->metaObject()->className() + std::string(" / ") +
                                  w->metaObject()->className() + " " + i->text(QAccessible::Name).toStdString();
        EXPECT_FALSE(i->text(QAccessible::Name).trimmed().isEmpty()) << donde;
        if (propio && TieneValor(i->role())) {
            const QString valor = i->text(QAccessible::Value);
            if (auto* c = qobject_cast<CampoInfo*>(w)) {
                EXPECT_EQ(valor, c->Texto().trimmed()) << donde;
            } else {
                EXPECT_FALSE(valor.isEmpty()) << donde;
            }
        }
        if (qobject_cast<QLineEdit*>(w)) {
            EXPECT_EQ(i->text(QAccessible::Value), static_cast<QLineEdit*>(w)->text());
        }
        if (propio) {
            EXPECT_TRUE(w->focusPolicy() & Qt::TabFocus) << donde;
        }
        ++leidos;
    }
    return leidos;
}

using pruebas::Tecla;

}  // namespace

TEST(Accesible, MainWindowControlsHaveNameAndValueAndAllTakeTheFocus) {
    pruebas::VentanaPrueba v;
    v.e.PanelCursor = true;
    Cielo& cielo = v.Abre();
    EXPECT_GE(LeeControles(&cielo), 9 + 5 + 1 + 16);

    QAccessibleInterface* direccion = QAccessible::queryAccessibleInterface(cielo.SubBaj(flechas::Direccion));
    EXPECT_EQ(direccion->text(QAccessible::Name), QStringLiteral("Dirección"));
    EXPECT_EQ(direccion->role(), QAccessible::SpinBox);
    EXPECT_TRUE(direccion->text(QAccessible::Value).startsWith(QStringLiteral("Dirección = ")));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(cielo.Boton(boton::Buscar))->text(QAccessible::Name),
              QStringLiteral("Buscar objetos"));

    // Tab goes round the window's focus chain, stopping at the widgets
    // that take the focus with it: every visible control is among them.
    std::set<QWidget*> alcanzados;
    QWidget* w = &cielo;
    for (int k = 0; k < 1000; ++k) {
        w = w->nextInFocusChain();
        if ((w->focusPolicy() & Qt::TabFocus) && w->isVisibleTo(&cielo) && w->isEnabled()) alcanzados.insert(w);
        if (w == &cielo) break;
    }
    for (QWidget* w : cielo.findChildren<QWidget*>())
        if (dynamic_cast<controles::Accesible*>(w) && w->isVisibleTo(&cielo))
            EXPECT_TRUE(alcanzados.count(w)) << w->metaObject()->className() << " "
                                             << w->accessibleName().toStdString();
}

TEST(Accesible, EveryFormTellsNameAndValueOfEachControl) {
    pruebas::Falsos f;
    pruebas::EntornoDialogo d;
    std::vector<std::unique_ptr<QWidget>> formas;
    for (auto& f : pruebas::Formas(d.ctx)) formas.push_back(std::move(f));
    formas.push_back(std::make_unique<Mensajes>(d.e, d.controles, nullptr, "Texto", "Titulo", 2, 1, 1020));
    formas.push_back(std::make_unique<VentanaAyuda>(d.controles, nullptr, tema::TECLADO));
    for (const auto& forma : formas) {
        forma->show();
        EXPECT_GE(LeeControles(forma.get()), 2) << forma->metaObject()->className();
    }
}

// Space and Return press, the arrows step: as the mouse gestures do.
TEST(Accesible, KeysActAsTheMouseGestures) {
    pruebas::Falsos f;
    bool sonido = false;
    int16_t velocidad = 100;
    controles::Contexto k{sonido, velocidad};
    QWidget forma;
    controles::Interruptor interruptor(k, 1, &forma);
    int cambios = 0;
    QObject::connect(&interruptor, &controles::Interruptor::cambiado, [&](bool) { ++cambios; });
    Tecla(&interruptor, Qt::Key_Space);
    EXPECT_TRUE(interruptor.encendido());
    Tecla(&interruptor, Qt::Key_Return);
    EXPECT_FALSE(interruptor.encendido());
    Tecla(&interruptor, Qt::Key_A);  // not its key: nothing
    EXPECT_EQ(cambios, 2);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&interruptor)->state().checkable, 1);

    controles::Potenciometro deslizador(k, 1, &forma);
    deslizador.setPosicion(50);
    Tecla(&deslizador, Qt::Key_Right);
    Tecla(&deslizador, Qt::Key_PageDown);
    EXPECT_EQ(deslizador.posicion(), 41);
    Tecla(&deslizador, Qt::Key_End);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&deslizador)->text(QAccessible::Value), QStringLiteral("100"));

    controles::Selector selector(k, 1, {"uno", "dos", "tres"}, &forma);
    Tecla(&selector, Qt::Key_Space);
    EXPECT_EQ(selector.eleccion(), 2);
    Tecla(&selector, Qt::Key_Left);
    Tecla(&selector, Qt::Key_Left);
    EXPECT_EQ(selector.eleccion(), 3);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&selector)->text(QAccessible::Value), QStringLiteral("tres"));

    // A spin steps by its record and stops at its ends; the arrow keys
    // reach it from its text field too.
    controles::Spin spin(k, 30, &forma);
    float almacenado = -1;
    spin.setAlmacen([&](float v) { almacenado = v; });
    spin.setValor(14.5f);
    Tecla(&spin, Qt::Key_Up);
    EXPECT_FLOAT_EQ(almacenado, 15.0f);
    Tecla(spin.campo(), Qt::Key_Up);
    EXPECT_FLOAT_EQ(spin.valor(), 15.0f);
    Tecla(spin.campo(), Qt::Key_Down);
    EXPECT_FLOAT_EQ(almacenado, 14.5f);
}
