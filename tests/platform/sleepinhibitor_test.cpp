#include "platform/sleepinhibitor.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>

#include "testmedia.h"

namespace sarne {
namespace {

/// A desktop that is asked to stay awake; answers when told to.
class Desktop final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

  public:
    QStringList calls;

  public Q_SLOTS:
    Q_SCRIPTABLE uint Inhibit(const QString&, const QString& reason) {
        calls.append(u"inhibit "_s + reason);
        return 42;
    }
    Q_SCRIPTABLE void UnInhibit(uint cookie) { calls.append(u"release %1"_s.arg(cookie)); }
};

/// A session bus of the test's own.
class SleepInhibitorTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        bus = new QProcess;
        bus->start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
        QByteArray address;
        waitFor([&] {
            address += bus->readAllStandardOutput();
            return address.endsWith('\n') || bus->state() == QProcess::NotRunning;
        });
        if (address.endsWith('\n')) qputenv("DBUS_SESSION_BUS_ADDRESS", address.trimmed());
    }
    static void TearDownTestSuite() {
        bus->kill();
        bus->waitForFinished();
        delete bus;
    }
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
            GTEST_SKIP() << "no D-Bus could be started";
    }
    /// A desktop on a connection of its own, as another program would be.
    void startDesktop() {
        QDBusConnection own = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
        ASSERT_TRUE(own.registerObject(u"/org/freedesktop/ScreenSaver"_s, &desktop,
                                       QDBusConnection::ExportScriptableSlots));
        ASSERT_TRUE(own.registerService(u"org.freedesktop.ScreenSaver"_s));
    }
    void TearDown() override { QDBusConnection::disconnectFromBus(u"desktop"_s); }
    bool waitForCalls(const QStringList& calls) {
        return waitFor([&] { return desktop.calls == calls; });
    }

    static QProcess* bus;
    Desktop desktop;
};
QProcess* SleepInhibitorTest::bus = nullptr;

TEST_F(SleepInhibitorTest, TheDisplayStaysAwakeFromInhibitToRelease) {
    startDesktop();
    const QString inhibited = u"inhibit Přehrává se video"_s;
    const QString released = u"release 42"_s;
    DesktopSleepInhibitor inhibitor;
    inhibitor.inhibit(u"Přehrává se video"_s);
    inhibitor.inhibit(u"Přehrává se video"_s);
    EXPECT_TRUE(waitForCalls({inhibited}));
    runFor(50);
    inhibitor.release();
    inhibitor.release();
    EXPECT_TRUE(waitForCalls({inhibited, released}));

    desktop.calls.clear();
    inhibitor.inhibit(u"Přehrává se video"_s);
    inhibitor.release();  // before the answer
    EXPECT_TRUE(waitForCalls({inhibited, released}));

    desktop.calls.clear();
    {
        DesktopSleepInhibitor shortLived;
        shortLived.inhibit(u"Přehrává se video"_s);
    }
    EXPECT_TRUE(waitForCalls({inhibited, released}));
}

TEST_F(SleepInhibitorTest, WithoutADesktopNothingHappens) {
    QElapsedTimer time;
    time.start();
    DesktopSleepInhibitor inhibitor;
    inhibitor.inhibit(u"video"_s);
    EXPECT_LT(time.elapsed(), 1000) << "it does not wait for an answer";
    runFor(100);
    inhibitor.release();
    EXPECT_TRUE(desktop.calls.isEmpty());
}

}  // namespace
}  // namespace sarne

#include "sleepinhibitor_test.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
