#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>

namespace sarne {

/// Hands texts to those who hear the screen instead of seeing it.
class Announcer {
  public:
    virtual ~Announcer() = default;
    /// Has \a text spoken where a screen reader listens. An empty text says nothing.
    virtual void announce(const QString& text) = 0;
};

/// Announces through Qt's accessibility, as an alert of the window it is given.
class AccessibleAnnouncer final : public Announcer {
  public:
    /// \a window is the widget or window that the alerts belong to; it may be destroyed earlier, then nothing
    /// is announced any more.
    explicit AccessibleAnnouncer(QObject* window);
    ~AccessibleAnnouncer() override;
    void announce(const QString& text) override;

  private:
    QPointer<QObject> window_;
    std::unique_ptr<QObject> alert_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
