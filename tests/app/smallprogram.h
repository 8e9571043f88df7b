#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/program.h"
#include "support/fakeplatform.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"
#include "support/smallbook.h"

namespace sarne {
namespace test {

/// However a program of this process has ended, the process goes on.
inline void outliveTheProgram() {
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, [] { QApplication::exit(); });
    end.start(0);
    QApplication::exec();
}

}  // namespace test

/// The whole program over a small book, without devices; not started yet.
class ProgramTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"program", "disc", "data"}) QDir(folder.path()).mkpath(QLatin1String(name));
        test::writeRecipeDatabase(
            path("program/Sarne.drc"),
            test::smallBook() +
                QStringList{u"INSERT INTO Nastav VALUES (1,'a',1),(2,'b',0),(3,'c',1),(4,'d',0)"_s,
                            u"INSERT INTO Menu VALUES ('120','@Hledání',''),('121','Napište název','F')"_s,
                            u"INSERT INTO Suroviny VALUES (9,'kapie')"_s,
                            u"UPDATE Fakta SET Chod = 'teplé'"_s});
        platform.settings.set(u"CDPath"_s, path("disc"));
        make();
    }
    void TearDown() override { test::outliveTheProgram(); }
    void make() { make(platform.parts()); }
    void make(const PlatformParts& parts) {
        program = std::make_unique<Program>(parts, Folders{path("program"), path("data")});
        program->stage().resize(800, 600);
        program->stage().show();
        program->stage().activateWindow();
        QApplication::processEvents();
    }
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    /// Ends the program or asks to, and answers its question with \a key.
    void exitAnswering(Qt::Key key) {
        QTimer::singleShot(0, [key] { press(key); });
        program->ConfirmExit();
    }

    QTemporaryDir folder;
    FakePlatform platform;
    std::unique_ptr<Program> program;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
