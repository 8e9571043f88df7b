#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace sarne {

class FakeSarne;
class Form;

namespace test {

/// Something that is done once with a screen that was just opened.
using Act = std::function<void(FakeSarne&)>;

struct Step {
    QString name;
    Act act;
    bool byKey = false, isForEyes = false;
    QString presses = {};  ///< the control in whose middle it clicks
};

/// All that is tried with the form in front: every control by the mouse and the wheel, every key, a voice
/// that reads, time that passes, and what the eyes may want. Nothing where no form shows.
std::vector<Step> stepsOn(const FakeSarne& run);

/// Whether the control \a name is of many alike on \a form, and neither of the first three nor the last.
bool isOneOfMany(const Form& form, const QString& name);

}  // namespace test
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
