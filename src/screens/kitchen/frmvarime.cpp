#include "screens/kitchen/frmvarime.h"

#include <QDate>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>

#include "core/czech.h"
#include "core/texts.h"
#include "db/companions.h"
#include "db/database.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "kitchen/cooked.h"

namespace sarne {
namespace {

constexpr QRect kPicture{240, 60, 840, 840};
constexpr QRect kTitle{1140, 60, 6300, 510};
constexpr QRect kCounter{1140, 540, 6300, 390};
constexpr QRect kPaper{240, 1110, 7860, 6780};
constexpr QRect kText{420, 1200, 7530, 6600};
constexpr QRect kSide{8250, 1110, 3510, 4770};
constexpr QRect kSideTitle{8400, 1170, 3210, 390};
constexpr QRect kNeeds{8400, 1590, 3210, 3480};
constexpr QRect kPrevious{8250, 6480, 1410, 1410};
constexpr QRect kNext{9810, 5970, 1950, 1950};
constexpr QRect kCooked{8850, 1260, 2310, 2100};
constexpr QRect kBar{6600, 7965, 5160, 930};
constexpr int kTimeHeight = 570;
constexpr int kLongestTimer = 24 * 3600;  // seconds

/// Points: read from two metres.
const TextFont kStepFont{QStringLiteral("Arial"), 28};
constexpr double kNeedSizes[] = {17, 15, 13, 11};

constexpr BarFace kFaces[] = {barface::kHelp, barface::kBack, barface::kEnd, barface::kMusic};

/// Sets \a text in the largest of the sizes in which it fits the label's place.
void fit(Label& label, const QString& text, const QRect& place) {
    label.place(place);
    for (const double size : kNeedSizes) {
        const TextFont font{QStringLiteral("Arial"), size};
        label.setFont(font);
        if (Label::measure(text, font, place.width()).height() <= place.height()) break;
    }
    label.setText(QString(text).replace(QStringLiteral("–\u00a0"), QStringLiteral("–\u2060\u00a0")));
}

/// A range stays on one line: "8–10" is not to be broken behind its dash.
QString unbroken(QString text) {
    static const QRegularExpression range(QStringLiteral("(\\d)–(\\d)"));
    return text.replace(range, QStringLiteral("\\1–\u2060\\2"));
}

}  // namespace

frmVarime::frmVarime(basSarne& sarne, UserFile& file, StartTimer startTimer)
    : Form(sarne, QStringLiteral("frmVarime")),
      file_(file),
      startTimer_(std::move(startTimer)),
      title_(*this, QStringLiteral("lblNazev")),
      counter_(*this, QStringLiteral("lblKrok")),
      text_(*this, QStringLiteral("lblText")),
      paper_(*this, QStringLiteral("imgPapir")),
      side_(*this, QStringLiteral("lblPotreba")),
      needs_(*this, QStringLiteral("lblSuroviny")),
      list_(*this, QStringLiteral("picSuroviny")),
      photo_(*this, QStringLiteral("picFoto")),
      next_(*this, QStringLiteral("imgDal")),
      previous_(*this, QStringLiteral("imgZpatky")),
      cooked_(*this, QStringLiteral("imgUvareno")),
      bar_(*this, QStringLiteral("imgBtnHlavni"), kFaces, {}) {
    dress();
    makeButtons();
    bar_.placeRow(kBar);
    std::vector<TwipWidget*> stops{&next_, &previous_, &cooked_, &list_};
    stops.insert(stops.end(), time_.begin(), time_.end());
    for (TwipWidget* stop : bar_.stops()) stops.push_back(stop);
    ring().setStops(stops);
}

void frmVarime::dress() {
    const auto set = [](Label& label, const QRect& place, const TextFont& font, const QColor& color) {
        label.place(place);
        label.setFont(font);
        label.setColor(color);
        label.setWordWrap(true);
    };
    set(title_, kTitle, {QStringLiteral("Arial"), 18, true}, colors::kTitle);
    set(counter_, kCounter, {QStringLiteral("Arial"), 14}, colors::kPaper);
    set(text_, kText, kStepFont, colors::kInk);
    text_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    paper_.place(kPaper);
    paper_.setAccessibleName(Texts::tr("Dál"));
    connect(&paper_, &Button::clicked, this, &frmVarime::forward);
    set(side_, kSideTitle, {QStringLiteral("Arial"), 13, true}, colors::kTitle);
    set(needs_, kNeeds, {QStringLiteral("Arial"), 17}, colors::kPaper);
    list_.place(kText);
    list_.setPoints(17);
    list_.setAccessibleName(Texts::tr("Suroviny"));
    connect(&list_, &TickList::used, this, &frmVarime::tick);
    photo_.setAttribute(Qt::WA_TransparentForMouseEvents);
}

void frmVarime::makeButtons() {
    const auto make = [this](Button& button, const QRect& place, const char* picture,
                             const QString& caption) {
        button.place(place);
        button.setFace(app().resources().picture(QString::fromLatin1(picture)));
        button.setFrame(Button::Frame::Raised);
        button.setCaption(caption);
        button.setCaptionPlace(Button::CaptionPlace::Below);
        button.setTip(caption);
    };
    make(next_, kNext, "SIPKAVPRAVO", Texts::tr("Další krok"));
    make(previous_, kPrevious, "SIPKAVLEVO", Texts::tr("Předchozí krok"));
    make(cooked_, kCooked, "Varime", Texts::tr("Uvařeno!"));
    next_.setFont({QStringLiteral("Arial"), 13, true});
    cooked_.setFont({QStringLiteral("Arial"), 14, true});
    connect(&next_, &Button::clicked, this, &frmVarime::forward);
    connect(&previous_, &Button::clicked, this, [this] { go(-1); });
    connect(&cooked_, &Button::clicked, this, &frmVarime::cooked);
    for (int i = 0; i < kTimes; ++i) {
        auto* button = new Button(*this, QStringLiteral("cmdCas(%1)").arg(i));
        button->setFrame(Button::Frame::Raised);
        button->setGround(colors::kNight);
        button->setFace(app().resources().picture(QStringLiteral("Casovac")));
        button->setCaptionPlace(Button::CaptionPlace::Beside);
        button->setFont({QStringLiteral("Arial"), 14, true});
        connect(button, &Button::clicked, this, [this, i] { startTime(i); });
        time_.push_back(button);
    }
}

bool frmVarime::Zobraz(std::int16_t id, const Serving& serving) {
    readRecipe(id, serving);
    if (pages_.empty()) {
        unload();
        return false;
    }
    app().PushScreen(*this);
    showForm();
    app().keepAwake(Texts::tr("Vaří se podle receptu"));
    showPage();
    return true;
}

void frmVarime::readRecipe(std::int16_t id, const Serving& serving) {
    recipe_ = id;
    Recordset row = app().Db().OpenTable(QStringLiteral("Recepty"));
    if (!RecordExists(row, id)) return;
    name_ = row.field(QStringLiteral("Nazev")).toString();
    const int base = row.field(QStringLiteral("Porce")).toInt();
    serving_ = serving;
    if (serving_.portions <= 0) serving_.portions = base;
    quantities_ = Quantities(serving_.portions, base, app().Locale);
    ingredients_ = readIngredients(app().Db(), id);
    tools_ = recipeTools(app().Db(), id).join(QStringLiteral("\n"));
    ready_.assign(ingredients_.size(), false);
    steps_ = readSteps(app().Db(), id);
    pages_ = cookingPages(steps_, [](const QString& text) {
        return Label::measure(text, kStepFont, kText.width()).height() <= kText.height();
    });
    const Picture photo = app().mediaPicture(QStringLiteral("foto\\Velke\\r%1.bmp").arg(id));
    photo_.place({kSide.x() + 150, kSide.bottom() - 2400, kSide.width() - 300, 2280});
    photo_.setPicture(photo);
    title_.setText(name_);
    setAccessibleName(Texts::tr("Vaříme: %1").arg(name_));
}

QString frmVarime::portionsText() const {
    const Noun portions{Texts::tr("porce"), Texts::tr("porce"), Texts::tr("porcí"), Texts::tr("porce")};
    return counted(serving_.portions, portions, app().Locale);
}

void frmVarime::go(int pages) {
    const int wanted = std::clamp(page_ + pages, 0, pageCount() - 1);
    if (wanted == page_) return;
    page_ = wanted;
    showPage();
}

void frmVarime::forward() {
    page_ + 1 < pageCount() ? go(1) : goBack();
}

void frmVarime::showPage() {
    const CookingPage::Kind kind = shown().kind;
    list_.setVisible(kind == CookingPage::Kind::Ready);
    text_.setVisible(kind != CookingPage::Kind::Ready);
    paper_.setVisible(kind == CookingPage::Kind::Step);
    cooked_.setVisible(kind == CookingPage::Kind::Done);
    previous_.setEnabled(page_ > 0);
    times_.clear();
    next_.setCaption(kind == CookingPage::Kind::Ready  ? Texts::tr("Začít vařit")
                     : kind == CookingPage::Kind::Done ? Texts::tr("Zpět k receptu")
                                                       : Texts::tr("Dál"));
    next_.setTip(next_.caption());
    if (kind == CookingPage::Kind::Ready)
        showReady();
    else if (kind == CookingPage::Kind::Step)
        showStep();
    else
        showDone();
    ring().focus(kind == CookingPage::Kind::Ready  ? static_cast<TwipWidget&>(list_)
                 : kind == CookingPage::Kind::Done ? cooked_
                                                   : next_);
    update();
}

void frmVarime::showReady() {
    counter_.setText(Texts::tr("Co si připravit · %1").arg(portionsText()));
    std::vector<TickRow> rows{{TickRow::Kind::Heading, Texts::tr("Suroviny"), {}, {}, false}};
    for (size_t i = 0; i < ingredients_.size(); ++i) {
        const QString need = needText(ingredients_[i], 1, serving_.units, quantities_, app().Locale);
        const QString dash = QStringLiteral("\u00a0–\u00a0");
        const QString alternative =
            ingredients_[i].alternative ? Texts::tr("nebo %1").arg(*ingredients_[i].alternative) : QString();
        rows.push_back({TickRow::Kind::Item, need.section(dash, 0, 0), need.section(dash, 1), alternative,
                        static_cast<bool>(ready_[i])});
    }
    list_.setRows(std::move(rows));
    if (list_.selected() == RowPaging::kNone) list_.select(1);
    side_.setText(Texts::tr("Nádobí a nářadí"));
    fit(needs_, tools_, kNeeds);
    showTimes({});
    app().HookMessage(counter_.text());
}

void frmVarime::tick(int row) {
    const auto index = static_cast<size_t>(row - 1);
    if (index >= ready_.size()) return;
    ready_[index] = !ready_[index];
    showReady();
}

QString frmVarime::needsOf(const CookingStep& step) const {
    QStringList lines;
    for (const StepNeed& need : step.needs) {
        if (need.line < 0 || need.line >= static_cast<int>(ingredients_.size())) continue;
        const Ingredient& ingredient = ingredients_[static_cast<size_t>(need.line)];
        lines << (need.share > 0 ? needText(ingredient, need.share, serving_.units, quantities_, app().Locale)
                                 : ingredient.name);
    }
    return lines.join(u'\n');
}

void frmVarime::showStep() {
    const CookingPage& page = shown();
    const CookingStep& step = steps_[static_cast<size_t>(page.step)];
    const auto numbered = std::count_if(steps_.begin(), steps_.end(),
                                        [](const CookingStep& one) { return one.title.isEmpty(); });
    QString counter =
        step.title.isEmpty() ? Texts::tr("Krok %1 z %2").arg(page.step + 1).arg(numbered) : step.title;
    if (page.parts > 1) counter += Texts::tr(" (část %1 ze %2)").arg(page.part + 1).arg(page.parts);
    counter_.setText(counter + QStringLiteral(" · ") + portionsText());
    text_.place(kText);
    text_.setFont(kStepFont);
    text_.setText(unbroken(page.text));
    text_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const QString needs = needsOf(step);
    side_.setText(needs.isEmpty() ? QString() : Texts::tr("Je potřeba"));
    showTimes(page.text);
    QRect room = kNeeds;
    room.setBottom(times_.empty() ? kSide.bottom() - 90 : time_[0]->twips().top() - 90);
    const int used =
        needs.isEmpty() ? 0 : Label::measure(needs, {QStringLiteral("Arial"), 17}, room.width()).height();
    const bool showsPhoto = room.height() - used > photo_.twips().height() + 150 && times_.empty();
    photo_.setVisible(showsPhoto);
    if (showsPhoto) room.setBottom(photo_.twips().top() - 90);
    fit(needs_, needs, room);
    app().HookMessage(counter_.text() + QStringLiteral(". ") + page.text);
}

void frmVarime::showDone() {
    counter_.setText(Texts::tr("Hotovo"));
    text_.place(kText);
    text_.setAlignment(Qt::AlignCenter);
    const std::vector<QDate> days = cookedDays(file_, recipe_);
    QString text = Texts::tr("Dobrou chuť!");
    if (!days.empty())
        text +=
            QStringLiteral("\n") +
            Texts::tr("Naposledy uvařeno %1.").arg(app().Locale.toString(days.front(), QLocale::ShortFormat));
    text_.setText(text);
    side_.setText({});
    needs_.setText({});
    showTimes({});
    photo_.setVisible(true);
    cooked_.setCaption(Texts::tr("Uvařeno!"));
    app().HookMessage(text);
}

void frmVarime::showTimes(const QString& text) {
    times_.clear();
    for (const FoundTime& time : findTimes(text)) {
        const auto same = [&time](const FoundTime& one) {
            return one.shortest == time.shortest && one.longest == time.longest;
        };
        const bool known = std::any_of(times_.begin(), times_.end(), same);
        if (!known && time.shortest <= kLongestTimer && times_.size() < size_t(kTimes))
            times_.push_back(time);
    }
    const int count = static_cast<int>(times_.size());
    for (int i = 0; i < kTimes; ++i) {
        Button& button = *time_[static_cast<size_t>(i)];
        button.setVisible(i < count);
        if (i >= count) continue;
        const FoundTime& time = times_[static_cast<size_t>(i)];
        const QString words = text.mid(time.at, time.length);
        button.setCaption(words);
        button.setTip(
            Texts::tr("Spustit časovač: %1 (klávesa %2)").arg(durationText(time.shortest)).arg(i + 1));
        button.place({kSide.x() + 120, kSide.bottom() - 60 - (count - i) * (kTimeHeight + 45),
                      kSide.width() - 240, kTimeHeight});
    }
    photo_.setVisible(false);
}

void frmVarime::startTime(int index) {
    if (index < 0 || index >= static_cast<int>(times_.size())) return;
    const CookingStep& step = steps_[static_cast<size_t>(shown().step)];
    const QString which = step.title.isEmpty() ? Texts::tr("Krok %1").arg(shown().step + 1) : step.title;
    startTimer_(which + QStringLiteral(", ") + name_, times_[static_cast<size_t>(index)].shortest);
}

void frmVarime::cooked() {
    const bool kept = keepCooked(file_, recipe_, name_, QDate::currentDate(), serving_.portions);
    showDone();
    cooked_.setCaption(kept ? Texts::tr("Zapsáno") : Texts::tr("Nelze zapsat"));
    ring().focus(next_);
}

void frmVarime::goBack() {
    app().keepAwake({});
    app().PopScreen(*this);
}

void frmVarime::restored() {
    app().keepAwake(Texts::tr("Vaří se podle receptu"));
    previous_.setEnabled(page_ > 0);
    Form::restored();
}

void frmVarime::unload() {
    if (isLoaded()) app().keepAwake({});
    Form::unload();
}

bool frmVarime::turnKey(int key) {
    switch (key) {
        case Qt::Key_Right:
        case Qt::Key_Down:
        case Qt::Key_PageDown:
            go(1);
            return true;
        case Qt::Key_Left:
        case Qt::Key_Up:
        case Qt::Key_PageUp:
        case Qt::Key_Backspace:
            go(-1);
            return true;
        case Qt::Key_Home:
            go(-pageCount());
            return true;
        default:
            return false;
    }
}

bool frmVarime::keyDown(QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) return false;
    const bool inList = list_.isVisible() && ring().isAt(&list_);
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (inList && enter) {
        if (!event.isAutoRepeat()) go(1);
        return true;
    }
    if (inList && event.key() != Qt::Key_PageUp && event.key() != Qt::Key_PageDown && list_.keyDown(event)) {
        ring().sayPart(list_);
        return true;
    }
    if (event.key() >= Qt::Key_1 && event.key() < Qt::Key_1 + kTimes) {
        startTime(event.key() - Qt::Key_1);
        return true;
    }
    return turnKey(event.key()) || Form::keyDown(event);
}

void frmVarime::paint(QPainter& painter) {
    paintRoom(painter, app().Pictures.stranka);
    const QRectF all = covered();
    painter.fillRect(QRectF(all.left(), all.top(), all.width(), 960 - all.top()), colors::kTeal);
    painter.fillRect(QRectF(all.left(), 960, all.width(), 30), colors::kCopper);
    app().resources().picture(QStringLiteral("Varime")).draw(painter, kPicture, Fit::Inside);
    paintPaper(painter, kPaper);
    paintPlate(painter, kSide);
    paintPlate(painter, kBar.adjusted(-120, -30, 120, 0));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
