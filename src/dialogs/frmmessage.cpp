#include "dialogs/frmmessage.h"

#include <QKeyEvent>
#include <QPainter>

#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/stage.h"

namespace sarne {
namespace {

const TextFont kTextFont{QStringLiteral("Arial"), 11};

}  // namespace

frmMessage::frmMessage(basSarne& sarne)
    : Form(sarne, QStringLiteral("frmMessage")),
      Label1(*this, QStringLiteral("Label1")),
      Image1(*this, QStringLiteral("Image1")) {
    Label1.setFont(kTextFont);
    Label1.setColor(colors::kPaper);
    Image1.setAttribute(Qt::WA_TransparentForMouseEvents);
    Image1.setUnheard(true);
    for (int i = 0; i < 3; ++i) {
        cmdBtn[size_t(i)] = new Button(*this, QStringLiteral("cmdBtn(%1)").arg(i));
        connect(cmdBtn[size_t(i)], &Button::clicked, this, [this, i] { press(i); });
    }
    ring().setStops({cmdBtn.begin(), cmdBtn.end()});
    ring().setArrows(FocusRing::Arrows::All);
}

int frmMessage::ask(const QString& text, int style, int silent, int closeCode) {
    closeCode_ = closeCode;
    mayLeave_ = false;
    setUp(text, style, silent);
    showModal();
    return result_;
}

int frmMessage::askOrLeave(const QString& text, int style) {
    closeCode_ = 0;
    mayLeave_ = true;
    setUp(text, style, 0);
    showModal();
    return result_;
}

void frmMessage::setUp(const QString& text, int style, int silent) {
    const MessageStyle parts = MessageStyle::split(style);
    result_ = closeCode_;
    escape_ = escapeButton(parts.buttons);
    Label1.setText(text);
    place({});  // however large the box was that was asked last
    Label1.autoSize();
    if (Label1.twips().width() > kMessageTextLimit) Label1.autoSize(kMessageTextLimit);

    const auto buttons = messageButtons(parts.buttons);
    const auto geometry = layOutMessage(Label1.twips().size(), parts.icon != 0, int(buttons.size()));
    place(geometry.box);
    Label1.place(geometry.label);
    Image1.setVisible(parts.icon != 0);
    Image1.place(geometry.icon);
    Image1.setPicture(app().resources().picture(QStringLiteral("Ikona%1").arg(parts.icon)));
    setUpButtons(buttons, geometry);

    if (silent == 0) app().Beep();
    setAccessibleName(text.trimmed());
    const size_t first = size_t(parts.defaultButton) < buttons.size() ? size_t(parts.defaultButton) : 0;
    ring().startAt(cmdBtn[first]);
    ring().sayWithoutReader(text);  // a screen reader says what the dialog is called
}

void frmMessage::setUpButtons(const std::vector<MessageButton>& buttons, const MessageGeometry& geometry) {
    shown_ = buttons;
    for (size_t i = 0; i < cmdBtn.size(); ++i) {
        cmdBtn[i]->setVisible(i < buttons.size());
        if (i >= buttons.size()) continue;
        cmdBtn[i]->dressAsText(buttons[i].caption);
        cmdBtn[i]->place(geometry.buttons[i]);
    }
}

void frmMessage::press(int button) {
    if (size_t(button) >= shown_.size()) return;
    result_ = shown_[size_t(button)].code;
    hideForm();
}

void frmMessage::closeRequested() {
    if (mayLeave_ || closeCode_ != 0) hideForm();
}

void frmMessage::pressByLetter(const QString& letter) {
    for (size_t i = 0; i < shown_.size(); ++i) {
        if (!letter.isEmpty() && shown_[i].caption.startsWith(letter, Qt::CaseInsensitive))
            return press(int(i));
    }
}

bool frmMessage::keyDown(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Escape:
            mayLeave_ ? hideForm() : press(escape_);
            break;
        case Qt::Key_F4:
        case Qt::Key_X:
            if (event.modifiers() & Qt::AltModifier) closeRequested();
            break;
        case Qt::Key_F1:
            if (app().FormStack.top()) help();  // not before there is a screen
            break;
        case Qt::Key_F9:
            return false;  // read aloud
        default:
            if (!ring().keyDown(event)) pressByLetter(event.text());
    }
    return true;  // the box is modal: no key of it means anything else
}

void frmMessage::mousePressEvent(QMouseEvent*) {
    dragFrom_ = {};
}

void frmMessage::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint at = toTwips(event->position());
    if (dragFrom_.isNull()) dragFrom_ = at;
    const QPoint wanted = twips().topLeft() + (at - dragFrom_) * enlargement();
    moveTo({qBound(0, wanted.x(), Stage::kWidth - twips().width()),
            qBound(0, wanted.y(), Stage::kHeight - twips().height())});
}

void frmMessage::mouseReleaseEvent(QMouseEvent*) {
    dragFrom_ = {};
}

void frmMessage::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("zprava")));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
