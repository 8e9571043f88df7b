// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/kitchen/frmhostina.h"

#include <QKeyEvent>
#include <QPainter>

#include "core/czech.h"
#include "core/texts.h"
#include "core/value.h"
#include "db/userfile.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/messagebox.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "richtext/rtfdocument.h"

namespace sarne {
namespace {

constexpr QRect kCoursePaper{240, 1110, 4650, 6780};
constexpr QRect kPlanPaper{5040, 1110, 4530, 6780};
constexpr QRect kSide{9720, 1110, 2040, 6780};
constexpr QRect kFirstAction{9810, 1200, 1860, 600};
constexpr int kActionStep = 780, kInside = 90;
constexpr double kMostPortions = 100;

constexpr KitchenAction kActions[] = {
    {QT_TRANSLATE_NOOP("Texts", "Kdykoli"), QT_TRANSLATE_NOOP("Texts", "Na jakou dobu nebo svátek")},
    {QT_TRANSLATE_NOOP("Texts", "Porce"), QT_TRANSLATE_NOOP("Texts", "Pro kolik lidí se vaří")},
    {QT_TRANSLATE_NOOP("Texts", "Hodina"), QT_TRANSLATE_NOOP("Texts", "V kolik má být první chod na stole")},
    {QT_TRANSLATE_NOOP("Texts", "Recept"), QT_TRANSLATE_NOOP("Texts", "Otevřít vybraný recept")},
    {QT_TRANSLATE_NOOP("Texts", "Na seznam"),
     QT_TRANSLATE_NOOP("Texts", "Dát suroviny celé hostiny na nákupní seznam (F3)")},
    {QT_TRANSLATE_NOOP("Texts", "Znovu"), QT_TRANSLATE_NOOP("Texts", "Začít s prázdným stolem")}};
constexpr const char* kCourseThings[kCourses] = {"Skupina2", "Skupina0", "Skupina1"};

QString capitalised(QString text) {
    if (!text.isEmpty()) text[0] = text[0].toUpper();
    return text;
}

}  // namespace

frmHostina::frmHostina(basSarne& sarne, UserFile& file, Asking asking, int month)
    : KitchenForm(sarne, QStringLiteral("frmHostina"), Place::Feast, Texts::tr("Hostina"), Bar::WithPrint),
      file_(file),
      asking_(std::move(asking)),
      month_(month),
      courses_(*this, QStringLiteral("picChody")),
      plan_(*this, QStringLiteral("picPlan")),
      hint_(*this, QStringLiteral("lblRada")) {
    courses_.place(kCoursePaper.adjusted(kInside, kInside, -kInside, -kInside));
    courses_.setPoints(12);
    courses_.setAccessibleName(Texts::tr("Chody"));
    plan_.place(kPlanPaper.adjusted(kInside, kInside, -kInside, -kInside));
    plan_.setPoints(11);
    plan_.setAccessibleName(Texts::tr("Kdy co začít"));
    dress(hint_, kPlanPaper.adjusted(360, 360, -360, -2400), 15, false, Qt::AlignCenter);
    hint_.setWordWrap(true);
    hint_.setColor(colors::kInk);
    hint_.setText(
        Texts::tr("Vlevo odškrtněte, co bude na stole: předkrm, polévku, hlavní chod – nebo jen něco "
                  "z toho.\n\nTady se objeví, kdy co začít."));
    makeActions(kActions, kFirstAction, kActionStep);
    setStops({alone(courses_), alone(plan_)});
    connect(&courses_, &TickList::used, this, &frmHostina::tick);
}

bool frmHostina::Zobraz() {
    all_ = readDinnerRecipes(app().Db());
    if (all_.empty()) {
        unload();
        return false;
    }
    dinner_ = readDinner(file_);
    // A course that another edition of the book does not have stays empty.
    for (int& recipe : dinner_.recipes)
        if (std::none_of(all_.begin(), all_.end(),
                         [recipe](const DinnerRecipe& one) { return one.id == recipe; }))
            recipe = 0;
    open();
    showCourses();
    showPlan();
    courses_.select(0);
    sayState();
    return true;
}

void frmHostina::showCourses() {
    std::vector<TickRow> rows;
    choices_.clear();
    for (int course = 0; course < kCourses; ++course) {
        rows.push_back({TickRow::Kind::Heading,
                        courseName(Course(course)),
                        {},
                        {},
                        false,
                        app().resources().picture(QString::fromLatin1(kCourseThings[course]))});
        choices_.push_back({});
        for (const DinnerRecipe& one : candidates(all_, Course(course), dinner_, month_)) {
            const bool isChosen = one.id == dinner_.recipes[static_cast<size_t>(course)];
            rows.push_back({TickRow::Kind::Item, one.name, Texts::tr("%1 min").arg(one.minutes),
                            one.occasions.join(QStringLiteral(", ")), isChosen});
            choices_.push_back({course, one.id});
        }
    }
    courses_.setRows(std::move(rows), TickList::Done::Kept);
}

void frmHostina::showPlan() {
    std::vector<TickRow> rows;
    QString day = QStringLiteral("-");
    for (const PlanLine& line : dinnerPlan(app().Db(), dinner_)) {
        const QString of = planDayText(line.at);
        if (of != day) {
            const QString heading = of.isEmpty() ? Texts::tr("V den hostiny") : capitalised(of);
            rows.push_back({TickRow::Kind::Heading, heading, {}, {}, false});
        }
        day = of;
        rows.push_back({TickRow::Kind::Plain,
                        planClockText(line.at) + QStringLiteral("  ") + line.what,
                        {},
                        line.serves ? QString() : line.dish,
                        false});
    }
    plan_.setRows(std::move(rows));
    plan_.setVisible(!dinner_.isEmpty());
    hint_.setVisible(dinner_.isEmpty());
    state_.setText(
        Texts::tr("%1 · na stole v %2")
            .arg(counted(dinner_.portions, portionNoun(), app().Locale), planClockText(dinner_.served)));
    actions_[size_t(Action::Occasion)]->setCaption(
        dinner_.occasion.isEmpty() ? Texts::tr("Kdykoli") : capitalised(dinner_.occasion));
    actions_[size_t(Action::Buy)]->setEnabled(!dinner_.isEmpty());
    actions_[size_t(Action::Again)]->setEnabled(!dinner_.isEmpty());
}

void frmHostina::changed() {
    if (!storeDinner(file_, dinner_)) app().Beep();
    showCourses();
    showPlan();
}

/// One recipe a course: another one takes its place. The row stays where it is until the screen is opened
/// again, so that the list does not jump under the mouse.
void frmHostina::tick(int row) {
    const Choice choice = choices_[static_cast<size_t>(row)];
    if (choice.recipe == 0) return;
    int& chosen = dinner_.recipes[static_cast<size_t>(choice.course)];
    chosen = chosen == choice.recipe ? 0 : choice.recipe;
    if (!storeDinner(file_, dinner_)) app().Beep();
    std::vector<TickRow> rows = courses_.rows();
    for (size_t i = 0; i < rows.size(); ++i)
        if (choices_[i].course == choice.course) rows[i].ticked = chosen != 0 && choices_[i].recipe == chosen;
    courses_.setRows(std::move(rows), TickList::Done::Kept);
    showPlan();
    ring().sayPart(courses_);
}

void frmHostina::nextOccasion() {
    QStringList all = dinnerOccasions(all_);
    all.prepend({});
    dinner_.occasion = all[(all.indexOf(dinner_.occasion) + 1) % all.size()];
    changed();
    app().HookMessage(actions_[size_t(Action::Occasion)]->caption());
}

void frmHostina::askPortions() {
    const double portions = asking_.number(Texts::tr("Pro kolik lidí se vaří?"));
    if (portions <= 0) return;
    dinner_.portions = std::min(portions, kMostPortions);
    changed();
}

void frmHostina::askHour() {
    const QString typed =
        asking_.text(Texts::tr("V kolik má být první chod na stole?\r\n"
                               "Napište hodinu, třeba 18 nebo 18.30."));
    if (typed.trimmed().isEmpty()) return;
    const auto time = timeOfDay(typed);
    if (!time) return app().Beep();
    dinner_.served = *time;
    changed();
}

void frmHostina::buy() {
    std::vector<std::int16_t> ids;
    for (const int recipe : dinner_.recipes)
        if (const auto id = toRecordId(recipe); id && *id != 0) ids.push_back(*id);
    if (ids.empty()) return app().Beep();
    app().screens().addToShoppingList(ids, {dinner_.portions, {}});
}

void frmHostina::openRecipe() {
    const int row = courses_.selected();
    const int recipe =
        row >= 0 && row < static_cast<int>(choices_.size()) ? choices_[static_cast<size_t>(row)].recipe : 0;
    const auto id = toRecordId(recipe);
    if (!id || *id == 0) return app().Beep();
    app().screens().showRecipe(*id);
}

void frmHostina::act(int action) {
    switch (Action(action)) {
        case Action::Occasion:
            return nextOccasion();
        case Action::Portions:
            return askPortions();
        case Action::Hour:
            return askHour();
        case Action::Open:
            return openRecipe();
        case Action::Buy:
            return buy();
        case Action::Again:
            dinner_.recipes = {};
            return changed();
    }
}

void frmHostina::print() {
    if (dinner_.isEmpty()) return app().Beep();
    RtfDocument document;
    document.heading(title_.text());
    for (const QString& line : dinnerText(app().Db(), dinner_, app().Locale).split(u'\n'))
        document.paragraph(line);
    app().screens().printText(title_.text(), document.text());
}

bool frmHostina::keyDown(QKeyEvent& event) {
    if (event.key() == Qt::Key_F3 && event.modifiers() == Qt::NoModifier) {
        buy();
        return true;
    }
    return listKey(courses_, event) || listKey(plan_, event) || Form::keyDown(event);
}

void frmHostina::paint(QPainter& painter) {
    paintGround(painter);
    paintPaper(painter, kCoursePaper);
    paintPaper(painter, kPlanPaper);
    paintPlate(painter, kSide);
}

}  // namespace sarne
