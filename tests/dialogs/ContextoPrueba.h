// What the search, location and printing tests share: the catalogues read
// once from Datos/, a state whose work file goes to a temporary folder, a
// sky picture that the context's redraws paint, and the messages noted.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "../Ayudas.h"
#include "app/base/Texto1252.h"
#include "app/estado/Tiempo.h"
#include "catalogue/CargaCatalogos.h"
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

}  // namespace pruebas
