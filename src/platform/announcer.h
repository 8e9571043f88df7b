#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <array>
#include <memory>

namespace sarne {

/// Hands texts to those who hear the screen instead of seeing it.
class Announcer {
  public:
    virtual ~Announcer() = default;
    /// Has \a text spoken where a screen reader listens. An empty text says nothing.
    virtual void announce(const QString& text) = 0;
};

/// Announces through Qt's accessibility: by its event for that where there is one, else as an alert of the
/// window it is given. A reader asks for an alert's words when it comes to it, so each of the last ones keeps
/// its own.
class AccessibleAnnouncer final : public Announcer {
  public:
    /// \a window is the widget or window that the alerts belong to; it may be destroyed earlier, then nothing
    /// is announced any more.
    explicit AccessibleAnnouncer(QObject* window);
    ~AccessibleAnnouncer() override;
    void announce(const QString& text) override;

  private:
    QPointer<QObject> window_;
    static constexpr size_t kKept = 8;

    std::array<std::unique_ptr<QObject>, kKept> alerts_;
    size_t next_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
