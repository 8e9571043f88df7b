#pragma once

#include <QByteArray>

namespace sarne {

class EffectPlayer;

/// The short tone that says "not here".
class Beeper {
  public:
    virtual ~Beeper() = default;
    virtual void beep() = 0;
};

/// Beeps through the effect player, which outlives it.
class ToneBeeper final : public Beeper {
  public:
    explicit ToneBeeper(EffectPlayer& effects) : effects_(effects) {}
    void beep() override;

  private:
    EffectPlayer& effects_;
    QByteArray tone_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
