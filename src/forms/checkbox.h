#pragma once

#include "forms/control.h"
#include "forms/largertext.h"
#include "forms/picture.h"
#include "richtext/surface.h"

namespace sarne {

/// A switch with a caption beside it. A click or the space bar changes it.
class CheckBox : public Control {
    Q_OBJECT
  public:
    CheckBox(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::CheckBox; }
    QRect focusPlace() const override { return {{0, 0}, twips().size()}; }
    void addAccessibleState(QAccessible::State& state) const override;

    bool isChecked() const { return checked_; }
    void setChecked(bool checked);
    void setCaption(const QString& caption);
    const QString& caption() const { return caption_; }
    void setFont(const TextFont& font);
    void setColor(const QColor& color);
    /// The pictures of the box, "Zaskrtnuto" and "Nezaskrtnuto" of the program's; without them it is drawn.
    void setMarkPictures(const Picture& on, const Picture& off);

  Q_SIGNALS:
    void toggled(bool checked);

  protected:
    /// What a click does.
    virtual void use() { setChecked(!checked_); }
    virtual void paintMark(QPainter& painter, const QRect& place) const;
    const Picture& markPicture() const { return checked_ ? on_ : off_; }
    void paint(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QRect captionRoom() const;
    double roomToGrow() const;

    QString caption_;
    TextFont font_;
    QColor color_;
    Picture on_, off_;
    bool checked_ = false;
    RoomToGrow room_;
};

/// One of several choices of a form: choosing one gives up the others of the same group. Its pictures are
/// "VolbaAno" and "VolbaNe".
class OptionButton : public CheckBox {
    Q_OBJECT
  public:
    OptionButton(Form& form, const QString& name, int group = 0);

    QAccessible::Role role() const override { return QAccessible::RadioButton; }
    int group() const { return group_; }

  protected:
    void use() override { setChecked(true); }
    void paintMark(QPainter& painter, const QRect& place) const override;

  private:
    void giveUpOthers();

    int group_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
