// Shared by the widget tests: the one QApplication, made on first use, and
// mouse events sent straight to a widget.
#pragma once
#include <QApplication>
#include <functional>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

namespace pruebas {

inline void AseguraAplicacion() {
    if (QApplication::instance()) return;
    static int argc = 1;
    static char nombre[] = "vedrano_pruebas_ui";
    static char* argv[] = {nombre, nullptr};
    new QApplication(argc, argv);
}

inline void Raton(QWidget* w, QEvent::Type tipo, QPoint p, Qt::MouseButton boton = Qt::LeftButton) {
    const Qt::MouseButtons pulsados = tipo == QEvent::MouseButtonPress ? Qt::MouseButtons(boton)
                                      : tipo == QEvent::MouseMove    ? Qt::MouseButtons(Qt::NoButton)
                                                                     : Qt::MouseButtons(Qt::NoButton);
    QMouseEvent ev(tipo, QPointF(p), QPointF(w->mapToGlobal(p)), tipo == QEvent::MouseMove ? Qt::NoButton : boton,
                   pulsados, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &ev);
}

// A click: press and release at the same point.
inline void Clic(QWidget* w, QPoint p, Qt::MouseButton boton = Qt::LeftButton) {
    Raton(w, QEvent::MouseButtonPress, p, boton);
    Raton(w, QEvent::MouseButtonRelease, p, boton);
}

// A click in the middle of a widget.
inline void Pulsa(QWidget* w) { Clic(w, QPoint(w->width() / 2, w->height() / 2)); }

// A key pressed on a widget, with the text it types.
inline void Tecla(QWidget* w, int tecla, Qt::KeyboardModifiers mod = Qt::NoModifier, const QString& texto = {}) {
    QKeyEvent ev(QEvent::KeyPress, tecla, mod, texto);
    QCoreApplication::sendEvent(w, &ev);
}

// Text typed key by key.
inline void Escribe(QWidget* w, const QString& texto) {
    for (QChar ch : texto) Tecla(w, ch.toUpper().unicode(), Qt::NoModifier, QString(ch));
}

// Text typed over all that a field held.
inline void EscribeEncima(QLineEdit* campo, const QString& texto) {
    campo->selectAll();
    Tecla(campo, Qt::Key_Delete);
    Escribe(campo, texto);
}

// A click on line `fila` of a list; `doble` follows it with a double click.
inline void ClicLinea(QListWidget* l, int fila, bool doble = false) {
    l->scrollToItem(l->item(fila));
    const QPoint p = l->visualItemRect(l->item(fila)).center();
    Clic(l->viewport(), p);
    if (!doble) return;
    QMouseEvent ev(QEvent::MouseButtonDblClick, QPointF(p), QPointF(l->viewport()->mapToGlobal(p)), Qt::LeftButton,
                   Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(l->viewport(), &ev);
    Raton(l->viewport(), QEvent::MouseButtonRelease, p);
}

// The text shown by the field of type Campo named `nombre` (its accessible
// name) inside `ventana`; empty, and a failure, when there is none.
template <class Campo>
QString TextoCampo(const QWidget& ventana, const char* nombre) {
    for (const Campo* f : ventana.findChildren<Campo*>())
        if (f->accessibleName() == QString::fromUtf8(nombre)) return f->Texto();
    ADD_FAILURE() << "no hay campo " << nombre;
    return {};
}

// Runs `accion` on the first modal window of type T that comes up.
template <class T>
void CuandoAparezca(std::function<void(T&)> accion) {
    auto* t = new QTimer;
    t->setInterval(5);
    QObject::connect(t, &QTimer::timeout, [t, accion] {
        if (auto* d = qobject_cast<T*>(QApplication::activeModalWidget())) {
            t->stop();
            t->deleteLater();
            accion(*d);
        }
    });
    t->start();
}

}  // namespace pruebas
