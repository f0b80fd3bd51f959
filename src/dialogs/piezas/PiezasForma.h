// Pieces shared by the location, search and printing forms: the grey
// ground with its raised bevel, an embossed text, the fixed-pitch font of
// the column lists, and a list or text field dressed in the same look.
#pragma once
#include <QFont>
#include <QWidget>

class QListWidget;
class QLineEdit;

namespace vedrano {

// Grey (192, 192, 192) ground, white above and left, grey below and right.
void PintaFondoForma(QWidget* forma);

// An embossed text (printed white, then blue one pixel down and right).
class Relieve : public QWidget {
public:
    explicit Relieve(const QString& texto = {}, QWidget* padre = nullptr, QFont fuente = {});
    void setTexto(const QString& texto);
    QString texto() const { return texto_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QString texto_;
    QFont fuente_;
    bool propia_;
};

// The font of the lists whose columns line up with their header.
QFont FuenteColumnas();

// White list and text field in the form's font, sunken as the classic ones.
void VisteLista(QListWidget* lista, const QFont& fuente);
void VisteCampo(QLineEdit* campo);

}  // namespace vedrano
