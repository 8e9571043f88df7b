#include "writedatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QVariant>

#include "checks.h"
#include "db/connection.h"
#include "db/installation.h"
#include "db/schema.h"
#include "keywordsamples.h"
#include "markup.h"
#include "menu.h"
#include "readsponsors.h"
#include "recipefacts.h"
#include "writekitchen.h"

namespace sarne::disc {
namespace {

/// Adds rows to an open database.
class Writer {
  public:
    explicit Writer(Connection& connection) : connection_(connection) {}

    void add(const QString& table, const QVariantList& values) {
        const QStringList marks(values.size(), QStringLiteral("?"));
        SQLite::Statement& insert =
            connection_.statement(QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(table, marks.join(u',')));
        const StatementUse use(insert);
        int parameter = 0;
        for (const QVariant& value : values) bindValue(insert, ++parameter, value);
        insert.exec();
    }

  private:
    Connection& connection_;
};

/// Writes a cookbook with its texts turned into RTF.
class CookbookWriter {
  public:
    CookbookWriter(const Cookbook& book, Connection& connection, Problems& problems)
        : book_(book), writer_(connection), problems_(problems), links_(linkBook(book, problems)) {}

    void write() {
        menu();
        lists();
        for (const Recipe& recipe : book_.recipes) this->recipe(recipe);
        for (const Article& article : book_.auxiliary) auxiliary(article);
        for (const Article& article : book_.keywords)
            writer_.add(QStringLiteral("IndexHesla"),
                        {article.id, article.name, rtf(article.text, article.name)});
        samples();
        pages();
        lookupTables();
        galleries();
        writeKitchen(
            book_, [this](const QString& table, const QVariantList& values) { writer_.add(table, values); },
            problems_);
    }

  private:
    QString rtf(const Lines& lines, const QString& heading = {}) {
        return toRtf(lines, heading, links_, problems_);
    }

    /// An auxiliary recipe is found in the index of keywords too, not only from the dishes that need it.
    void auxiliary(const Article& article) {
        const QString keyword = Cookbook::keywordName(article);
        writer_.add(QStringLiteral("Odkazy"), {article.id, article.name, rtf(article.text, article.name)});
        writer_.add(QStringLiteral("IndexHesla"),
                    {kAuxiliaryKeywords + article.id, keyword, rtf(article.text, keyword)});
    }

    void names(const QString& table, const QStringList& all) {
        int id = 0;
        for (const QString& name : all) writer_.add(table, {++id, name});
    }

    void lists() {
        for (const Unit& unit : book_.units) writer_.add(QStringLiteral("Jednotky"), {unit.id, unit.name});
        for (const Ingredient& one : book_.ingredients)
            writer_.add(QStringLiteral("Suroviny"), {one.id, one.name});
        names(QStringLiteral("Upresneni"), book_.refinements.names);
        names(QStringLiteral("Pomucky"), book_.tools.names);
        QStringList wines;
        for (const Wine& wine : book_.wines) wines << wine.name;
        names(QStringLiteral("Vino"), wines);
        for (const Setting& setting : book_.settings)
            writer_.add(QStringLiteral("Nastav"), {setting.id, setting.name, setting.isOn ? 1 : 0});
        for (const QuickRecipe& quick : book_.quick)
            writer_.add(QStringLiteral("RychleRecepty"), {quick.id, quick.name, quick.recipe});
        for (const HelpTopic& topic : book_.help)
            writer_.add(QStringLiteral("Help"), {topic.id, topic.name, topic.page});
    }

    void recipe(const Recipe& r) {
        Problems known;  // reported with the checks
        const Lines facts = factLine(r);
        const Lines foot = factFoot(r, nutrition(book_, r, known));
        writer_.add(
            QStringLiteral("Recepty"),
            {r.id, r.name, r.longName, r.portions, rtf(facts + r.method, methodHeading(r)),
             rtf(facts + r.introduction + foot), rtf(r.serving, QStringLiteral("Jak podávat")),
             rtf(r.note, QStringLiteral("Poznámka")), rtf(r.wineText, QStringLiteral("Víno")), QVariant()});
        for (const IngredientLine& line : r.ingredients)
            writer_.add(QStringLiteral("SpojSur"),
                        {r.id, line.ingredient, line.refinement, line.unit, line.amount, line.spoonUnit,
                         line.spoonAmount, line.alternative});
        for (const QString& tool : r.tools)
            writer_.add(QStringLiteral("SpojPomucky"), {r.id, book_.tools.id(tool)});
        for (const QString& name : r.auxiliary)
            writer_.add(QStringLiteral("SpojOdkazy"), {r.id, book_.auxiliaryId(name)});
        for (const QString& wine : r.wines)
            writer_.add(QStringLiteral("SpojVino"), {r.id, book_.wineId(wine)});
    }

