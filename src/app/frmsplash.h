#pragma once

#include "forms/form.h"

namespace sarne {

class Program;

/// The first and the last picture of a run. While it shows, the settings and the screens' pictures are read.
class frmSplash : public Form {
    Q_OBJECT
  public:
    explicit frmSplash(Program& program);

    /// The start: shows itself and prepares the run. False when the user declines to go on.
    bool Zobraz();
    /// The end: shows itself once more.
    void Konec();
    /// The text under the title.
    void setCaption(const QString& caption);

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;

  private:
    void preparePictures();
    void readSettings();

    Program& program_;
    QString caption_;
};

}  // namespace sarne
