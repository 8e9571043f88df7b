#pragma once

#include <QStringList>

#include "platform/sleepinhibitor.h"

namespace sarne {

/// Keeps the reasons it was given and whether the display is kept awake now.
class FakeSleepInhibitor final : public SleepInhibitor {
  public:
    QStringList reasons;
    bool inhibited = false;

    void inhibit(const QString& reason) override {
        reasons.append(reason);
        inhibited = true;
    }
    void release() override { inhibited = false; }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
