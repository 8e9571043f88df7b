#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace sarne {

/// Decides when a player whose sound goes nowhere is to open its output anew: once each time that a device
/// appears which was not there before. Never for a change that brings no device, which an opening in vain may
/// itself cause, and only so many times without success, or it would never end.
class OutputWatch {
  public:
    enum class Act {
        None,
        Follow,  ///< from now on every change of the devices is to be told
        Leave,   ///< and no longer
        Reopen,  ///< the output is to be opened anew
    };

    /// What the sound now goes to: the name of a driver, "null" for nowhere, empty while there is no sound.
    Act output(const QString& driver);
    /// All devices that there are now; told first after Follow.
    Act devices(const QStringList& names);

  private:
    bool following_ = false;
    bool known_ = false;  // since Follow, names_ are told
    QSet<QString> names_;
    int inVain_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
