// Where the loader's messages go: the program's message box in the window,
// standard error on the command line.
#pragma once
#include <string>

namespace vedrano {

class Notificador {
public:
    virtual ~Notificador() = default;
    // Text and title in Windows-1252.
    virtual void Avisa(const std::string& textoCp1252, const std::string& tituloCp1252) = 0;
};

}  // namespace vedrano
