// A clock that only moves when the pause sleeps, and a sound player that
// only counts: the tests read the durations and sounds the controls ask for.
#pragma once
#include <functional>
#include <vector>

#include "platform/Pausa.h"
#include "platform/Sonido.h"

namespace pruebas {

class RelojFalso : public vedrano::plataforma::RelojPausa {
public:
    unsigned long Milisegundos() override { return ahora; }
    void Duerme(unsigned long ms) override {
        ahora += ms;
        ++siestas;
        if (alDormir) alDormir(siestas);
    }
    unsigned long ahora = 1000;
    int siestas = 0;
    std::function<void(int)> alDormir;
};

class SonidosFalsos : public vedrano::plataforma::ReproductorSonidos {
public:
    void Reproduce(int numero, bool) override { oidos.push_back(numero); }
    std::vector<int> oidos;
};

// Installs both for the life of the object.
struct Falsos {
    Falsos() {
        vedrano::plataforma::FijaRelojPausa(&reloj);
        vedrano::plataforma::FijaReproductor(&sonidos);
    }
    ~Falsos() {
        vedrano::plataforma::FijaRelojPausa(nullptr);
        vedrano::plataforma::FijaReproductor(nullptr);
    }
    RelojFalso reloj;
    SonidosFalsos sonidos;
};

}  // namespace pruebas
