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

void openRecipeList(Screens& screens, int item, TopicKind kind, const QString& ids) {
    if (ids.isEmpty()) return;  // an empty list would mean the whole table
    const bool first = QString::number(item).endsWith(u'1');
    screens.showList(ids, kind == TopicKind::lists || first ? kRecipes : kQuickRecipes);
}

/// "H81" in a menu row leads to keyword 81.
void openKeyword(Screens& screens, const QString& number) {
    const auto keyword = toRecordId(number.toLongLong()).value_or(0);
    if (keyword > 0) screens.showIndex(keyword);
}

/// A level below a topic opens lists; two numbers more mean the music.
TopicKind kindOfLevel(int level) {
    if (level == 71 || level == 72) return TopicKind::music;
    return level < kTopics ? topicKind(level) : TopicKind::submenus;
}

void openTarget(basSarne& app, std::int16_t item, std::int16_t level, const QString& text) {
    Screens& screens = app.screens();
    const TopicKind kind = kindOfLevel(level);
    switch (kind) {
        case TopicKind::results:
            if (const QString ids = recipesWithFoundIngredient(app.Db(), item); !ids.isEmpty())
                screens.showList(ids, kRecipes);
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
                openRecipeList(screens, item, kind, text);
    }
}

}  // namespace

void OpenMenuTarget(basSarne& app, std::int16_t item, std::int16_t level, const QString& text) {
    hideMenus(app.stage());
    const Hourglass hourglass;
    openTarget(app, item, level, text);
    app.screens().returnToMain();
}

}  // namespace sarne
