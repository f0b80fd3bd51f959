// Text at run time is single-byte Windows-1252, as the catalogue files hold
// it, so that fixed widths and character positions stay what they are. It
// turns into Unicode (UTF-8) only where it is shown, printed or written out.
// In the source, program text is written in UTF-8 and passed through A1252
// where a Windows-1252 string is wanted.
#pragma once
#include <string>
#include <string_view>

namespace vedrano {

// UTF-8 to Windows-1252; characters the code page lacks become '?'.
std::string A1252(std::string_view utf8);
// Windows-1252 to UTF-8.
std::string DesdeA1252(std::string_view cp1252);

// A message about a file followed, on a line of its own, by the file's
// path (as the file system names it): "ERROR CTA53: No existe el fichero"
// and below it the path of the missing file.
std::string TextoConArchivo(std::string_view textoCp1252, std::string_view ruta);

// Mid$(texto, inicio, largo) with 1-based start: a start below 1 is an
// invalid procedure call (error 5); past the end gives an empty text.
std::string Mid(std::string_view texto, long inicio, long largo);
std::string Right(std::string_view texto, long largo);
std::string Left(std::string_view texto, long largo);

}  // namespace vedrano
