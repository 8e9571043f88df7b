#pragma once

#include <QString>

namespace sarne {

/// What printing tells while it goes on, so that it can be shown, and where it asks whether to go on.
class PrintProgress {
  public:
    virtual ~PrintProgress() = default;

    virtual void recipeStarted(const QString& name) = 0;
    /// What is being printed now (" Tisknu recept ... ").
    virtual void status(const QString& text) = 0;
    /// How much of the recipe is done, 0 to 1: first its lines are set, then its pages are put out.
    virtual void progressed(double part) = 0;
    virtual void recipeDone() = 0;
    /// Called for each line that is set or painted: the place to let pending events run. False stops the
    /// printing.
    virtual bool goOn() = 0;
};

/// How much of a recipe is done when its lines are set.
inline constexpr double kSetPart = .5;

/// Tells nobody and never stops.
class SilentProgress final : public PrintProgress {
  public:
    void recipeStarted(const QString&) override {}
    void status(const QString&) override {}
    void progressed(double) override {}
    void recipeDone() override {}
    bool goOn() override { return true; }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
