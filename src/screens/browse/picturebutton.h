#pragma once

#include "forms/button.h"

namespace sarne {

class basSarne;

/// A button of the bars: its face keeps its place, the raised frame comes with the mouse and the pressed one
/// with a press, or stays while the button is latched. A word stands for a face that is missing.
class PictureButton : public Button {
    Q_OBJECT
  public:
    PictureButton(Form& form, const QString& name);

    enum class Word { WhenNoPicture, Beside };
    /// Shows the program's picture called \a face; \a word beside it, or only where the picture is missing.
    void dress(basSarne& app, const QString& face, const QString& word, Word shown = Word::WhenNoPicture);
    /// Shows the button as pressed for good: what it opens is what shows.
    void setLatched(bool latched);

  protected:
    void paint(QPainter& painter) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void chooseFrame();

    Picture face_;
    QString word_;
    Word shown_ = Word::WhenNoPicture;
    bool latched_ = false, hovered_ = false;
};

}  // namespace sarne
