#include "app/kepteyes.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/userfile.h"
#include "forms/eyes.h"

namespace sarne {
namespace {

QMap<QString, QVariantMap> settings(const QString& group, const QString& name, const QVariant& value) {
    return {{group, {{name, value}}}};
}

TEST(KeptEyes, WhatTheUserChoosesOutlivesTheRunAndTheDesktopsWishes) {
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("vlastni.db"));
    {
        UserFile kept(file);
        Eyes eyes;
        KeptEyes keeping(eyes, kept);
        keeping.follow({true, true});
        EXPECT_TRUE(eyes.isCalm());
        EXPECT_TRUE(kept.value(QStringLiteral("Calm")).isEmpty()) << "a wish is no choice";
        EXPECT_TRUE(eyes.stepText(1));
        eyes.setContrast(false);
    }
    UserFile kept(file);
    Eyes eyes;
    KeptEyes keeping(eyes, kept);
    EXPECT_EQ(eyes.textPercent(), 125);
    keeping.follow({true, true});
    EXPECT_TRUE(eyes.isCalm()) << "follows the desktop";
    EXPECT_FALSE(eyes.hasContrast()) << "the user has said otherwise";
    keeping.follow({false, true});
    EXPECT_FALSE(eyes.isCalm());
}

TEST(Eyes, TextsHaveThreeSizes) {
    Eyes eyes;
    EXPECT_FALSE(eyes.stepText(-1));
    eyes.setTextPercent(140);
    EXPECT_EQ(eyes.textPercent(), 150);
    EXPECT_FALSE(eyes.stepText(1));
    eyes.setTextPercent(-5);
    EXPECT_EQ(eyes.textScale(), 1);
}

TEST(DesktopWishes, AreReadFromWhatDesktopsCallThem) {
    const QString all = QStringLiteral("org.freedesktop.appearance"),
                  gnome = QStringLiteral("org.gnome.desktop.interface"),
                  access = QStringLiteral("org.gnome.desktop.a11y.interface");
    EXPECT_EQ(desktopWishes({}), DesktopWishes());
    EXPECT_EQ(desktopWishes(settings(all, QStringLiteral("contrast"), 1u)), (DesktopWishes{false, true}));
    EXPECT_EQ(desktopWishes(settings(all, QStringLiteral("reduced-motion"), 1u)),
              (DesktopWishes{true, false}));
    EXPECT_EQ(desktopWishes(settings(gnome, QStringLiteral("enable-animations"), false)),
              (DesktopWishes{true, false}));
    EXPECT_EQ(desktopWishes(settings(gnome, QStringLiteral("enable-animations"), true)), DesktopWishes());
    EXPECT_EQ(desktopWishes(settings(access, QStringLiteral("high-contrast"), true)),
              (DesktopWishes{false, true}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
