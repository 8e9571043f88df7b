#pragma once

#include "screens/index/keywordaside.h"
#include "screens/index/keywordhistory.h"
#include "screens/index/textform.h"

namespace sarne {

/// The text of an index keyword, and beside it a picture, the recipes that use the word and the film that
/// shows it, where there are any. Its phrases lead to other keywords, which show in the same screen; going
/// back retraces them, and then leaves to the caller. Made anew each time it is shown.
class frmIndex : public TextForm {
    Q_OBJECT
  public:
    explicit frmIndex(basSarne& sarne);

    /// Shows keyword \a keyword. False, and the form is gone, when there is none.
    bool Zobraz(std::int16_t keyword);

    void goBack() override;
    void eyesChanged() override;

  protected:
    void linkActivated(const LinkKey& key) override;

  private:
    bool showKeyword(int keyword);

    KeywordAside aside_;
    KeywordHistory visited_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
