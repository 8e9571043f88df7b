#pragma once

#include <array>

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/form.h"
#include "forms/label.h"

namespace sarne {

/// What eyes that need more are offered: the size of texts, calm, contrast. Every choice is shown at once and
/// stays; there is nothing to confirm.
class frmZobrazeni : public Form {
    Q_OBJECT
  public:
    explicit frmZobrazeni(basSarne& sarne);

    void Zobraz();
    void goBack() override;

  protected:
    void paint(QPainter& painter) override;

  private:
    void showChoices();

    Label title_, size_;
    std::array<OptionButton*, 3> sizes_{};
    CheckBox calm_, contrast_;
    Label hint_;
    Button done_;
    bool showing_ = false;  ///< the choices are being set to what is so already
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
