#include "forms/readaloud.h"

#include <utility>

#include "core/spokentext.h"
#include "platform/speech.h"

namespace sarne {

ReadAloud::ReadAloud(Speech& speech, MultimediaControl& music) : speech_(speech), duck_(music) {
    connect(&speech_, &Speech::ended, this, [this] { setReading(false); });
    connect(&speech_, &Speech::found, this, [this] {
        Q_EMIT offeredChanged();
        read(std::exchange(awaited_, QString()));
    });
}

bool ReadAloud::isOffered() const {
    return speech_.hasVoice();
}

void ReadAloud::read(const QString& text) {
    const QString words = spokenText(text);
    if (words.isEmpty()) return;
    if (!isOffered()) {
        awaited_ = text;
        return;
    }
    setReading(true);
    speech_.say(words);
}

void ReadAloud::stop() {
    awaited_.clear();
    if (!reading_) return;
    speech_.stop();
    setReading(false);
}

void ReadAloud::toggle(const QString& text) {
    reading_ || !awaited_.isEmpty() ? stop() : read(text);
}

void ReadAloud::setReading(bool reading) {
    if (reading_ == reading) return;
    reading_ = reading;
    reading ? duck_.hold() : duck_.letGo();
    Q_EMIT readingChanged(reading);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
