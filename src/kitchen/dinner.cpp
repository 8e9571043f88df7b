// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/dinner.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "core/czech.h"
#include "core/texts.h"
#include "db/database.h"
#include "db/userfile.h"
#include "kitchen/bookwords.h"

namespace sarne {
namespace {

const char* const kNames[kCourses] = {QT_TRANSLATE_NOOP("Texts", "Předkrm"),
                                      QT_TRANSLATE_NOOP("Texts", "Polévka"),
                                      QT_TRANSLATE_NOOP("Texts", "Hlavní chod")};
const QString kKept = QStringLiteral("Hostina");
constexpr double kMostPortions = 100;
constexpr int kHour = 60, kDay = 24 * kHour;

DinnerRecipe recipeOf(const Recordset& row, const Recordset& facts) {
    DinnerRecipe one;
    one.id = row.field(QStringLiteral("ID")).toInt();
    one.name = row.field(QStringLiteral("Nazev")).toString();
    one.minutes = facts.field(QStringLiteral("Minut")).toInt();
    one.months = facts.field(QStringLiteral("Mesice")).toInt();
    one.occasions = facts.field(QStringLiteral("Obdobi")).toString().split(u',', Qt::SkipEmptyParts);
    const QStringList courses = facts.field(QStringLiteral("Chod")).toString().split(u',');
    const auto is = [&courses](const QString& course) { return courses.contains(course); };
    one.suits = {is(book::kStarter), is(book::kSoup),
                 is(book::kWarm) || is(book::kFestive) || is(book::kColdMain)};
    if (!is(book::kStarter) && is(book::kCold) && !is(book::kWarm) && !is(book::kFestive) &&
        !is(book::kColdMain))
        one.suits[0] = true;
    return one;
}

std::optional<PlannedDish> dishOf(Database& book, int recipe) {
    Recordset rows = book.OpenTable(QStringLiteral("Recepty"));
    Recordset facts = book.OpenTable(QStringLiteral("Fakta"));
    if (!RecordExists(rows, recipe) || !RecordExists(facts, recipe)) return std::nullopt;
    return PlannedDish{rows.field(QStringLiteral("Nazev")).toString(),
                       facts.field(QStringLiteral("Minut")).toInt(),
                       facts.field(QStringLiteral("Predem")).toString(), readSteps(book, recipe), 0};
}

}  // namespace

QString courseName(Course course) {
    return Texts::tr(kNames[static_cast<int>(course)]);
}

std::vector<DinnerRecipe> readDinnerRecipes(Database& book) {
    std::vector<DinnerRecipe> all;
    Recordset facts = book.OpenTable(QStringLiteral("Fakta"));
    for (Recordset rows = book.OpenTable(QStringLiteral("Recepty")); !rows.AtEnd(); rows.MoveNext())
        if (RecordExists(facts, rows.field(QStringLiteral("ID")))) all.push_back(recipeOf(rows, facts));
    std::erase_if(all, [](const DinnerRecipe& one) { return one.suits == std::array<bool, kCourses>{}; });
    return all;
}

std::vector<DinnerRecipe> candidates(const std::vector<DinnerRecipe>& all, Course course,
                                     const Dinner& dinner, int month) {
    const auto index = static_cast<size_t>(course);
    std::vector<DinnerRecipe> found;
    for (const DinnerRecipe& one : all)
        if (one.suits[index]) found.push_back(one);
    const auto rank = [&](const DinnerRecipe& one) {
        if (one.id == dinner.recipes[index]) return 0;
        if (!dinner.occasion.isEmpty() && one.occasions.contains(dinner.occasion)) return 1;
        return one.months == 0 || (one.months >> (month - 1) & 1) ? 2 : 3;
    };
    std::stable_sort(found.begin(), found.end(),
                     [&](const DinnerRecipe& a, const DinnerRecipe& b) { return rank(a) < rank(b); });
    return found;
}

QStringList dinnerOccasions(const std::vector<DinnerRecipe>& all) {
    QStringList occasions;
    for (const QString& occasion : book::occasions()) {
        if (std::any_of(all.begin(), all.end(),
                        [&](const DinnerRecipe& one) { return one.occasions.contains(occasion); }))
            occasions << occasion;
    }
    return occasions;
}

int servedAt(const Dinner& dinner, Course course) {
    int before = 0;
    for (int earlier = 0; earlier < static_cast<int>(course); ++earlier)
        before += dinner.recipes[static_cast<size_t>(earlier)] != 0;
    return dinner.served + before * kBetweenCourses;
}

std::optional<int> timeOfDay(const QString& typed) {
    static const QRegularExpression pattern(QStringLiteral("^\\s*(\\d{1,2})(?:[ .:,]?(\\d{2}))?\\s*$"));
    const auto match = pattern.match(typed);
    const int hour = match.captured(1).toInt(), minute = match.captured(2).toInt();
    if (!match.hasMatch() || hour >= kDay / kHour || minute >= kHour) return std::nullopt;
    return hour * kHour + minute;
}

std::vector<PlanLine> dinnerPlan(Database& book, const Dinner& dinner) {
    std::vector<PlannedDish> dishes;
    for (int course = 0; course < kCourses; ++course) {
        auto dish = dishOf(book, dinner.recipes[static_cast<size_t>(course)]);
        if (!dish) continue;
        dish->served = servedAt(dinner, Course(course));
        dishes.push_back(std::move(*dish));
    }
    return timePlan(dishes);
}

QString dinnerText(Database& book, const Dinner& dinner, const QLocale& locale) {
    QStringList lines{Texts::tr("%1, na stole v %2")
                          .arg(counted(dinner.portions, portionNoun(), locale), planTimeText(dinner.served))};
    for (int course = 0; course < kCourses; ++course)
        if (const auto dish = dishOf(book, dinner.recipes[static_cast<size_t>(course)]))
            lines << courseName(Course(course)) + QStringLiteral(": ") + dish->name;
    lines << QString();
    for (const PlanLine& line : dinnerPlan(book, dinner))
        lines << planTimeText(line.at) + QStringLiteral(" – ") + line.what +
                     (line.serves ? QString() : QStringLiteral(" (%1)").arg(line.dish));
    return lines.join(u'\n');
}

Dinner readDinner(UserFile& file) {
    Dinner dinner;
    const QStringList parts = file.value(kKept).split(u'|');
    if (parts.size() != 3 + kCourses) return dinner;
    dinner.occasion = parts[0];
    const double asked = parts[1].toDouble();
    if (asked > 0 && asked <= kMostPortions) dinner.portions = asked;
    dinner.served = std::clamp(parts[2].toInt(), 0, kDay - 1);
    std::ranges::transform(parts.last(kCourses), dinner.recipes.begin(),
                           [](const QString& recipe) { return std::max(0, recipe.toInt()); });
    return dinner;
}

bool storeDinner(UserFile& file, const Dinner& dinner) {
    QStringList parts{dinner.occasion, QString::number(dinner.portions), QString::number(dinner.served)};
    for (const int recipe : dinner.recipes) parts << QString::number(recipe);
    return file.setValue(kKept, parts.join(u'|'));
}

}  // namespace sarne
