#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "support/fakesarne.h"
#include "support/files.h"
#include "support/recipedatabase.h"

namespace sarne {

/// A run over five switches and a disc with two tracks and a clip.
class MediaFixture : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* file : {"HUDBA.WAV", "zvuky/Vina.WAV", "VIDEO/3.AVI"})
            ASSERT_TRUE(test::write(path(file)));
        ASSERT_TRUE(run.database.Open(test::writeRecipeDatabase(
            path("Sarne.drc"), {u"INSERT INTO Nastav VALUES (1,'Efekty',1),(2,'Hudba',1),"
                                "(3,'Názvy',0),(4,'Videa',1),(5,'Vína',0)"_s})));
        run.MediaRoot = LogicalPaths::fromNativeFolder(disc.path());
        run.SoundFlags = {true, true, false, true, false};
    }
    QString path(const char* name) const { return disc.filePath(QLatin1String(name)); }
    void playMusic() {
        run.player.setFileName(path("HUDBA.WAV"));
        run.player.command(u"open");
        run.player.command(u"play");
        run.player.commands.clear();
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    QTemporaryDir disc;
    FakeSarne run;
    Form* below = run.openAbove("frmHlavni");
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
