#include "screens/index/keywordaside.h"

#include "core/texts.h"
#include "core/value.h"
#include "db/database.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/screens.h"
#include "forms/textview.h"
#include "screens/index/barform.h"

namespace sarne {
namespace {

constexpr int kEdge = 240;  // of the paper that stays free
constexpr int kWidth = 3720;
constexpr int kGap = 150;
constexpr int kPictureHeight = kWidth * 3 / 4;
constexpr int kButtonHeight = 570;
constexpr int kLeft = BarForm::kContent.x() + BarForm::kContent.width() - kEdge - kWidth;
constexpr int kTop = BarForm::kContent.y() + kEdge;

}  // namespace

KeywordAside::KeywordAside(Form& form, basSarne& sarne)
    : app_(sarne),
      picture_(*new PictureBox(form, QStringLiteral("picHeslo"))),
      caption_(*new Label(form, QStringLiteral("lblHeslo"))),
      recipesButton_(*new Button(form, QStringLiteral("cmdRecepty"))),
      filmButton_(*new Button(form, QStringLiteral("cmdFilm"))) {
    picture_.setFocusPolicy(Qt::NoFocus);
    caption_.setFont({QStringLiteral("Times New Roman"), 11, false, true});
    caption_.setColor(colors::kInk);
    caption_.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    caption_.setWordWrap(true);
    filmButton_.dressAsText(Texts::tr("Pustit film"), Texts::tr("Film, který to ukazuje"));
    QObject::connect(&recipesButton_, &Button::clicked, &form,
                     [this] { app_.screens().showList(recipes_, QStringLiteral("recepty"), name_); });
    QObject::connect(&filmButton_, &Button::clicked, &form, [this] { app_.screens().showVideo(film_); });
}

void KeywordAside::show(int keyword, const QString& name) {
    name_ = name;
    Recordset samples = app_.Db().OpenTable(QStringLiteral("UkazkyHesel"));
    const bool isThere = RecordExists(samples, keyword);
    const auto field = [&](const char* column) {
        return isThere ? samples.field(QLatin1String(column)) : QVariant();
    };
    setRecipes(field("Recepty").toString());
    film_ = toRecordId(field("Film").toLongLong()).value_or(0);
    int top = showPicture(field("Obraz").toString(), field("Popis").toString(), kTop);
    top = showButton(recipesButton_, !recipes_.isEmpty(), top);
    showButton(filmButton_, film_ > 0, top);
}

int KeywordAside::showPicture(const QString& file, const QString& caption, int top) {
    const Picture picture = file.isEmpty() ? Picture() : app_.mediaPicture(file);
    picture_.setVisible(!picture.isNull());
    caption_.setVisible(!picture.isNull() && !caption.isEmpty());
    if (picture.isNull()) return top;
    picture_.place({kLeft, top, kWidth, kPictureHeight});
    picture_.setPicture(picture);
    picture_.setAccessibleName(caption);
    picture_.setUnheard(caption.isEmpty());  // it shows what the text beside it tells of
    top += kPictureHeight + kGap;
    if (caption.isEmpty()) return top;
    caption_.setText(caption);
    caption_.place({kLeft, top, kWidth, 0});
    caption_.autoSize(kWidth);
    return top + caption_.twips().height() + kGap;
}

int KeywordAside::showButton(Button& button, bool isThere, int top) {
    button.setVisible(isThere);
    if (!isThere) return top;
    button.place({kLeft, top, kWidth, kButtonHeight});
    return top + kButtonHeight + kGap;
}

void KeywordAside::setRecipes(const QString& recipes) {
    recipes_ = recipes;
    recipesButton_.dressAsText(Texts::tr("Recepty: %1").arg(recipes.count(u',')),
                               Texts::tr("Recepty, ve kterých se s tím setkáte"));
}

std::vector<Button*> KeywordAside::buttons() const {
    std::vector<Button*> shown;
    for (Button* button : {&recipesButton_, &filmButton_})
        if (button->isVisibleTo(button->parentWidget())) shown.push_back(button);
    return shown;
}

QRect KeywordAside::besideIt(const QRect& text) const {
    constexpr int kTextLeft = BarForm::kContent.x() + kEdge;
    return {kTextLeft, text.top(), kLeft - TextView::kArrowRoom - kTextLeft, text.height()};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
