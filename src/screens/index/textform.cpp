#include "screens/index/textform.h"

#include <QKeyEvent>

#include "forms/bassarne.h"
#include "forms/followlink.h"
#include "forms/keys.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "screens/index/headings.h"

namespace sarne {
namespace {

constexpr QRect kPaper = BarForm::kContent;
constexpr int kMargin = 180;            // of paper around the view
constexpr QPoint kTextStart(180, 105);  // in the view: room for the ring that shows where the keyboard is
constexpr int kSide = kMargin + TextView::kArrowRoom;  // left as right, so that the text stands in the middle
constexpr QRect kText{kPaper.x() + kSide, kPaper.y() + kMargin, kPaper.width() - 2 * kSide,
                      kPaper.height() - 2 * kMargin};

}  // namespace

TextForm::TextForm(basSarne& sarne, const QString& name)
    : BarForm(sarne, name), view_(*this, QStringLiteral("picText")) {
    view_.place(kText);
    view_.setSheet(kPaper);
    view_.setRightMargin(kTextStart.x());
    view_.setFocusPolicy(Qt::ClickFocus);
    view_.setArrowPictures(sarne.resources().picture(QStringLiteral("SipkaNahoru")),
                           sarne.resources().picture(QStringLiteral("SipkaDolu")));
    connect(&view_, &TextView::linkActivated, this, [this](LinkKey key) { linkActivated(key); });
    setContent({&view_});
}

QRect TextForm::wholePaper() {
    return kText;
}

void TextForm::showText(const QString& name, const QString& text, const QString& kind) {
    kind_ = kind;
    name_ = name;
    text_ = text;
    const QString body = withoutHeading(text, name);
    setTitle(beginsWithHeading(body, name) ? kind : name);
    view_.drawFilling([&] {
        view_.setCurrentX(kTextStart.x());
        view_.setCurrentY(kTextStart.y());
        view_.drawRichText(body);
    });
    view_.scrollTo(0);
    view_.setAccessibleName(name);
}

void TextForm::eyesChanged() {
    if (!name_.isEmpty()) showText(QString(name_), QString(text_), QString(kind_));
}

void TextForm::linkActivated(const LinkKey& key) {
    followLink(app(), key);
}

void TextForm::print() {
    app().screens().printText(name_, text_);
}

bool TextForm::keyDown(QKeyEvent& event) {
    const bool enter = isEnter(event);
    // Enter is the focused button's; all other keys of the view scroll it from wherever the keyboard is.
    if ((ring().isAt(&view_) || !enter) && view_.keyDown(event)) return true;
    return BarForm::keyDown(event);
}

void TextForm::paint(QPainter& painter) {
    BarForm::paint(painter);
    paintPaper(painter, kPaper);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
