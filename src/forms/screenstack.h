#pragma once

#include <QPointer>
#include <QString>
#include <vector>

#include "forms/form.h"

namespace sarne {

/// The screens in the order in which they were shown, the last one on top.
class ScreenStack {
  public:
    /// The screen on top; nothing when no screen was shown yet.
    Form* top() const;
    int count() const { return static_cast<int>(screens_.size()); }
    bool contains(const Form& screen) const;

    void add(Form& screen);
    /// Takes \a screen out, wherever it stands.
    void remove(const Form& screen);
    const std::vector<QPointer<Form>>& screens() const { return screens_; }

  private:
    std::vector<QPointer<Form>> screens_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
