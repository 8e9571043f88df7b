#include "screens/navigation/menutargets.h"

#include <QGuiApplication>
#include <numeric>

#include "core/topics.h"
#include "core/value.h"
#include "db/database.h"
#include "forms/bassarne.h"
#include "forms/screens.h"
#include "forms/stage.h"
#include "screens/navigation/ingredientsearch.h"
#include "screens/navigation/menulevel.h"

namespace sarne {
namespace {

const QString kRecipes = QStringLiteral("recepty");
const QString kQuickRecipes = QStringLiteral("RychleRecepty");

/// Shows the hourglass as long as it lives.
class Hourglass {
  public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

void hideMenus(const Stage& stage) {
    for (Form* form : stage.forms()) {
        if (form->name() == u"frmMenu") form->hideForm();
    }
}

/// The ids of all recipes that use the ingredient of search result \a k, each followed by a comma.
QString recipesWithFoundIngredient(Database& db, int k) {
    Recordset menu = db.OpenTable(QStringLiteral("Menu"));
    menu.setIndex(QStringLiteral("PrimaryKey"));
    menu.Seek(QStringLiteral("="), QStringLiteral("%1").arg(k, 3, 10, QLatin1Char('0')));
    const QString ingredient = menu.NoMatch() ? QString() : menu.field(QStringLiteral("Odkazy")).toString();
    QString ids;
    for (const std::int16_t id : recipesWithIngredient(db, ingredient)) ids += QString::number(id) + u',';
    return ids;
}

void openPhotos(Screens& screens, int item) {
    if (item != 1) return screens.showGrid();
    PhotoRequest all;
    all.photoIds.resize(49);
    std::iota(all.photoIds.begin(), all.photoIds.end(), std::int16_t{1});
    all.slideShow = true;
    screens.showPhotos(all);
}

/// A level below a topic opens lists; two numbers more mean the music.
TopicKind kindOfLevel(int level) {
    if (level == 71 || level == 72) return TopicKind::music;
    return level < kTopics ? topicKind(level) : TopicKind::submenus;
}

/// What a list is about that item \a item of \a level opens: the item, or for "Recepty" and "Rychlé recepty"
/// what they are under.
QString subjectOf(Database& db, int item, int level) {
    const MenuLevel menu = MenuLevel::build(db, QString::number(level));
    if (item < 1 || item > static_cast<int>(menu.items.size())) return menu.heading;
    const QString& label = menu.items[static_cast<size_t>(item - 1)].label;
    return label == u"Recepty" || label == u"Rychlé recepty" ? menu.heading : label;
}

void openRecipeList(basSarne& sarne, int item, int level, const QString& ids) {
    if (ids.isEmpty()) return;  // an empty list would mean the whole table
    const bool first = QString::number(item).endsWith(u'1');
    const bool recipes = kindOfLevel(level) == TopicKind::lists || first;
    sarne.screens().showList(ids, recipes ? kRecipes : kQuickRecipes, subjectOf(sarne.Db(), item, level));
}

/// "H81" in a menu row leads to keyword 81.
void openKeyword(Screens& screens, const QString& number) {
    const auto keyword = toRecordId(number.toLongLong()).value_or(0);
    if (keyword > 0) screens.showIndex(keyword);
}

void openTarget(basSarne& sarne, std::int16_t item, std::int16_t level, const QString& text) {
    Screens& screens = sarne.screens();
    const TopicKind kind = kindOfLevel(level);
    switch (kind) {
        case TopicKind::results:
            if (const QString ids = recipesWithFoundIngredient(sarne.Db(), item); !ids.isEmpty())
                screens.showList(ids, kRecipes, subjectOf(sarne.Db(), item, level));
            break;
        case TopicKind::gallery:
            screens.showSponsor(level, QString());
            break;
        case TopicKind::tables:
            if (item == 1)
                screens.showPage(QStringLiteral("10"));
            else
                screens.showTables(item);
            break;
        case TopicKind::music:
            screens.showMusicSettings();
            break;
        case TopicKind::photos:
            openPhotos(screens, item);
            break;
        case TopicKind::videos:
            if (const auto number = leadingRecordId(text)) screens.showVideo(*number);
            break;
        case TopicKind::none:
        case TopicKind::submenus:
        case TopicKind::lists:
        case TopicKind::search:
            if (text.startsWith(u'H'))
                openKeyword(screens, text.mid(1));
            else
                openRecipeList(sarne, item, level, text);
    }
}

}  // namespace

void OpenMenuTarget(basSarne& sarne, std::int16_t item, std::int16_t level, const QString& text) {
    hideMenus(sarne.stage());
    const Hourglass hourglass;
    openTarget(sarne, item, level, text);
    sarne.screens().returnToMain();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
