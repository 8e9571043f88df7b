#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {

/// A run over five switches and a disc with two tracks and a clip.
class MediaFixture : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* folder : {"zvuky", "VIDEO"}) QDir(disc.path()).mkpath(QLatin1String(folder));
        for (const char* file : {"HUDBA.WAV", "zvuky/Vina.WAV", "VIDEO/3.AVI"}) {
            QFile made(path(file));
            ASSERT_TRUE(made.open(QIODevice::WriteOnly));
        }
        const QString database = path("Sarne.drc");
        test::writeRecipeDatabase(database, {u"INSERT INTO Nastav VALUES (1,'Efekty',1),(2,'Hudba',1),"
                                             "(3,'Názvy',0),(4,'Videa',1),(5,'Vína',0)"_s});
        ASSERT_TRUE(run.database.Open(database));
        run.MediaRoot = LogicalPaths::fromNativeFolder(disc.path());
        run.SoundFlags = {true, true, false, true, false};
        run.PushScreen(*below);
        below->showForm();
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
    Form* below = new Form(run, u"frmHlavni"_s);
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
