// A label written with a Windows-1252 escape, which the text check rejects.
const char* const ROTULO = "Direcci\xF3n";
