#pragma once

#include "screens/index/textform.h"

namespace sarne {

/// A page of text with its button bar: how to use the cookbook, the help for a screen. Its "Help" leads to
/// the list of help topics. Made anew each time it is shown.
class frmStranka : public TextForm {
    Q_OBJECT
  public:
    explicit frmStranka(basSarne& app);

    /// Shows the page whose id is written in \a id. False, and the form is gone, when there is none.
    bool Zobraz(const QString& id);

    /// The help for pages; nothing but a beep where that is the page that shows.
    void help() override;

  protected:
    void helpButton() override;

  private:
    int id_ = 0;
};

}  // namespace sarne
