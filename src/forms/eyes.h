#pragma once

#include <QColor>
#include <QObject>

namespace sarne {

/// How the program is shown to eyes that need more: larger texts, nothing that moves by itself, colours that
/// stand out. One for the whole run; what shows texts or moves asks it whenever it does.
class Eyes : public QObject {
    Q_OBJECT
  public:
    static constexpr int kSizes[] = {100, 125, 150};  ///< of texts, in percent

    /// How much larger than designed the texts of lists, sections and pages are: 1, 1.25 or 1.5.
    double textScale() const { return percent_ / 100.; }
    int textPercent() const { return percent_; }
    /// Nothing moves that the user has not moved.
    bool isCalm() const { return calm_; }
    /// Plain dark grounds, and texts that keep 7 : 1 to them.
    bool hasContrast() const { return contrast_; }

    /// The ground of a light text that is selected, and the ink of a link on paper.
    QColor selected() const;
    QColor linkInk() const;

    /// The nearest of kSizes is taken.
    void setTextPercent(int percent);
    /// One size up (1) or down (-1), as far as there is one; whether it is another one now.
    bool stepText(int direction);
    void setCalm(bool calm);
    void setContrast(bool contrast);

  Q_SIGNALS:
    void changed();

  private:
    int percent_ = 100;
    bool calm_ = false, contrast_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
