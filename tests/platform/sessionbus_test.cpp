#include "platform/sessionbus.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include "platform/desktopwishes.h"
#include "platform/sleepinhibitor.h"
#include "support/files.h"
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
    Q_SCRIPTABLE uint Inhibit(const QString& program, const QString& reason) {
        calls.append((program == QCoreApplication::applicationName() ? u"inhibit "_s : program) + reason);
        return 42;
    }
    Q_SCRIPTABLE void UnInhibit(uint cookie) { calls.append(u"release %1"_s.arg(cookie)); }
};

using Settings = QMap<QString, QVariantMap>;

/// A desktop that tells its settings; without any it answers with an error.
class Portal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    Settings settings;
    QStringList groups;

  public Q_SLOTS:
    Q_SCRIPTABLE Settings ReadAll(const QStringList& wanted, const QDBusMessage& question) {
        groups = wanted;
        if (settings.isEmpty()) {
            question.setDelayedReply(true);
            QDBusConnection(u"desktop"_s).send(question.createErrorReply(QDBusError::Failed, {}));
        }
        return settings;
    }
};

/// A session bus of the test's own.
class SessionBusTest : public testing::Test {
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
        const auto slots = QDBusConnection::ExportScriptableSlots;
        ASSERT_TRUE(own.registerObject(u"/org/freedesktop/ScreenSaver"_s, &desktop, slots));
        ASSERT_TRUE(own.registerObject(kPortalPath, &portal, slots));
        for (const char* service : {"org.freedesktop.ScreenSaver", "org.freedesktop.portal.Desktop"})
            ASSERT_TRUE(own.registerService(QLatin1String(service)));
    }
    void TearDown() override { QDBusConnection::disconnectFromBus(u"desktop"_s); }
    bool waitForCalls(const QStringList& calls) {
        return waitFor([&] { return desktop.calls == calls; });
    }

    static QProcess* bus;
    static inline const QString kPortalPath = u"/org/freedesktop/portal/desktop"_s;
    Desktop desktop;
    Portal portal;
};
QProcess* SessionBusTest::bus = nullptr;

TEST_F(SessionBusTest, TheDisplayStaysAwakeFromInhibitToRelease) {
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

TEST_F(SessionBusTest, WithoutADesktopNothingHappens) {
    QElapsedTimer time;
    time.start();
    DesktopSleepInhibitor inhibitor;
    inhibitor.inhibit(u"video"_s);
    EXPECT_LT(time.elapsed(), 1000) << "it does not wait for an answer";
    runFor(100);
    inhibitor.release();
    EXPECT_TRUE(desktop.calls.isEmpty());
}

TEST_F(SessionBusTest, TheDesktopTellsWhatTheUserWishesAndWhenThatChanges) {
    qDBusRegisterMetaType<Settings>();
    startDesktop();
    portal.settings = {{kAppearanceGroup, {{u"contrast"_s, 1u}}}};
    auto receiver = std::make_unique<QObject>();
    QList<DesktopWishes> told;
    askDesktop(*receiver, [&](const DesktopWishes& wishes) { told.append(wishes); });
    EXPECT_TRUE(waitFor([&] { return told == QList{DesktopWishes{false, true}}; }));
    EXPECT_EQ(portal.groups, (QStringList{kAppearanceGroup, kGnomeGroup, kGnomeAccessGroup}));
    const auto change = [&](const Settings& settings) {
        portal.settings = settings;
        portal.groups.clear();
        QDBusConnection(u"desktop"_s)
            .send(QDBusMessage::createSignal(kPortalPath, u"org.freedesktop.portal.Settings"_s,
                                             u"SettingChanged"_s));
    };
    change({{kAppearanceGroup, {{u"reduced-motion"_s, 1u}}}});
    EXPECT_TRUE(waitFor([&] { return told.size() == 2 && told.last() == DesktopWishes{true, false}; }));
    change({});
    EXPECT_TRUE(waitFor([&] { return !portal.groups.isEmpty(); }));
    receiver.reset();
    change({{kGnomeGroup, {}}});
    EXPECT_FALSE(waitFor([&] { return told.size() != 2; }, 200))
        << "an error says nothing, nor is anybody told later";
}

TEST(DesktopWishesTest, AreReadFromWhatDesktopsCallThem) {
    const auto wishes = [](const QString& group, const char* name, const QVariant& value) {
        return desktopWishes({{group, {{QLatin1String(name), value}}}});
    };
    const DesktopWishes none, calm{true, false}, contrast{false, true};
    EXPECT_EQ(desktopWishes({}), none);
    EXPECT_EQ(wishes(kAppearanceGroup, "contrast", 1u), contrast);
    EXPECT_EQ(wishes(kAppearanceGroup, "contrast", 2u), none);
    EXPECT_EQ(wishes(kAppearanceGroup, "reduced-motion", 1u), calm);
    EXPECT_EQ(wishes(kAppearanceGroup, "reduced-motion", 2u), none);
    EXPECT_EQ(wishes(kGnomeGroup, "enable-animations", false), calm);
    EXPECT_EQ(wishes(kGnomeGroup, "enable-animations", true), none);
    EXPECT_EQ(wishes(kGnomeAccessGroup, "high-contrast", true), contrast);
}

TEST(SessionBusSearchTest, ABusIsFoundOrDeclinedWhereNothingWouldStartIt) {
    const QTemporaryDir folder;
    const QList<QByteArray> names{"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "PATH"};
    QList<QByteArray> before;
    for (const QByteArray& name : names) before << qgetenv(name);
    /// The address after nobody has been found to start a bus, and whether one runs before that.
    const auto search = [&](const char* address) {
        qputenv(names[0], address);
        const bool runs = sessionBusRuns();
        declineMissingBus();
        return std::pair(runs, qgetenv(names[0]));
    };
    for (const QByteArray& name : names) qputenv(name, QFile::encodeName(folder.path()));
    using Found = std::pair<bool, QByteArray>;
    EXPECT_EQ(search("unix:path=/x"), Found(true, "unix:path=/x"));
    EXPECT_EQ(search("disabled:"), Found(false, "disabled:"));
    EXPECT_EQ(search(""), Found(false, "disabled:"));
    ASSERT_TRUE(test::write(folder.filePath(u"dbus-launch"_s)));
    QFile::setPermissions(folder.filePath(u"dbus-launch"_s), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(search(""), Found(false, ""));
    QFile::remove(folder.filePath(u"dbus-launch"_s));
    ASSERT_TRUE(test::write(folder.filePath(u"bus"_s)));
    EXPECT_EQ(search(""), Found(true, ""));
    for (qsizetype i = 0; i < names.size(); ++i) qputenv(names[i], before[i]);
}

}  // namespace
}  // namespace sarne

#include "sessionbus_test.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
