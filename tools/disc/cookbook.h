#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QPointF>
#include <QRect>
#include <QSet>
#include <QString>
#include <QStringList>

#include "problems.h"
#include "textfile.h"

namespace sarne::disc {

enum class UnitKind { weight, volume, spoon, piece, free };

struct Unit {
    int id = 0;
    QString name;
    UnitKind kind = UnitKind::piece;
    /// Grams for a weight, millilitres for a volume or a spoon, else 0.
    double size = 0;
};

struct Ingredient {
    int id = 0;
    QString name;
    /// Whether the book is about it: a fish.
    bool isMain = false;
    Place place;
};

/// A list of named things with ids from 1 on, in the order of the file: refinements, tools.
struct NamedList {
    QStringList names;
    QList<Place> places;

    /// The id of \a name, 0 when there is none.
    int id(const QString& name) const { return static_cast<int>(names.indexOf(name)) + 1; }
};

struct Wine {
    QString name;
    /// "bílé suché", "červené" …: the menu finds the dishes to a kind of wine by it.
    QString kind;
    Place place;
};

/// Part of a recipe's list of ingredients. Units and ids are 0 when there is none.
struct IngredientLine {
    Place place;
    int ingredient = 0;
    int refinement = 0;
    int alternative = 0;
    double amount = 0;
    int unit = 0;
    double spoonAmount = 0;
    int spoonUnit = 0;
    /// Whether a name of it was reported as unknown.
    bool isUnclear = false;
};

/// What a method says in braces behind an ingredient of which a step takes but a part: "{máslo: polovina}".
struct ShareMark {
    Place place;
    /// The index of its line in the method; -1 where it stands in how the dish is served.
    qsizetype line = 0;
    QString ingredient;
    QString share;
};

/// A step as it is followed at the stove.
struct RecipeStep {
    Place place;
    /// Empty but for what is no numbered step.
    QString title;
    QString text;
    /// The share of each line of the list of ingredients, by its index, that the step takes.
    QMap<qsizetype, double> shares;
};

struct Recipe {
    int id = 0;
    Place place;
    QString name;
    QString longName;
    int portions = 0;
    /// Minutes of work by hand, and of cooking beside it or after it.
    int preparation = 0;
    int cooking = 0;
    /// From the start to the table, without what is done ahead.
    int minutes = 0;
    /// "12 hodin v chladu": what waits before; empty for most.
    QString ahead;
    /// "snadné", "střední", "náročné".
    QString difficulty;
    /// "ano", "málo", "ne".
    QString bones;
    /// "ano" or "ne", further words behind a comma.
    QString freezing;
    /// "2 dny v chladu".
    QString keeping;
    /// "celoročně", "říjen–březen".
    QString season;
    /// What the menu sorts by: species, method, season, course …, and what follows from wines and time.
    QSet<QString> tags;
    /// The point of the photo around which it is cut to the screen's shape, 0 to 1 from the upper left
    /// corner.
    QPointF photoFocus{0.5, 0.5};
    /// The tags that the head gives, and under which key.
    QHash<QString, QString> tagKeys;
    QStringList courses;
    QList<IngredientLine> ingredients;
    QStringList tools;
    QStringList wines;
    QStringList auxiliary;
    Lines method;
    Lines introduction;
    Lines serving;
    Lines note;
    Lines wineText;
    QList<ShareMark> shareMarks;
    QList<RecipeStep> steps;
    /// Where the head's keys and the sections stand.
    QHash<QString, Place> headPlaces;
    QHash<QString, Place> sectionPlaces;

