#pragma once

#include <QStringList>

#include "platform/announcer.h"

namespace sarne {

/// Keeps what was announced.
class FakeAnnouncer final : public Announcer {
  public:
    QStringList texts;
    void announce(const QString& text) override { texts.append(text); }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
