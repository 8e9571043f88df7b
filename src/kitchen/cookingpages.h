#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "kitchen/steps.h"

namespace sarne {

/// What is seen at once at the stove: what to get ready, a step or a part of it, the end.
struct CookingPage {
    enum class Kind { Ready, Step, Done };
    Kind kind = Kind::Step;
    int step = 0;  ///< of a Step: its place among the steps, from 0
    QString text;  ///< of a Step: what of it is seen
    int part = 0, parts = 1;
};

/// \a text in parts that \a fits finds small enough, as few as can be: cut between sentences, within a
/// sentence only where it does not fit alone.
std::vector<QString> partsThatFit(const QString& text, const std::function<bool(const QString&)>& fits);

/// The pages of \a steps; none without steps.
std::vector<CookingPage> cookingPages(const std::vector<CookingStep>& steps,
                                      const std::function<bool(const QString&)>& fits);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
