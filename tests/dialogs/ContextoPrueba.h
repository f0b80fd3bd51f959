// What the search, location and printing tests share: the catalogues read
// once from Datos/, a state whose work file goes to a temporary folder, a
// sky picture that the context's redraws paint, and the messages noted.
#pragma once
#include <QDialog>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "../Ayudas.h"
#include "../ui/Falsos.h"
#include "app/base/Texto1252.h"
#include "app/estado/Tiempo.h"
#include "catalogue/CargaCatalogos.h"
#include "dialogs/Animar.h"
#include "dialogs/Buscar.h"
#include "dialogs/CargaGuar.h"
#include "dialogs/Hora.h"
#include "dialogs/Impresor.h"
#include "dialogs/Locali.h"
#include "dialogs/Objetos.h"
#include "dialogs/Personal.h"
#include "ui/formas/ContextoDialogo.h"
#include "sky/DibujaCielo.h"

namespace pruebas {

struct MensajesAnotados : vedrano::InterfazMensajes {
    std::vector<std::string> textos;
    int16_t Mensaje(const std::string& t, const std::string&, int16_t, int16_t) override {
        textos.push_back(vedrano::DesdeA1252(t));
        return 1;
    }
};

struct EntornoDialogo {
    explicit EntornoDialogo(const vedrano::Catalogos& cat = CatalogosDatos())
        : c(cat), ctx{e, controles, ventana, c, mensajes, nullptr, {}, {}, {}, {}, {}} {
        e.DirArchivo = (std::filesystem::temp_directory_path() / "vedrano_dialogos").string() + "/";
        std::filesystem::create_directories(e.DirArchivo);
        e.Velocidad = 100;
        ctx.ActualizaCielo = [this] {
            ++actualizaciones;
            vedrano::ActualizaCielo(e, c, lienzo);
        };
        ctx.DibujaCielo = [this] {
            ++redibujos;
            vedrano::AjustaEscalaLienzo(e, lienzo);
            vedrano::DibujaCielo(e, c, lienzo);
        };
        vedrano::ActualizaCielo(e, c, lienzo);
    }
    vedrano::Estado e;
    vedrano::controles::Contexto controles{e.Sonido, e.Velocidad};
    vedrano::EstadoVentana ventana;
    const vedrano::Catalogos& c;
    MensajesAnotados mensajes;
    vedrano::Lienzo lienzo{800, 600};
    vedrano::ContextoDialogo ctx;
    int redibujos = 0, actualizaciones = 0;
};

// A form's context with no catalogues and no sky, fake clock and sounds:
// for the forms whose tests look at the state alone.
struct ContextoSolo {
    ContextoSolo() {
        e.Velocidad = 100;
        e.Sonido = true;
    }
    vedrano::Estado e;
    vedrano::controles::Contexto controles{e.Sonido, e.Velocidad};
    vedrano::EstadoVentana ventana;
    vedrano::Catalogos c;
    Anota m;
    Falsos f;
    vedrano::ContextoDialogo ctx{e, controles, ventana, c, m, nullptr, {}, {}, {}, {}, {}};
};

// Every form a button of the main window opens, over one context.
inline std::vector<std::unique_ptr<QDialog>> Formas(vedrano::ContextoDialogo& ctx) {
    std::vector<std::unique_ptr<QDialog>> f;
    f.push_back(std::make_unique<vedrano::Animar>(ctx));
    f.push_back(std::make_unique<vedrano::Buscar>(ctx));
    f.push_back(std::make_unique<vedrano::CargaGuar>(ctx));
    f.push_back(std::make_unique<vedrano::Hora>(ctx));
    f.push_back(std::make_unique<vedrano::Impresor>(ctx));
    f.push_back(std::make_unique<vedrano::Locali>(ctx));
    f.push_back(std::make_unique<vedrano::Objetos>(ctx));
    f.push_back(std::make_unique<vedrano::Personal>(ctx));
    return f;
}

}  // namespace pruebas
