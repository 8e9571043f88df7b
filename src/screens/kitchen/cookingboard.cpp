// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/kitchen/cookingboard.h"

#include <QPainter>
#include <algorithm>

#include "core/texts.h"
#include "core/unbreakable.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/panel.h"
#include "forms/resources.h"

namespace sarne {
namespace {

constexpr QRect kCounter{1140, 540, 6300, 390};
constexpr QRect kPaper{240, 1110, 7860, 6780};
constexpr QRect kText{600, 1200, 7200, 6600};
constexpr QRect kDoneText{420, 1500, 7530, 3600};
constexpr QRect kNoteHint{900, 5250, 6540, 420};
constexpr QRect kNote{900, 5700, 6540, 600};
constexpr QRect kSide{8250, 1110, 3510, 4770};
constexpr QRect kSideTitle{8400, 1170, 3210, 390};
constexpr QRect kNeeds{8400, 1590, 3210, 3480};
constexpr QRect kPhoto{8400, 3480, 3210, 2280};
constexpr QRect kCooked{8850, 1200, 2310, 1650};
constexpr QRect kStars{8550, 2910, 2910, 510};
constexpr int kTimeHeight = 570, kTimeGap = 45;
constexpr int kLongestTimer = 24 * 3600;  // seconds
constexpr int kLongestNote = 200;         // characters

/// Points: read from two metres.
const TextFont kStepFont{QStringLiteral("Arial"), 28};
const TextFont kNeedFont{QStringLiteral("Arial"), 17};
constexpr double kLeastNeed = 11, kNeedStep = 2;

void dress(Label& label, const QRect& place, const TextFont& font, const QColor& color) {
    label.place(place);
    label.setFont(font);
    label.setColor(color);
    label.setWordWrap(true);
}

}  // namespace

CookingBoard::CookingBoard(Form& form)
    : counter(form, QStringLiteral("lblKrok")),
      text(form, QStringLiteral("lblText")),
      paper(form, QStringLiteral("imgPapir")),
      side(form, QStringLiteral("lblPotreba")),
      needs(form, QStringLiteral("lblSuroviny")),
      list(form, QStringLiteral("picSuroviny")),
      photo(form, QStringLiteral("picFoto")),
      noteHint(form, QStringLiteral("lblPoznamka")),
      note(form, QStringLiteral("txtPoznamka")),
      stars(form, QStringLiteral("picHvezdy")),
      cooked(form, QStringLiteral("imgUvareno")) {
    dress(counter, kCounter, {QStringLiteral("Arial"), 14}, colors::kPaper);
    dress(text, kText, kStepFont, colors::kInk);
    paper.place(kPaper);
    paper.setAccessibleName(Texts::tr("Dál"));
    dress(side, kSideTitle, {QStringLiteral("Arial"), 13, true}, colors::kTitle);
    dress(needs, kNeeds, kNeedFont, colors::kPaper);
    for (Label* sized : {&text, &needs}) sized->setGrows(false);  // the pages are cut to their sizes
    takeTextSize();
    list.place(kText);
    list.setPoints(17);
    list.setAccessibleName(Texts::tr("Suroviny"));
    photo.place(kPhoto);
    photo.setAttribute(Qt::WA_TransparentForMouseEvents);
    dress(noteHint, kNoteHint, {QStringLiteral("Arial"), 13, true}, colors::kInk);
    noteHint.setText(Texts::tr("Co si příště pamatovat (do vlastní poznámky):"));
    note.place(kNote);
    note.setFont({QStringLiteral("Arial"), 14});
    note.setMaxLength(kLongestNote);
    note.setAccessibleName(noteHint.text());
    stars.place(kStars);
    cooked.place(kCooked);
    cooked.setFont({QStringLiteral("Arial"), 14, true});
    for (int i = 0; i < kTimes; ++i) {
        auto* button = new Button(form, QStringLiteral("cmdCas(%1)").arg(i));
        button->setFrame(Button::Frame::Raised);
        button->setGround(colors::kNight);
        button->setFace(form.resources().picture(QStringLiteral("Casovac")));
        button->setCaptionPlace(Button::CaptionPlace::Beside);
        button->setFont({QStringLiteral("Arial"), 14, true});
        timeButtons.push_back(button);
    }
}

TextFont CookingBoard::sized(const TextFont& font) const {
    return larger(font, text.form().textScale());
}

bool CookingBoard::fits(const QString& words) const {
    return Label::measure(words, sized(kStepFont), kText.width()).height() <= kText.height();
}

void CookingBoard::takeTextSize() {
    text.setFont(sized(kStepFont));
}

/// What is needed in the largest size in which \a place holds it.
void CookingBoard::fit(const QString& needed, const QRect& place) {
    const double scale = text.form().textScale();
    TextFont font = larger(
        kNeedFont, RoomToGrow().of(kNeedFont, scale, unbroken(needed), place.size(), Qt::TextWordWrap));
    while (font.size > kLeastNeed && Label::measure(needed, font, place.width()).height() > place.height())
        font.size = std::max(kLeastNeed, font.size - kNeedStep);
    needs.place(place);
    needs.setFont(font);
    needs.setText(needed);
}

std::vector<TwipWidget*> CookingBoard::stops() {
    std::vector<TwipWidget*> all{&list, &note, &stars};
    all.insert(all.end(), timeButtons.begin(), timeButtons.end());
    return all;
}

void CookingBoard::show(CookingPage::Kind kind) {
    const bool done = kind == CookingPage::Kind::Done;
    list.setVisible(kind == CookingPage::Kind::Ready);
    text.setVisible(kind != CookingPage::Kind::Ready);
    paper.setVisible(kind == CookingPage::Kind::Step);
    cooked.setVisible(done);
    noteHint.setVisible(done);
    note.setVisible(done);
    stars.setVisible(done);
    text.place(done ? kDoneText : kText);
    text.setAlignment(done ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

void CookingBoard::showReady(const CookingRecipe& recipe, const std::vector<bool>& ready) {
    show(CookingPage::Kind::Ready);
    counter.setText(Texts::tr("Co si připravit · %1").arg(recipe.portionsText()));
    std::vector<TickRow> rows{{TickRow::Kind::Heading, Texts::tr("Suroviny"), {}, {}, false}};
    const QString dash = QStringLiteral("\u00a0–\u00a0");
    for (size_t i = 0; i < recipe.ingredients.size(); ++i) {
        const Ingredient& one = recipe.ingredients[i];
        const QString need = needText(one, 1, recipe.serving.units, recipe.quantities, recipe.locale);
        const QString alternative = one.alternative ? Texts::tr("nebo %1").arg(*one.alternative) : QString();
        rows.push_back({TickRow::Kind::Item, need.section(dash, 0, 0), need.section(dash, 1), alternative,
                        static_cast<bool>(ready[i])});
    }
    list.setRows(std::move(rows));
    if (list.selected() == RowPaging::kNone) list.select(1);
    showTimes({});
    side.setText(Texts::tr("Nádobí a nářadí"));
    fit(recipe.tools.join(u'\n'), kNeeds);
}

void CookingBoard::showStep(const CookingRecipe& recipe, const CookingPage& page) {
    show(CookingPage::Kind::Step);
    counter.setText(recipe.counterOf(page) + QStringLiteral(" · ") + recipe.portionsText());
    text.setText(page.text);
    showTimes(page.text);
    showNeeds(recipe.needsOf(recipe.steps[static_cast<size_t>(page.step)]));
}

/// As large as there is room beside the times; the dish below them where there are none.
void CookingBoard::showNeeds(const QString& lines) {
    side.setText(lines.isEmpty() ? QString() : Texts::tr("Je potřeba"));
    QRect room = kNeeds;
    room.setBottom(times_.empty() ? kSide.bottom() - 90 : timeButtons[0]->twips().top() - 90);
    const int used = lines.isEmpty() ? 0 : Label::measure(lines, sized(kNeedFont), room.width()).height();
    const bool showsPhoto = room.height() - used > kPhoto.height() + 150 && times_.empty();
    photo.setVisible(showsPhoto);
    if (showsPhoto) room.setBottom(kPhoto.top() - 90);
    fit(lines, room);
}

void CookingBoard::showDone(const QString& words, int given) {
    show(CookingPage::Kind::Done);
    counter.setText(Texts::tr("Hotovo"));
    text.setText(words);
    side.setText({});
    needs.setText({});
    showTimes({});
    photo.setVisible(true);
    stars.setVisible(given >= 0);
    stars.setStars(std::max(0, given));
}

void CookingBoard::showTimes(const QString& words) {
    times_.clear();
    for (const FoundTime& time : findTimes(words)) {
        const auto same = [&time](const FoundTime& one) {
            return one.shortest == time.shortest && one.longest == time.longest;
        };
        const bool known = std::any_of(times_.begin(), times_.end(), same);
        if (!known && time.shortest <= kLongestTimer && times_.size() < size_t(kTimes))
            times_.push_back(time);
    }
    const int count = static_cast<int>(times_.size());
    for (int i = 0; i < kTimes; ++i) {
        timeButtons[static_cast<size_t>(i)]->setVisible(i < count);
        if (i < count) placeTime(i, count, words);
    }
    photo.setVisible(false);
}

void CookingBoard::placeTime(int index, int count, const QString& words) {
    Button& button = *timeButtons[static_cast<size_t>(index)];
    const FoundTime& time = times_[static_cast<size_t>(index)];
    button.setCaption(words.mid(time.at, time.length));
    button.setTip(
        Texts::tr("Spustit časovač: %1 (klávesa %2)").arg(durationText(time.shortest)).arg(index + 1));
    button.place({kSide.x() + 120, kSide.bottom() - 60 - (count - index) * (kTimeHeight + kTimeGap),
                  kSide.width() - 240, kTimeHeight});
}

void CookingBoard::paint(QPainter& painter) const {
    paintPaper(painter, kPaper);
    paintPlate(painter, kSide);
}

}  // namespace sarne
