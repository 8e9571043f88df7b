#pragma once

#include <QProcess>
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

  private:
    QTemporaryDir folder_;
    QProcess server_;
};

}  // namespace sarne
