#pragma once

#include <QObject>
#include <array>

namespace sarne {

/// Tells, in the event loop, that the system wants the program to end: SIGTERM, SIGINT or SIGHUP. One object
/// at a time; while it lives these signals do not kill the process.
class EndSignals final : public QObject {
    Q_OBJECT
  public:
    explicit EndSignals(QObject* parent = nullptr);
    ~EndSignals() override;

  Q_SIGNALS:
    void received();

  private:
    std::array<int, 2> ends_{-1, -1};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