    void samples() {
        Problems known;  // reported with the checks
        for (const KeywordSample& sample : keywordSamples(book_, links_, known)) {
            QString recipes;
            for (const int recipe : sample.recipes) recipes += QString::number(recipe) + u',';
            writer_.add(QStringLiteral("UkazkyHesel"),
                        {sample.keyword, sample.picture, sample.caption, sample.film, recipes});
        }
    }

    void pages() {
        for (const Page& page : book_.pages)
            writer_.add(QStringLiteral("Stranky"),
                        {page.id, page.name, rtf(page.text, page.name), page.screen});
    }

    /// The keyword that a row opens: that of its first cell, or of what stands there before a comma or in
    /// front of the further words.
    int keywordOf(const QString& cell) const {
        for (const QString& name : {cell, cell.section(u',', 0, 0), cell.section(u' ', 0, 0)}) {
            const std::optional<LinkTarget> target = links_.find(name);
            if (target && target->kind == LinkKind::keyword) return target->number;
        }
        return 0;
    }

    void lookupTables() {
        for (const LookupTable& table : book_.tables) {
            writer_.add(QStringLiteral("Tabulky"),
                        {table.id, table.name, table.columns.join(u'\t'), table.note});
            for (const QStringList& row : table.rows)
                writer_.add(QStringLiteral("RadkyTabulek"),
                            {QVariant(), table.id, keywordOf(row.value(0)), row.join(u'\t')});
        }
    }

    void galleries() {
        for (const GalleryPicture& picture : book_.gallery) {
            writer_.add(QStringLiteral("Sponzor"),
                        {picture.id, picture.topic, picture.name, rtf(picture.text)});
            for (const GalleryArea& area : picture.areas)
                writer_.add(
                    QStringLiteral("PlochySponzoru"),
                    {QVariant(), picture.id, area.place.x(), area.place.y(), area.place.width(),
                     area.place.height(), area.name, rtf(area.text, area.name), sponsorTarget(area, links_)});
        }
    }

    void menu() {
        const QList<MenuRow> rows = menuRows(book_, problems_);
        checkMenu(rows, book_, problems_);
        checkReachable(rows, book_, problems_);
        for (const MenuRow& row : rows)
            writer_.add(QStringLiteral("Menu"), {row.code, row.label, row.target});
    }

    const Cookbook& book_;
    Writer writer_;
    Problems& problems_;
    LinkBook links_;
};

/// What the book says of itself.
void writeFacts(const BookFacts& facts, const QString& digest, Writer writer) {
    QStringList names{QStringLiteral("Nazev"), QStringLiteral("Vydani"), QStringLiteral("Otisk")};
    for (int group = 0; group < facts.groups.size(); ++group) names << QStringLiteral("Skupina%1").arg(group);
    const QStringList values =
        QStringList{facts.title, QString::number(facts.edition), digest} + facts.groups;
    for (qsizetype i = 0; i < names.size(); ++i)
        writer.add(QStringLiteral("Kniha"), {i + 1, names[i], values[i]});
}

void makeEmpty(const QString& file) {
    QFile::remove(file);
    QFile empty(file);
    if (!empty.open(QIODevice::WriteOnly)) throw SQLite::Exception("do souboru nelze psát");
}

enum class Keep { nothing, userData };

/// Makes a database beside \a file, lets \a fill fill it in one transaction, and puts it in its place.
template <typename Fill>
void replaceDatabase(const QString& file, const QStringList& schema, Keep keep, Problems& problems,
                     Fill fill) {
    const QString fresh = file + QStringLiteral(".new");
    const qsizetype known = problems.errors().size();
    try {
        makeEmpty(fresh);
        {
            Connection connection(fresh);
            SQLite::Transaction transaction(connection.database());
            for (const QString& statement : schema) connection.database().exec(statement.toStdString());
            fill(connection);
            transaction.commit();
        }
        if (problems.errors().size() > known) {
            QFile::remove(fresh);
            return;
        }
        if (keep == Keep::userData && QFileInfo::exists(file)) carryOverUserData(file, fresh);
        QFile::remove(file);
        if (!QFile::rename(fresh, file)) throw SQLite::Exception("soubor nelze nahradit");
    } catch (const SQLite::Exception& failure) {
        // Of texts that are wrong it says nothing that has not been said.
        if (!problems.hasErrors()) problems.error({file, 0}, QString::fromUtf8(failure.what()));
    }
}

}  // namespace

void writeRecipeDatabase(const Cookbook& book, const QString& file, Problems& problems,
                         const QString& digest) {
    replaceDatabase(file, recipeSchema(), Keep::userData, problems, [&](Connection& connection) {
        CookbookWriter(book, connection, problems).write();
        writeFacts(book.facts, digest, Writer(connection));
    });
}

void writePictureDatabase(const QList<QByteArray>& pictures, const QString& file, Problems& problems) {
    replaceDatabase(file, pictureSchema(), Keep::nothing, problems, [&](Connection& connection) {
        Writer writer(connection);
        for (const QByteArray& picture : pictures) writer.add(QStringLiteral("TabObr"), {picture});
    });
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
