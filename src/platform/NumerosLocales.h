// Numbers as the user reads them: the program's texts carry a decimal
// point, the screen shows the Spanish decimal comma.
#pragma once
#include <string>
#include <string_view>

namespace vedrano::plataforma {

// `texto` (Windows-1252, a number with a decimal point as Format writes it,
// possibly with other text around) with each point between two digits
// turned into the decimal separator of the Spanish locale (QLocale
// es_ES). The program's own formats (the ".ls1" file, the calculator)
// never pass through here.
std::string NumeroLocal(std::string_view texto);

}  // namespace vedrano::plataforma
