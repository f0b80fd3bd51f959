// The click sounds of the controls (numbers 4, 6, 7 and 9), played through
// the operating system. A machine without sound stays silent.
#pragma once

namespace vedrano::plataforma {

class ReproductorSonidos {
public:
    virtual ~ReproductorSonidos() = default;
    // Starts sound `numero`; `esperar` asks to return when it has played.
    virtual void Reproduce(int numero, bool esperar) = 0;
};

// Makes every sound go to `reproductor`; nullptr goes back to the system's.
void FijaReproductor(ReproductorSonidos* reproductor);

// Plays sound `numero` when `activado` (the sound option) is on; mode 1
// returns at once, mode 0 waits for the sound where the system can.
void TocaSonido(bool activado, int modo, int numero);

}  // namespace vedrano::plataforma
