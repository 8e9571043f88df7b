#pragma once

#include <vector>

#include "screens/index/pages.h"
#include "screens/index/textform.h"

namespace sarne {

/// A page of text with its button bar: how to use the cookbook, the help for a screen. Its "Help" leads to
/// the list of help topics. Made anew each time it is shown.
class frmStranka : public TextForm {
    Q_OBJECT
  public:
    explicit frmStranka(basSarne& sarne);

    /// Shows the page whose id is written in \a id, and behind it \a additions, which need no page. False,
    /// and the form is gone, when there is nothing to show.
    bool Zobraz(const QString& id, const std::vector<PageAddition>& additions = {});

    /// The help for pages; nothing but a beep where that is the page that shows.
    void help() override;

  protected:
    void helpButton() override;

  private:
    int id_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
