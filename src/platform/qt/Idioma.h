// The language of the program: Spanish, also in the dialogs Qt itself draws.
#pragma once

namespace vedrano::plataforma {

// Makes Spanish (Spain) the default locale and installs Qt's own Spanish
// translations (the printer dialog's "Imprimir", "Propiedades"...) from
// the folder of Qt's translations (Debian's qt6-translations-l10n). False
// when they are not installed: those dialogs then stay in English. Call
// once, after the application object exists.
bool PonEspanol();

}  // namespace vedrano::plataforma
