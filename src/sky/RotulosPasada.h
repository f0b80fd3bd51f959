// The labels of one rendering pass, so that they can be read.
//
// Printing every label, as the classic pass does, leaves most of them on
// top of one another where the sky is crowded. By decision this program
// draws a label only when it does not overlap a label of a brighter or
// larger object: the pass is first run measuring only, each label giving
// its box and its rank; the boxes are then placed in order of rank in an
// occupancy grid, and in the drawing run a label is printed only when its
// box found room. Labels are still printed in their layer's turn, so the
// order of the layers decides what lies on top. The program preference
// "Todos los rótulos" restores printing every label.
#pragma once
#include <QRect>
#include <vector>

namespace vedrano {

class RotulosPasada {
public:
    // A pass that prints every label.
    void Todos();
    // A measuring run over a picture of this size.
    void EmpiezaMedida(int ancho, int alto);
    // Measuring: the box of the next label and its rank (higher wins).
    void Mide(const QRect& caja, float prioridad);
    // Ends the measuring run: chooses the labels that are printed.
    void Resuelve();
    // Drawing: whether the next label is printed; `visible` says whether its
    // box meets the picture, for the count.
    bool Toca(bool visible);
    // Labels printed inside the picture in the last drawing run.
    int Dibujados() const { return dibujados_; }

private:
    struct Medido {
        QRect caja;
        float prioridad;
    };
    bool Cabe(const QRect& caja) const;
    void Ocupa(int indice);

    bool todos_ = true;
    int ancho_ = 0, alto_ = 0, columnas_ = 0, filas_ = 0;
    std::vector<Medido> medidos_;
    std::vector<char> gana_;
    std::vector<std::vector<int>> celdas_;  // accepted labels touching each cell
    std::size_t siguiente_ = 0;
    int dibujados_ = 0;
};

}  // namespace vedrano
