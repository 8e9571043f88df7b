#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "db/recipemarks.h"
#include "db/userfile.h"
#include "support/files.h"

namespace sarne {
namespace {

/// The program's own process, on the disc that was built with it, at the home of a new user.
class MainTest : public testing::Test {
  protected:
    void run(QProcess& process, const char* display) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QLatin1String(name), home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, QLatin1String(display));
        environment.insert(u"DISPLAY"_s, u":97531"_s);  // there is none
        environment.remove(u"WAYLAND_DISPLAY"_s);
        environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(SARNE_PROGRAM), QStringList());
    }

    QTemporaryDir home;
};

TEST_F(MainTest, OneRunAtATimeFollowsItsBookAndEndsByASignal) {
    const QString mark = home.filePath(u"znacka"_s);
    ASSERT_TRUE(test::write(home.filePath(u"App Paths/Dunvik.exe.conf"_s),
                            "[General]\nCDPath=" + home.path().toUtf8() + "\nRozepsano=" + mark.toUtf8()));
    UserFile kept(home.filePath(u"velisa-sarn/vlastni.db"_s));
    QProcess program, second;
    run(program, "offscreen");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !kept.value(u"KitchenShown"_s).isEmpty(); }, 20000));
    run(second, "offscreen");
    EXPECT_TRUE(second.waitForFinished(10000)) << "it stays with the first";
    EXPECT_EQ(second.exitCode(), 0);
    const auto opened = [&](int edition) {
        const QByteArray text = QByteArray::number(edition) + " 5 0";
        if (!test::write(mark + u".nova"_s, text) || !QFile::rename(mark + u".nova"_s, mark)) return false;
        return QTest::qWaitFor([&] { return RecipeMarks(kept).all().size() == 1; }, 1000);
    };
    bool shown = false;
    for (int edition = 1; edition < 20 && !shown; ++edition) {
        QFile::remove(mark);
        shown = opened(edition);
    }
    EXPECT_TRUE(shown);
    program.terminate();
    EXPECT_TRUE(program.waitForFinished(10000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    program.kill();
    second.kill();
}

TEST_F(MainTest, WithoutADisplayItSaysSo) {
    QProcess program;
    run(program, "xcb");
    EXPECT_TRUE(program.waitForFinished(10000));
    EXPECT_EQ(QString::fromUtf8(program.readAllStandardError()),
              u"Velisa sarn: není tu obrazovka, na které by se program ukázal.\n"_s);
    EXPECT_EQ(program.exitCode(), 1);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
