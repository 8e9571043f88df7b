#pragma once

#include <QString>
#include <memory>

namespace sarne {

/// Keeps the display awake while something plays.
class SleepInhibitor {
  public:
    virtual ~SleepInhibitor() = default;
    /// From now on the display does not sleep. \a reason is shown to the user by the desktop. Again without a
    /// release() in between changes nothing.
    virtual void inhibit(const QString& reason) = 0;
    /// The display may sleep again. Nothing when it was not inhibited.
    virtual void release() = 0;
};

/// Asks the desktop over D-Bus, without waiting for its answer. Where nobody offers that, nothing happens.
/// The destructor releases.
class DesktopSleepInhibitor final : public SleepInhibitor {
  public:
    DesktopSleepInhibitor();
    ~DesktopSleepInhibitor() override;
    void inhibit(const QString& reason) override;
    void release() override;

  private:
    struct Wish;
    std::shared_ptr<Wish> wish_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
