#include "platform/qt/PantallaQt.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

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
