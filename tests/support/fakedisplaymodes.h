#pragma once

#include <QList>

#include "platform/displaymodes.h"

namespace sarne {

/// A display that the test describes; it switches when \a switchable says so and keeps what it was asked.
class FakeDisplayModes final : public DisplayModes {
  public:
    QSize size{1920, 1080};
    QSize twips{15, 15};
    bool switchable = true;
    QList<QSize> asked;
    int restores = 0;

    QSize current() const override { return size; }
    bool canSwitch(QSize) const override { return switchable; }
    bool setMode(QSize wanted) override {
        asked.append(wanted);
        if (!switchable) return false;
        if (original_.isEmpty()) original_ = size;
        size = wanted;
        return true;
    }
    void restore() override {
        ++restores;
        if (!original_.isEmpty()) size = original_;
        original_ = {};
    }
    QSize twipsPerPixel() const override { return twips; }

  private:
    QSize original_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
