#pragma once

#include <QObject>
#include <QString>

namespace sarne {

/// Speaks Czech. This one has no voice: what a machine without one gives.
class Speech : public QObject {
    Q_OBJECT
  public:
    /// Whether there is a Czech voice; may become true later, which found() tells.
    virtual bool hasVoice() const { return false; }
    /// Speaks \a text in place of what is being spoken. Returns at once.
    virtual void say(const QString& /*text*/) {}
    /// Falls silent.
    virtual void stop() {}

  Q_SIGNALS:
    void found();
    /// What was said last has been spoken to its end, was stopped, or could not be spoken. Not told of a text
    /// in whose place another one came.
    void ended();
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
