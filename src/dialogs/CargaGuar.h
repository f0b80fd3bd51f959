// Keeping configurations: the list of the ".ls1" files of the configuration
// folder, loading one (it becomes the situation on the screen), saving the
// present situation under a typed name, and deleting a file after asking.
#pragma once
#include <string>
#include <vector>

#include "dialogs/piezas/MarcoOpciones.h"

class QListWidget;
class QLineEdit;

namespace vedrano {

namespace controles {
class Interruptor;
class Pulsador;
}  // namespace controles

class CargaGuar : public MarcoOpciones {
    Q_OBJECT
public:
    explicit CargaGuar(ContextoDialogo& ctx);

    // The ".ls1" files of `carpeta`, sorted without regard to case, every
    // one whatever its name, in UTF-8 as the file system names them.
    static std::vector<std::string> Configuraciones(const std::string& carpeta);

    QListWidget* lista() const { return lista_; }
    QLineEdit* nombre() const { return nombre_; }
    controles::Pulsador* cargar() const { return cargar_; }
    controles::Pulsador* guardar() const { return guardar_; }
    controles::Pulsador* borrar() const { return borrar_; }
    controles::Interruptor* incluirAnimacion() const { return animacion_; }

private:
    void llenaLista(const std::string& elegido);
    // The typed name as program text, or empty after telling the user.
    std::string nombreEscrito(const std::string& tituloCp1252);
    void carga();
    void guarda();
    void borra();

    QListWidget* lista_;
    QLineEdit* nombre_;
    controles::Pulsador* cargar_;
    controles::Pulsador* guardar_;
    controles::Pulsador* borrar_;
    controles::Interruptor* animacion_;
};

// Opens the form centred on the main window. Loading sets the changed flag
// and brings the picture up to date at once.
void AbreCargaGuar(ContextoDialogo& ctx);

}  // namespace vedrano
