#include "platform/qt/Idioma.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace vedrano::plataforma {

bool PonEspanol() {
    const QLocale espanol(QLocale::Spanish, QLocale::Spain);
    QLocale::setDefault(espanol);
    // Lives as long as the application: installed translators are not owned.
    static QTranslator traduccion;
    if (!traduccion.load(espanol, QStringLiteral("qt"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return false;
    return QCoreApplication::installTranslator(&traduccion);
}

}  // namespace vedrano::plataforma
