// Spanish also in what Qt draws itself: its dialogs and its number formats.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>

#include "platform/qt/Idioma.h"

namespace {

TEST(Idioma, DialogosDeQtYNumerosEnEspanol) {
    ASSERT_TRUE(vedrano::plataforma::PonEspanol()) << "faltan las traducciones de Qt (qt6-translations-l10n)";
    EXPECT_EQ(QCoreApplication::translate("QPrintDialog", "OK"), QStringLiteral("Aceptar"));
    EXPECT_EQ(QCoreApplication::translate("QPrintDialog", "Print"), QStringLiteral("Imprimir"));
    EXPECT_EQ(QLocale().toString(1.5, 'f', 1), QStringLiteral("1,5"));
}

}  // namespace
