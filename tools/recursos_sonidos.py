"""The click sounds: short decaying tones with a touch of repeatable noise."""
import math
import wave


FRECUENCIA = 22050


class Azar:
    """A small linear congruential generator, so that the noise repeats."""

    def __init__(self, semilla):
        self.s = semilla

    def __call__(self):
        self.s = (1103515245 * self.s + 12345) & 0x7FFFFFFF
        return self.s / 0x7FFFFFFF * 2 - 1


def chasquido(muestras, tono, caida, ruido, semilla):
    """8-bit unsigned mono: a decaying tone with a touch of noise."""
    azar = Azar(semilla)
    datos = bytearray()
    for n in range(muestras):
        t = n / FRECUENCIA
        ataque = min(1.0, n / 22.0)
        env = ataque * math.exp(-t / caida)
        v = env * ((1 - ruido) * math.sin(2 * math.pi * tono * t) + ruido * azar())
        # Fade the last samples to silence so that no click is left at the end.
        cola = min(1.0, (muestras - n) / 40.0)
        datos.append(max(0, min(255, int(round(128 + 100 * v * cola)))))
    return bytes(datos)


# (number, bytes of the whole file, tone, decay in s, share of noise)
SONIDOS = [
    (4, 7008, 1750.0, 0.012, 0.15),
    (6, 912, 700.0, 0.010, 0.45),
    (7, 1108, 1200.0, 0.010, 0.35),
    (9, 520, 2400.0, 0.004, 0.30),
]


def escribe_wav(ruta, datos):
    with wave.open(ruta, "wb") as w:
        w.setnchannels(1)
        w.setsampwidth(1)
        w.setframerate(FRECUENCIA)
        w.writeframes(datos)
