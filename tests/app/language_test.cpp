#include "app/language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace sarne {
namespace {

TEST(Language, QtsOwnTextsAreCzechWhateverTheUsersLanguage) {
    installLanguage({QStringLiteral("xx-XX"), QStringLiteral("en-US")});
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Zrušit"));
    EXPECT_EQ(QCoreApplication::translate("QPrintDialog", "Print"), QStringLiteral("Tisk"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
