// The texts of the search form: the column header and legend shown above
// and below each list, in the order of the general index, and the tooltips
// of its buttons. UTF-8, as the form shows them.
#pragma once
#include <array>
#include <vector>

namespace vedrano {

struct TextosCategoria {
    const char* cabecera;
    std::vector<const char*> leyenda;  // one text per line
};

// Tooltips of the buttons, which change with the list shown.
inline const char* const AYUDA_VOLVER = " Volver al Índice General ";
inline const char* const AYUDA_BUSCAR = " Buscar el objeto elegido ";
inline const char* const AYUDA_SOLO_CONSULTA =
    " Esta lista es sólo de consulta: sus objetos no se pueden centrar en el cielo ";

inline const char* const CABECERA_PROFUNDO = "   Código  Magn.     A. R.           DEC";
inline const char* const CABECERA_CODIGO4 = "    Código             A. R.           DEC";
inline const char* const CABECERA_CODIGO3 = "   Código             A. R.           DEC";

inline const std::array<TextosCategoria, 12> TEXTOS_CATEGORIAS = {{
    {"              1        2        3     4       5          6      7       8      9",
     {" 1 -> Diámetro ecuatorial (Kms.)", " 2 -> Masa con respecto a la Tierra",
      " 3 -> Inclinación del ecuador con respecto a la órbita (Grados)",
      " 4 -> Gravedad superficial con respecto a la Tierra", " 5 -> Periodo sideral de rotación",
      " 6 -> Semieje mayor de la órbita (U.A.)", " 7 -> Excentricidad de la órbita",
      " 8 -> Periodo sideral orbital (Dias)", " 9 -> Periodo sinódico orbital (Dias)"}},
    {" Nro.  NGC       Tipo               Nombre        Mag.Vis.     A.R.         DEC", {}},
    {" Abrev. Nombre latino         Genitivo              Nombre castellano      Visible", {}},
    {"   Código   A.R.     DEC.   Mag T   Nombre",
     {"Tipo =>    M : Múltiple     V : Variable     X : Múltiple variable"}},
    {CABECERA_PROFUNDO, {"Magnitudes =>   1 : >30'    2 : >20'    3 : >10'    4 : <10'"}},
    {CABECERA_PROFUNDO, {"Magnitudes =>     1 : >1'     2 : <1' "}},
    {CABECERA_PROFUNDO, {"Magnitudes =>     1 : >10'     2 : <10' "}},
    {CABECERA_CODIGO4, {}},
    {CABECERA_CODIGO4, {}},
    {CABECERA_CODIGO4, {}},
    {CABECERA_CODIGO3, {}},
    {CABECERA_CODIGO3, {}},
}};

inline const char* const TITULO_INDICE = "Índice General";
// Above the lines found in every list.
inline const char* const CABECERA_HALLADOS = " Categoría             Línea de su lista";

}  // namespace vedrano
