#include "platform/qt/PantallaQt.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QWidget>
#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#endif

namespace vedrano::plataforma {

int PantallaQt::Ancho() const {
    QScreen* s = QGuiApplication::primaryScreen();
    return s ? s->size().width() : 800;
}

int PantallaQt::Alto() const {
    QScreen* s = QGuiApplication::primaryScreen();
    return s ? s->size().height() : 600;
}

namespace {

// What a window manager's decorations usually take: a thin frame all
// round and a title bar above.
constexpr int MARCO = 4, TITULO = 32;

QRect Libre(const QWidget* cerca) {
    QScreen* s = cerca && cerca->isVisible() ? cerca->screen() : QGuiApplication::primaryScreen();
    return s ? s->availableGeometry() : QRect(0, 0, 800, 600);
}

}  // namespace

QRect AreaVentanas(const QWidget* cerca) { return Libre(cerca).adjusted(0, 0, -2 * MARCO, -(2 * MARCO + TITULO)); }

QPoint PosicionCentrada(const QSize& tamano, const QWidget* sobre) {
    const QWidget* ventana = sobre ? sobre->window() : nullptr;
    const bool visible = ventana && ventana->isVisible();
    const QRect area = AreaVentanas(visible ? ventana : nullptr);
    const QPoint centro = (visible ? ventana->frameGeometry() : Libre(nullptr)).center();
    QPoint p = centro - QPoint(tamano.width() / 2, tamano.height() / 2);
    p.setX(std::clamp(p.x(), area.left(), std::max(area.left(), area.right() + 1 - tamano.width())));
    p.setY(std::clamp(p.y(), area.top(), std::max(area.top(), area.bottom() + 1 - tamano.height())));
    return p;
}

std::string CarpetaSistema() {
#ifdef _WIN32
    char buffer[145];
    unsigned n = GetWindowsDirectoryA(buffer, sizeof buffer);
    std::string carpeta(buffer, n);
    if (carpeta.empty() || carpeta.back() != '\\') carpeta += '\\';
    return carpeta;
#else
    QString datos = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QDir().mkpath(datos + "/vedrano");
    return (datos + "/vedrano/").toStdString();
#endif
}

}  // namespace vedrano::plataforma
