#include "sky/RotulosPasada.h"

#include <algorithm>
#include <numeric>

namespace vedrano {

namespace {

constexpr int CELDA = 16;  // pixels across a cell of the occupancy grid

}  // namespace

void RotulosPasada::Todos() {
    todos_ = true;
    medidos_.clear();
    gana_.clear();
    siguiente_ = 0;
    dibujados_ = 0;
}

void RotulosPasada::EmpiezaMedida(int ancho, int alto) {
    Todos();
    todos_ = false;
    ancho_ = ancho;
    alto_ = alto;
    columnas_ = (ancho + CELDA - 1) / CELDA;
    filas_ = (alto + CELDA - 1) / CELDA;
}

void RotulosPasada::Mide(const QRect& caja, float prioridad) { medidos_.push_back({caja, prioridad}); }

bool RotulosPasada::Cabe(const QRect& caja) const {
    int c0 = std::max(0, caja.left() / CELDA), c1 = std::min(columnas_ - 1, caja.right() / CELDA);
    int f0 = std::max(0, caja.top() / CELDA), f1 = std::min(filas_ - 1, caja.bottom() / CELDA);
    for (int f = f0; f <= f1; ++f)
        for (int c = c0; c <= c1; ++c)
            for (int j : celdas_[static_cast<std::size_t>(f * columnas_ + c)])
                if (medidos_[static_cast<std::size_t>(j)].caja.intersects(caja)) return false;
    return true;
}

void RotulosPasada::Ocupa(int indice) {
    const QRect& caja = medidos_[static_cast<std::size_t>(indice)].caja;
    int c0 = std::max(0, caja.left() / CELDA), c1 = std::min(columnas_ - 1, caja.right() / CELDA);
    int f0 = std::max(0, caja.top() / CELDA), f1 = std::min(filas_ - 1, caja.bottom() / CELDA);
    for (int f = f0; f <= f1; ++f)
        for (int c = c0; c <= c1; ++c) celdas_[static_cast<std::size_t>(f * columnas_ + c)].push_back(indice);
}

void RotulosPasada::Resuelve() {
    std::vector<int> orden(medidos_.size());
    std::iota(orden.begin(), orden.end(), 0);
    // Higher rank first; among equals, the one printed first (catalogues
    // list their brightest or largest records first).
    std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) {
        return medidos_[static_cast<std::size_t>(a)].prioridad > medidos_[static_cast<std::size_t>(b)].prioridad;
    });
    // The cells keep their storage from pass to pass: emptied, not remade.
    celdas_.resize(static_cast<std::size_t>(columnas_ * filas_));
    for (auto& celda : celdas_) celda.clear();
    gana_.assign(medidos_.size(), 0);
    const QRect imagen(0, 0, ancho_, alto_);
    for (int i : orden) {
        const QRect& caja = medidos_[static_cast<std::size_t>(i)].caja;
        if (caja.isEmpty() || !caja.intersects(imagen) || !Cabe(caja)) continue;
        gana_[static_cast<std::size_t>(i)] = 1;
        Ocupa(i);
    }
    siguiente_ = 0;
    dibujados_ = 0;
}

bool RotulosPasada::Toca(bool visible) {
    // A label the measuring run did not see (there is none when both runs
    // draw the same layers) is printed.
    bool sale = todos_ || siguiente_ >= gana_.size() || gana_[siguiente_] != 0;
    ++siguiente_;
    if (sale && visible) ++dibujados_;
    return sale;
}

}  // namespace vedrano
