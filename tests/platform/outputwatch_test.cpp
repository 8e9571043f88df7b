#include "platform/outputwatch.h"

#include <gtest/gtest.h>

#include "platform/mpvcore.h"
#include "support/kept.h"

namespace sarne {
namespace {

using Act = OutputWatch::Act;

const QStringList kNone{u"auto"_s, u"alsa"_s};
const QStringList kOne = kNone + QStringList{u"pulse/usb"_s};
const QStringList kOther = kNone + QStringList{u"pulse/hdmi"_s};

/// What is to be done where the sound goes to "pulse", "null" or "silence", or the devices are none, one or
/// another.
QString acts(const QString& events) {
    const QHash<QString, QStringList> devices{{u"none"_s, kNone}, {u"one"_s, kOne}, {u"other"_s, kOther}};
    OutputWatch watch;
    QStringList all;
    for (const QString& event : events.split(u' ')) {
        const Act act = devices.contains(event) ? watch.devices(devices[event])
                                                : watch.output(event == u"silence" ? QString() : event);
        all << QStringList{u"-"_s, u"follow"_s, u"leave"_s, u"reopen"_s}.value(int(act));
    }
    return all.join(u' ');
}

TEST(OutputWatchTest, ADeviceThatComesBackIsTriedUntilThatIsInVain) {
    test::expectCases(u"vystupy"_s, &acts);
    // Each opening in vain makes a device come and go; sound in between gives new hope.
    const QString vain = acts(u"null"_s + u" none null one null"_s.repeated(500)),
                  hope = u" pulse null none one"_s;
    EXPECT_GT(vain.count(u"reopen"_s), 1);
    EXPECT_LT(vain.count(u"reopen"_s), 20);
    EXPECT_TRUE(acts(u"null"_s + u" none null one null"_s.repeated(500) + hope).endsWith(u"reopen"_s));
}

// What a player is asked to do; only the calls that a core without a file makes.
struct Asked {
    QStringList lines;
    QMultiMap<uint64_t, QString> observed;
};
Asked asked;

MpvLibrary fakeLibrary() {
    asked = {};
    MpvLibrary mpv;
    mpv.create = [] { return reinterpret_cast<mpv_handle*>(&asked); };
    mpv.initialize = [](mpv_handle*) { return 0; };
    mpv.terminateDestroy = [](mpv_handle*) {};
    mpv.setOptionString = [](mpv_handle*, const char*, const char*) { return 0; };
    mpv.setWakeupCallback = [](mpv_handle*, void (*)(void*), void*) {};
    mpv.observeProperty = [](mpv_handle*, uint64_t tag, const char* name, mpv_format) {
        asked.observed.insert(tag, QString::fromUtf8(name));
        asked.lines += u"observe "_s + QString::fromUtf8(name);
        return 0;
    };
    mpv.unobserveProperty = [](mpv_handle*, uint64_t tag) {
        asked.lines += u"unobserve "_s + asked.observed.values(tag).join(u' ');
        asked.observed.remove(tag);
        return 1;
    };
    mpv.commandAsync = [](mpv_handle*, uint64_t, const char** words) {
        asked.lines += QString::fromUtf8(words[0]);
        return 0;
    };
    return mpv;
}

void tellOutput(MpvCore& core, const char* driver) {
    mpv_event_property property{"current-ao", MPV_FORMAT_STRING, &driver};
    core.followOutput(property);
}

void tellDevices(MpvCore& core, const QStringList& names) {
    std::vector<QByteArray> bytes;
    for (const QString& name : names) bytes.push_back(name.toUtf8());
    char key[] = "name";
    char* keys[] = {key};
    std::vector<mpv_node> values(bytes.size()), devices(bytes.size());
    std::vector<mpv_node_list> maps(bytes.size());
    for (size_t i = 0; i < bytes.size(); ++i) {
        values[i].format = MPV_FORMAT_STRING;
        values[i].u.string = bytes[i].data();
        maps[i] = {1, &values[i], keys};
        devices[i].format = MPV_FORMAT_NODE_MAP;
        devices[i].u.list = &maps[i];
    }
    mpv_node_list list{int(devices.size()), devices.data(), nullptr};
    mpv_node all;
    all.format = MPV_FORMAT_NODE_ARRAY;
    all.u.list = &list;
    core.followOutput({"audio-device-list", MPV_FORMAT_NODE, &all});
}

TEST(OutputWatchTest, ThePlayerIsAskedAccordingly) {
    const auto core = MpvCore::start(fakeLibrary(), [] {});
    ASSERT_TRUE(core);
    EXPECT_TRUE(asked.lines.contains(u"observe current-ao"_s));
    asked.lines.clear();
    tellOutput(*core, "pulse");
    tellDevices(*core, kOne);
    EXPECT_EQ(asked.lines, QStringList()) << "with sound, devices are not even looked for";
    tellOutput(*core, "null");
    tellDevices(*core, kNone);
    for (int i = 0; i < 3; ++i) tellDevices(*core, kOne);
    core->followOutput({"audio-device-list", MPV_FORMAT_NONE, nullptr});
    core->followOutput({"current-ao", MPV_FORMAT_NONE, nullptr});
    EXPECT_EQ(asked.lines, (QStringList{u"observe audio-device-list"_s, u"ao-reload"_s}));
    tellOutput(*core, "pulse");
    EXPECT_EQ(asked.lines.last(), u"unobserve audio-device-list"_s);
    core->followPosition(true);
    core->followPosition(true);
    EXPECT_EQ(asked.observed.values(), (QStringList{u"current-ao"_s, u"eof-reached"_s, u"time-pos"_s}));
    core->followPosition(false);
    EXPECT_EQ(asked.observed.values(), (QStringList{u"current-ao"_s, u"eof-reached"_s}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
