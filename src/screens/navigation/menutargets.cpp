#include "screens/navigation/menutargets.h"

#include <QGuiApplication>
#include <numeric>

#include "core/value.h"
#include "db/database.h"
#include "db/queries.h"
#include "forms/bassarne.h"
#include "forms/screens.h"
#include "forms/stage.h"

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
    Recordset recipes = queries::recipesWithIngredient(db, ingredient);
    QString ids;
    for (; !recipes.AtEnd(); recipes.MoveNext()) {
        if (const auto id = toRecordId(recipes.field(QStringLiteral("ID")).toLongLong()))
            ids += QString::number(*id) + u',';
    }
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

void openRecipeList(Screens& screens, int item, int level, const QString& ids) {
    if (ids.isEmpty()) return;  // an empty list would mean the whole table
    const bool flat = level == 3 || level == 6 || level == 15;
    const bool first = QString::number(item).endsWith(u'1');
    screens.showList(ids, flat || first ? kRecipes : kQuickRecipes);
}

/// "H81" in a menu row leads to keyword 81.
void openKeyword(Screens& screens, const QString& number) {
    const auto keyword = toRecordId(number.toLongLong()).value_or(0);
    if (keyword > 0) screens.showIndex(keyword);
}

void openTarget(basSarne& app, std::int16_t item, std::int16_t level, const QString& text) {
    Screens& screens = app.screens();
    switch (level) {
        case 0:
            if (const QString ids = recipesWithFoundIngredient(app.Db(), item); !ids.isEmpty())
                screens.showList(ids, kRecipes);
            break;
        case 1:
        case 9:
        case 13:
            screens.showSponsor(level, QString());
            break;
        case 4:
            if (item == 1)
                screens.showPage(QStringLiteral("10"));
            else
                screens.showTables(item);
            break;
        case 7:
        case 71:
        case 72:
            screens.showMusicSettings();
            break;
        case 10:
            openPhotos(screens, item);
            break;
        case 18:
            if (const auto number = toRecordId(static_cast<qint64>(leadingNumber(text))))
                screens.showVideo(*number);
            break;
        default:
            if (text.startsWith(u'H'))
                openKeyword(screens, text.mid(1));
            else
                openRecipeList(screens, item, level, text);
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
