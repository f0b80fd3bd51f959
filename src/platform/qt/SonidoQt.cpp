// The click sounds: PlaySoundA from the resource bytes on Windows, Qt
// Multimedia elsewhere. Without an output device nothing is created and
// nothing is played, so a silent machine never waits or fails.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <map>

#include "platform/Sonido.h"

#ifdef _WIN32
#include <windows.h>
#include <mmsystem.h>
#else
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>
#endif

namespace vedrano::plataforma {

namespace {

QString RutaSonido(int numero) { return QStringLiteral(":/sonidos/%1.wav").arg(numero); }

#ifdef _WIN32
class ReproductorSistema : public ReproductorSonidos {
public:
    void Reproduce(int numero, bool esperar) override {
        auto it = datos_.find(numero);
        if (it == datos_.end()) {
            QFile f(RutaSonido(numero));
            QByteArray bytes;
            if (f.open(QIODevice::ReadOnly)) bytes = f.readAll();
            it = datos_.emplace(numero, bytes).first;
        }
        if (it->second.isEmpty()) return;
        // The bytes stay alive in the map while an asynchronous sound plays.
        PlaySoundA(it->second.constData(), nullptr, SND_MEMORY | (esperar ? 0 : SND_ASYNC));
    }

private:
    std::map<int, QByteArray> datos_;
};
#else
class ReproductorSistema : public ReproductorSonidos {
public:
    void Reproduce(int numero, bool /*esperar*/) override {
        // Qt plays in the background; the pauses that follow each sound in
        // the controls give it its time, so no wait is added here.
        if (!hayDispositivo()) return;
        auto it = efectos_.find(numero);
        if (it == efectos_.end()) {
            auto* efecto = new QSoundEffect();  // lives as long as the program
            efecto->setSource(QUrl(QStringLiteral("qrc") + RutaSonido(numero)));
            it = efectos_.emplace(numero, efecto).first;
        }
        if (it->second->status() == QSoundEffect::Error) return;
        it->second->play();
    }

private:
    bool hayDispositivo() {
        if (dispositivo_ < 0) dispositivo_ = QMediaDevices::defaultAudioOutput().isNull() ? 0 : 1;
        return dispositivo_ == 1;
    }
    int dispositivo_ = -1;
    std::map<int, QSoundEffect*> efectos_;
};
#endif

ReproductorSonidos* reproductorActual = nullptr;

ReproductorSonidos& Sistema() {
    static ReproductorSistema reproductor;
    return reproductor;
}

}  // namespace

void FijaReproductor(ReproductorSonidos* reproductor) { reproductorActual = reproductor; }

void TocaSonido(bool activado, int modo, int numero) {
    if (!activado) return;
    (reproductorActual ? *reproductorActual : Sistema()).Reproduce(numero, modo == 0);
}

}  // namespace vedrano::plataforma
