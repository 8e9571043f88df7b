#pragma once

#include <memory>

#include "forms/form.h"
#include "forms/picture.h"

class QEventLoop;

namespace sarne {

class Label;
class MultimediaControl;
class Program;

/// The first and the last picture of a run. While it shows, the display is checked, the settings and the
/// screens' pictures are read, and the intro video plays.
class frmSplash : public Form {
    Q_OBJECT
  public:
    explicit frmSplash(Program& program);
    ~frmSplash() override;

    /// The start: shows itself and prepares the run. False when the user declines to go on or closes the
    /// window.
    bool Zobraz();
    /// Ends the intro video; the start goes on.
    void KonecVideo();
    /// The end: shows itself once more, in the last picture.
    void Konec();
    /// The text under the title.
    void setCaption(const QString& caption);

    void closeRequested() override;

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    bool checkDisplay();
    bool checkFonts();
    void playIntro();
    std::unique_ptr<Label> skipHint();
    void readSettings();

    Program& program_;
    QString caption_;
    std::unique_ptr<MultimediaControl> MMControl1;
    QEventLoop* intro_ = nullptr;
    bool closed_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
