#pragma once

#include <QStringList>

#include "platform/speech.h"

namespace sarne {

/// Keeps what it is told to say; by default it has no voice.
class FakeSpeech final : public Speech {
  public:
    bool voice = false;
    QStringList said;
    int stops = 0;

    bool hasVoice() const override { return voice; }
    void say(const QString& text) override { said << text; }
    void stop() override { ++stops; }
    /// A voice appears.
    void find() {
        voice = true;
        Q_EMIT found();
    }
    /// The text has been spoken to its end.
    void end() { Q_EMIT ended(); }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
