#include "platform/NumerosLocales.h"

#include <QLocale>

namespace vedrano::plataforma {

namespace {

bool EsDigito(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string NumeroLocal(std::string_view texto) {
    static const char separador = [] {
        const QString s = QLocale(QLocale::Spanish, QLocale::Spain).decimalPoint();
        return s.size() == 1 && s[0].unicode() < 0x80 ? static_cast<char>(s[0].unicode()) : ',';
    }();
    std::string r(texto);
    for (std::size_t i = 1; i + 1 < r.size(); ++i)
        if (r[i] == '.' && EsDigito(r[i - 1]) && EsDigito(r[i + 1])) r[i] = separador;
    return r;
}

}  // namespace vedrano::plataforma
