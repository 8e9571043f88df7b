#pragma once

#include <QString>
#include <QTimer>

namespace sarne {

/// A form's timer: ticks every interval while it is enabled, and keeps a small text. Tests call fire()
/// instead of waiting.
class Timer : public QObject {
    Q_OBJECT
  public:
    explicit Timer(QObject* parent);

    void setInterval(int milliseconds) { timer_.setInterval(milliseconds); }
    int interval() const { return timer_.interval(); }
    void setEnabled(bool enabled);
    bool isEnabled() const { return timer_.isActive(); }
    void setTag(const QString& tag) { tag_ = tag; }
    const QString& tag() const { return tag_; }
    /// Ticks now, as if the interval had passed. Nothing while the timer is disabled.
    void fire();

  Q_SIGNALS:
    void tick();

  private:
    QTimer timer_;
    QString tag_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
