#pragma once

#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

namespace sarne {

/// A real X server of the test's own, 1920 x 1080, whose card shows nothing. While it runs, DISPLAY names it.
class DisplayServer {
  public:
    DisplayServer() = default;
    ~DisplayServer();
    DisplayServer(const DisplayServer&) = delete;
    DisplayServer& operator=(const DisplayServer&) = delete;

    /// Starts the server; false when this machine has none or it does not start.
    bool start();

    /// Puts a second display, 1024 x 768, to the right of the first, or takes it away; whether that was done.
    static bool addDisplay();
    static bool removeDisplay();

    /// How large its whole screen is, which the monitor shows a part of; empty when it does not answer.
    static QSize screenSize();

  private:
    QTemporaryDir folder_;
    QProcess server_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
