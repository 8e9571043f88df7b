#pragma once

#include <cstddef>
#include <memory>

#include "platform/speech.h"

namespace sarne {

struct SpeechConnection;

/// Speaks through the desktop's speech dispatcher, with the first of its synthesizers that has a Czech voice.
/// The dispatcher's library is loaded, and the dispatcher asked for its voices, in a thread of its own.
class DispatcherSpeech final : public Speech {
    Q_OBJECT
  public:
    DispatcherSpeech();
    ~DispatcherSpeech() override;

    /// Looks for a voice, in the background; found() tells that there is one.
    void lookForVoice();

    bool hasVoice() const override { return connection_ != nullptr; }
    void say(const QString& text) override;
    void stop() override;

  private:
    friend struct SpeechConnection;

    void connected(std::shared_ptr<SpeechConnection> connection);
    void messageEnded(size_t message);

    std::shared_ptr<SpeechConnection> connection_;
    size_t message_ = 0;  // that is being spoken; 0 for none
    bool looking_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
