#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "platform/mpvlibrary.h"
#include "platform/outputwatch.h"

namespace sarne {

/// One libmpv player: owns its handle, knows its options and properties. Calls return at once; what they lead
/// to comes as events.
class MpvCore {
  public:
    /// Gives numbers the locale without which no player starts. On the user thread, before start().
    static void prepare();
    /// Starts a player, in any thread. It opens WAV and AVI files, paused, and stays at a file's end. Null
    /// when that fails. \a wakeup is called from another thread whenever nextEvent() has something.
    static std::unique_ptr<MpvCore> start(const MpvLibrary& mpv, const std::function<void()>& wakeup);
    ~MpvCore();
    MpvCore(const MpvCore&) = delete;
    MpvCore& operator=(const MpvCore&) = delete;

    /// Opens \a file in place of what is open. The command reply with \a tag brings the number that the
    /// file's other events carry: loadedEntry().
    void load(const QString& file, quint64 tag);
    static std::optional<qint64> loadedEntry(const mpv_event& reply);
    void unload();
    void setFlag(const char* property, bool value);
    void setText(const char* property, const char* value);
    /// How loud it plays against the file.
    void setDecibels(double decibels);
    /// How fast it plays; voices keep their pitch.
    void setSpeed(double factor);
    /// Asks to go to \a milliseconds, or to the end. Answered by a command reply with \a tag and, when it
    /// succeeds, a restart.
    void seek(qint64 milliseconds, quint64 tag);
    void seekToEnd();

    /// Has the end of the file reported once more, whether or not it changed; it is an event on every change.
    void askForEnd();
    /// Lets a player without sound be heard when a device appears. Gets every property that has changed.
    void followOutput(const mpv_event_property& property);
    /// From now on, or no longer, every change of the position is an event.
    void followPosition(bool follow);

    /// What a property holds now; false, nothing or empty when it has no value. The player answers only when
    /// no picture of it waits to be drawn: not for use while a film plays.
    bool flag(const char* property) const;
    std::optional<double> number(const char* property) const;
    qint64 milliseconds(const char* property) const;
    QString text(const QString& property) const;

    /// The next event within \a milliseconds, MPV_EVENT_NONE when there is none. Valid until the next call.
    const mpv_event& nextEvent(qint64 milliseconds);
    /// Lets a waiting nextEvent() return. May be called from any thread.
    void wakeUp() { mpv_.wakeup(handle_); }

    mpv_handle* handle() const { return handle_; }
    const MpvLibrary& library() const { return mpv_; }

  private:
    void carryOut(OutputWatch::Act act);
    MpvCore(const MpvLibrary& mpv, mpv_handle* handle, const std::function<void()>& wakeup);

    MpvLibrary mpv_;
    mpv_handle* handle_;
    std::function<void()> wakeup_;
    OutputWatch output_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
