// vedrano-cli lista CATEGORIA [--datos DIR]: prints one list of the search
// form, or the places list, one line each, in UTF-8.
#pragma once

namespace vedrano {

int ComandoLista(int argc, char** argv);

}  // namespace vedrano
