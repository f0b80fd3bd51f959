// The cover shown while the program starts: the name, the version and a
// picture of the sky. Told that the main window is ready, it goes away by
// itself once it has been seen for a moment.
#pragma once
#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

namespace vedrano {

struct Estado;

class Careta : public QWidget {
    Q_OBJECT
public:
    explicit Careta(const Estado& e);
    // `cielo` is ready: the cover stays above it for what is left of its
    // minimum time, then closes.
    void cierraCuandoListo(QWidget* cielo);
    // How long the cover stays at least, in ms: scaled by the speed setting.
    int tiempoMinimo() const;

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    // Any modal window (a message, a question) closes the cover first: kept
    // on top, the cover would hide it.
    bool eventFilter(QObject* objeto, QEvent* ev) override;

private:
    void cierraPronto();

    const Estado& e_;
    QElapsedTimer reloj_;
    QPointer<QWidget> cielo_;
    bool cerrando_ = false;
};

// Creates the cover, centred on the screen, and shows it modeless; it
// deletes itself when it closes.
Careta* AbreCareta(const Estado& e);

}  // namespace vedrano
