#pragma once

#include <cstdint>
#include <memory>

#include "forms/buttonbar.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/timer.h"
#include "media/chapters.h"
#include "media/seekbar.h"
#include "media/videoarea.h"

namespace sarne {

class MultimediaControl;

/// Plays one of the program's clips, with a bar of transport buttons and steps by its chapters, which a file
/// beside the clip tells ("VIDEO\" + number + ".KAP"; without one it is one part). The background music stops
/// meanwhile. Made anew for each clip.
class frmVideo : public Form {
    Q_OBJECT
  public:
    /// Owns \a player; without one nothing can be played and the screen closes again.
    frmVideo(basSarne& sarne, std::unique_ptr<MultimediaControl> player);
    ~frmVideo() override;

    /// Shows the screen and, a moment later, opens and plays the clip "VIDEO\" + number + ".AVI".
    void Zobraz(std::int16_t number);
    /// Closes the clip and the screen; the music plays on.
    void Skryj();

    void goBack() override { Skryj(); }
    void restored() override;
    void unload() override;

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;

  private:
    enum Transport { kSound, kPlay, kStop, kPause, kPrev, kNext };

    enum ChapterStep { kChapterBack, kAgain, kChapterOn, kSlow };

    void placeButtons();
    void press(int index);
    void pressChapter(int index);
    void readChapters();
    void showProgress();
    void seeAgain();
    void toggleSpeed();
    bool mediaKey(int key);
    void start();
    void showError();
    void ended(int code);
    void pause();
    void sayState();
    void sayPlace();
    void toggleSound();
    void applySound();
    void stopMusic();
    void seek(qint64 milliseconds);
    void jump(qint64 milliseconds);
    void toggleFullScreen();
    void setPlaying(bool playing);

    std::unique_ptr<MultimediaControl> MMControlVideo;
    VideoArea area_;
    Label title_;  // of the clip, as its menu item reads
    Label Label1;
    Label time_;
    Label chapter_;  // the title of the chapter that is on
    SeekBar bar_;
    ButtonBar ImgTlacitko, imgKapitola, imgBtn;
    Timer tmrStart;
    Timer progress_;
    Chapters chapters_;
    std::int16_t number_ = 0;
    bool slow_ = false;
    bool wholeScreen_ = false;
    bool focusMoved_ = false;  // the user has gone to a button with Tab
    bool closed_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
