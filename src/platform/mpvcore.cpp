#include "platform/mpvcore.h"

#include <QByteArray>
#include <clocale>
#include <cmath>
#include <utility>

namespace sarne {

namespace {

constexpr std::pair<const char*, const char*> playerOptions[] = {
    // Nothing but what is said here: no user's configuration, scripts, keys, subtitles, network.
    {"config", "no"},
    {"load-scripts", "no"},
    {"osc", "no"},
    {"ytdl", "no"},
    {"load-stats-overlay", "no"},
    {"load-osd-console", "no"},
    {"load-auto-profiles", "no"},
    {"input-default-bindings", "no"},
    {"terminal", "no"},
    {"osd-level", "0"},
    {"sub-auto", "no"},
    {"sid", "no"},
    {"audio-file-auto", "no"},
    {"ordered-chapters", "no"},
    {"stop-screensaver", "no"},
    // A text with a playlist's beginning is no video: only the formats of a disc are tried.
    {"demuxer", "lavf"},
    {"demuxer-lavf-o", "format_whitelist=%29%wav,avi,ogg,flac,matroska,mp4"},
    {"idle", "yes"},
    {"pause", "yes"},
    {"keep-open", "yes"},
    {"hr-seek", "yes"},
    // The desktop's sound, or none; then time passes all the same.
    {"ao", "pulse,alsa"},
    {"audio-fallback-to-null", "yes"},
    {"gapless-audio", "no"},
    {"audio-client-name", "sarne"},
    {"audio-display", "no"},
    // Pictures are drawn by whoever asks for them.
    {"vo", "libmpv"},
    {"hwdec", "no"},
    {"vd-lavc-threads", "2"},
    {"sws-scaler", "bilinear"},
    // A disc drive is slow to answer: read ahead, but little.
    {"cache", "yes"},
    {"demuxer-max-bytes", "8MiB"},
    {"demuxer-max-back-bytes", "0"},
};

constexpr char kOutput[] = "current-ao";
constexpr char kDevices[] = "audio-device-list";
constexpr quint64 kPositionTag = 1, kDevicesTag = 2;

/// The text that a node of a player's answer holds under \a key.
QString textUnder(const mpv_node& node, const char* key) {
    if (node.format != MPV_FORMAT_NODE_MAP) return {};
    for (int i = 0; i < node.u.list->num; ++i) {
        const mpv_node& value = node.u.list->values[i];
        if (qstrcmp(node.u.list->keys[i], key) == 0 && value.format == MPV_FORMAT_STRING)
            return QString::fromUtf8(value.u.string);
    }
    return {};
}

QStringList deviceNames(const mpv_node& list) {
    QStringList names;
    for (int i = 0; list.format == MPV_FORMAT_NODE_ARRAY && i < list.u.list->num; ++i)
        names.append(textUnder(list.u.list->values[i], "name"));
    return names;
}

}  // namespace

void MpvCore::prepare() {
    std::setlocale(LC_NUMERIC, "C");
}

std::unique_ptr<MpvCore> MpvCore::start(const MpvLibrary& mpv, const std::function<void()>& wakeup) {
    mpv_handle* handle = mpv.create();
    if (!handle) return {};
    for (const auto& [name, value] : playerOptions) mpv.setOptionString(handle, name, value);
    std::unique_ptr<MpvCore> core(new MpvCore(mpv, handle, wakeup));
    if (mpv.initialize(handle) < 0) return {};
    mpv.observeProperty(handle, 0, "eof-reached", MPV_FORMAT_FLAG);
    mpv.observeProperty(handle, 0, kOutput, MPV_FORMAT_STRING);
    return core;
}

MpvCore::MpvCore(const MpvLibrary& mpv, mpv_handle* handle, const std::function<void()>& wakeup)
    : mpv_(mpv), handle_(handle), wakeup_(wakeup) {
    mpv_.setWakeupCallback(
        handle_, [](void* self) { static_cast<MpvCore*>(self)->wakeup_(); }, this);
}

MpvCore::~MpvCore() {
    mpv_.setWakeupCallback(handle_, nullptr, nullptr);
    mpv_.terminateDestroy(handle_);
}

void MpvCore::load(const QString& file, quint64 tag) {
    const QByteArray path = file.toUtf8();
    const char* command[] = {"loadfile", path.constData(), "replace", nullptr};
    mpv_.commandAsync(handle_, tag, command);
}

std::optional<qint64> MpvCore::loadedEntry(const mpv_event& reply) {
    const mpv_node& result = static_cast<mpv_event_command*>(reply.data)->result;
    if (reply.error < 0 || result.format != MPV_FORMAT_NODE_MAP) return {};
    for (int i = 0; i < result.u.list->num; ++i) {
        if (qstrcmp(result.u.list->keys[i], "playlist_entry_id") == 0)
            return result.u.list->values[i].u.int64;
    }
    return {};
}

void MpvCore::unload() {
    const char* command[] = {"stop", nullptr};
    mpv_.commandAsync(handle_, 0, command);
}

void MpvCore::setFlag(const char* property, bool value) {
    int flag = value ? 1 : 0;
    mpv_.setPropertyAsync(handle_, 0, property, MPV_FORMAT_FLAG, &flag);
}

void MpvCore::setText(const char* property, const char* value) {
    mpv_.setPropertyAsync(handle_, 0, property, MPV_FORMAT_STRING, static_cast<void*>(&value));
}

void MpvCore::setDecibels(double decibels) {
    double volume = 100 * std::pow(10, decibels / 60);  // the player takes the cube of it
    mpv_.setPropertyAsync(handle_, 0, "volume", MPV_FORMAT_DOUBLE, &volume);
}

void MpvCore::setSpeed(double factor) {
    mpv_.setPropertyAsync(handle_, 0, "speed", MPV_FORMAT_DOUBLE, &factor);
}

void MpvCore::seek(qint64 milliseconds, quint64 tag) {
    const QByteArray target = QByteArray::number(static_cast<double>(milliseconds) / 1000, 'f', 3);
    const char* command[] = {"seek", target.constData(), "absolute+exact", nullptr};
    mpv_.commandAsync(handle_, tag, command);
}

void MpvCore::seekToEnd() {
    const char* command[] = {"seek", "100", "absolute-percent+exact", nullptr};
    mpv_.commandAsync(handle_, 0, command);
}

void MpvCore::askForEnd() {
    mpv_.getPropertyAsync(handle_, 0, "eof-reached", MPV_FORMAT_FLAG);
}

void MpvCore::followOutput(const mpv_event_property& property) {
    if (property.format == MPV_FORMAT_STRING && qstrcmp(property.name, kOutput) == 0)
        carryOut(output_.output(QString::fromUtf8(*static_cast<char**>(property.data))));
    else if (property.format == MPV_FORMAT_NODE && qstrcmp(property.name, kDevices) == 0)
        carryOut(output_.devices(deviceNames(*static_cast<mpv_node*>(property.data))));
}

void MpvCore::carryOut(OutputWatch::Act act) {
    const char* reload[] = {"ao-reload", nullptr};
    switch (act) {
        case OutputWatch::Act::None:
            return;
        case OutputWatch::Act::Follow:
            mpv_.observeProperty(handle_, kDevicesTag, kDevices, MPV_FORMAT_NODE);
            return;
        case OutputWatch::Act::Leave:
            mpv_.unobserveProperty(handle_, kDevicesTag);
            return;
        case OutputWatch::Act::Reopen:
            mpv_.commandAsync(handle_, 0, reload);
            return;
    }
}

void MpvCore::followPosition(bool follow) {
    mpv_.unobserveProperty(handle_, kPositionTag);
    if (follow) mpv_.observeProperty(handle_, kPositionTag, "time-pos", MPV_FORMAT_DOUBLE);
}

bool MpvCore::flag(const char* property) const {
    int value = 0;
    return mpv_.getProperty(handle_, property, MPV_FORMAT_FLAG, &value) >= 0 && value != 0;
}

std::optional<double> MpvCore::number(const char* property) const {
    double value = 0;
    if (mpv_.getProperty(handle_, property, MPV_FORMAT_DOUBLE, &value) < 0) return {};
    return value;
}

qint64 MpvCore::milliseconds(const char* property) const {
    return qRound64(number(property).value_or(0) * 1000);
}

QString MpvCore::text(const QString& property) const {
    mpv_node value = {};
    if (mpv_.getProperty(handle_, property.toUtf8().constData(), MPV_FORMAT_NODE, &value) < 0) return {};
    QString text = value.format == MPV_FORMAT_STRING ? QString::fromUtf8(value.u.string) : QString();
    mpv_.freeNodeContents(&value);
    return text;
}

const mpv_event& MpvCore::nextEvent(qint64 milliseconds) {
    return *mpv_.waitEvent(handle_, static_cast<double>(milliseconds) / 1000);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