    /// The line of a key of the head, the file's first one when the key is missing.
    Place placeOf(const QString& key) const { return headPlaces.value(key, place); }
};

/// An auxiliary recipe or an index keyword.
struct Article {
    int id = 0;
    Place place;
    QString name;
    /// Further names under which link phrases find it.
    QStringList otherNames;
    Lines text;
};

/// The picture that obrazky.txt puts beside a keyword.
struct KeywordPicture {
    Place place;
    QString keyword;
    /// The name of one of the films' things, when it is no dish.
    QString thing;
    QString caption;
    /// The dish whose photo it is, 0 when it is a thing.
    int recipe = 0;
};

/// The picture that pomucky.txt gives a tool.
struct ToolPicture {
    Place place;
    QString tool;
    /// The name of one of the films' things.
    QString thing;
};

struct QuickRecipe {
    int id = 0;
    Place place;
    QString name;
    int recipe = 0;
};

struct Page {
    int id = 0;
    Place place;
    QString name;
    /// The form that F1 opens the page from; may be empty.
    QString screen;
    Lines text;
};

struct HelpTopic {
    int id = 0;
    Place place;
    QString name;
    int page = 0;
};

struct Setting {
    int id = 0;
    QString name;
    bool isOn = false;
};

struct Video {
    int number = 0;
    QString title;
};

/// A table of the index screen. Its id is its item number in the menu.
struct LookupTable {
    int id = 0;
    Place place;
    QString name;
    /// What the numbers are for; may be empty.
    QString note;
    QStringList columns;
    QList<QStringList> rows;
};

/// A click area of a gallery picture, in thousandths of the picture.
struct GalleryArea {
    Place where;
    QRect place;
    QString name;
    /// A keyword, "video 3", "obraz 9", or empty when the area shows its text.
    QString target;
    Lines text;
};

struct GalleryPicture {
    /// The number of its file.
    int id = 0;
    int topic = 0;
    Place place;
    QString name;
    Lines text;
    QList<GalleryArea> areas;
};

/// One row of the menu as it will be stored.
struct MenuRow {
    Place place;
    QString code;
    QString label;
    QString target;
};

/// A line of the menu file with what stands indented below it.
struct MenuNode {
    Place place;
    QString label;
    /// What stands behind "=>".
    QString target;
    QList<MenuNode> children;
};

struct MenuTopic {
    Place place;
    int number = 0;
    QString heading;
    QList<MenuNode> items;
};

/// An auxiliary recipe stands among the keywords too: its id and this is the keyword's number.
constexpr int kAuxiliaryKeywords = 800;

/// Grams (or millilitres) of one unit of an ingredient: key "máslo" or "kapr, podkovy", then the unit's id.
using UnitWeights = QHash<QString, QHash<int, double>>;

/// What 100 g (or 100 ml) of an ingredient hold.
struct Food {
    Place place;
    double energy = 0;   ///< kcal
    double protein = 0;  ///< grams
    /// By the numbers of the European list, 1 to 14.
    QList<int> allergens;
};

/// What the shop and the kitchen know of the ingredients: obchod.txt.
struct Goods {
    bool isGiven = false;
    /// The number of a department by the ingredient's name.
    QHash<QString, int> departments;
    /// Ingredients that everyone has.
    QStringList atHome;
    /// Refinements that the cook makes and no shop sells.
    QStringList madeAtHome;
    /// How much of a whole fish a refinement leaves, in hundredths, by the refinement's id.
    QMap<int, int> yields;
};

/// A word that a cook may type to find ingredients.
struct SearchWord {
    Place place;
    QString word;
};

/// What kind of book it is, as kniha.txt says; where it says nothing, as the fish book was written.
struct BookFacts {
    QString title = QStringLiteral("Velisa sarn");
    /// Which edition it is; an author raises it with what is given to others.
    int edition = 1;
    /// The mark that the ingredients have which the book is about; empty when every dish may be in it.
    QString mainMark = QStringLiteral("ryba");
    /// What the four groups of the photo grid are called in the recipes' heads.
    QStringList courses{QStringLiteral("polévka"), QStringLiteral("teplé"), QStringLiteral("studené"),
                        QStringLiteral("slavnostní")};
    /// The captions of these groups' buttons.
    QStringList groups{QStringLiteral("Polévky"), QStringLiteral("Teplá jídla"),
                       QStringLiteral("Studená jídla"), QStringLiteral("Slavnostní mísy")};
    /// The keys of a recipe's head whose words the menu picks by.
    QStringList tagKeys{QStringLiteral("ryba"), QStringLiteral("úprava"), QStringLiteral("období"),
                        QStringLiteral("zařazení")};
    /// Keys and sections that no recipe may lack; "lžíce": each weight has its measure in spoons beside it.
    QStringList required{
        QStringLiteral("pomůcky"),   QStringLiteral("vína"),        QStringLiteral("Postup"),
        QStringLiteral("Úvod"),      QStringLiteral("Jak podávat"), QStringLiteral("Poznámka"),
        QStringLiteral("Víno"),      QStringLiteral("příprava"),    QStringLiteral("vaření"),
        QStringLiteral("obtížnost"), QStringLiteral("kosti"),       QStringLiteral("mrazit"),
        QStringLiteral("vydrží"),    QStringLiteral("sezona"),      QStringLiteral("lžíce")};
    bool needs(const char* what) const { return required.contains(QString::fromUtf8(what)); }
    int fewestIngredients = 6;
    int mostIngredients = 18;
    int fewestKeywordWords = 60;
    int mostKeywordWords = 160;
    int searchWords = 150;
};

/// The whole content of the disc as it was read.
struct Cookbook {
    BookFacts facts;
    QList<Unit> units;
    QHash<QString, int> unitForms;
    QList<Ingredient> ingredients;
    NamedList refinements;
    NamedList tools;
    QList<ToolPicture> toolPictures;
    QList<Wine> wines;
    UnitWeights unitWeights;
    /// By ingredient, or "ingredient, refinement", in lower case.
    QHash<QString, Food> foods;
    QList<SearchWord> searchWords;
    Goods goods;
    QMap<int, Recipe> recipes;
    QList<Article> auxiliary;
    QList<Article> keywords;
    QList<KeywordPicture> keywordPictures;
    QList<QuickRecipe> quick;
    QList<Page> pages;
    QList<HelpTopic> help;
    QList<Setting> settings;
    QList<Video> videos;
    QList<LookupTable> tables;
    QList<GalleryPicture> gallery;
    QList<MenuTopic> menuTopics;

    const Unit* unit(int id) const { return id > 0 && id <= units.size() ? &units[id - 1] : nullptr; }
    const Ingredient* ingredient(int id) const {
        return id > 0 && id <= ingredients.size() ? &ingredients[id - 1] : nullptr;
    }
    int ingredientId(const QString& name) const;
    int wineId(const QString& name) const;
    int auxiliaryId(const QString& name) const;
    /// The name of an auxiliary recipe among the keywords: "Aspik – recept".
    static QString keywordName(const Article& auxiliary);
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
