#pragma once

#include <QObject>

#include "platform/desktopwishes.h"

namespace sarne {

class Eyes;
class UserFile;

/// Keeps between runs what the user has chosen for their eyes. What they have not chosen here follows what
/// they have told the desktop.
class KeptEyes : public QObject {
    Q_OBJECT
  public:
    /// Both outlive it. Sets \a eyes to what was kept.
    KeptEyes(Eyes& eyes, UserFile& file);

    /// The desktop wishes this; holds where the user has not chosen.
    void follow(DesktopWishes wishes);

  private:
    void keep();

    Eyes& eyes_;
    UserFile& file_;
    DesktopWishes wishes_;
    bool following_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
