#pragma once

#include <array>
#include <vector>

#include "db/soundsettings.h"
#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/form.h"
#include "forms/label.h"

namespace sarne {

/// The settings of music and sounds, over the screen that asked for them. Made anew each time it is shown.
class frmNastavHudbu : public Form {
    Q_OBJECT
  public:
    explicit frmNastavHudbu(basSarne& sarne);

    /// Loads the switches and shows the screen.
    void Zobraz();

    void goBack() override { press(1); }
    void musicSettings() override {}  // this is the screen that F4 opens
    void restored() override;

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;

  private:
    void load();
    void tellWhatIsMissing();
    void switched(size_t index);
    void trackChosen(bool wineSounds);
    void showCaption(size_t index);
    void press(int index);
    void store();
    void enableTracks();

    bool loading_ = false;
    std::vector<SoundSetting> settings_;
    Label title_;
    Label missing_;  // says why switches or music are not to be had
    std::array<CheckBox*, kSoundSettings> chkNastav{};
    std::array<OptionButton*, 2> opthudba{};
    std::array<Button*, 2> cmdOkEnd{};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
