#include "db/schema.h"

namespace sarne {
namespace {

/// A text column: Czech order, case aside.
const QString kTextType = QStringLiteral(" TEXT COLLATE CESTINA");

QString named(const QString& table, const QStringList& columns) {
    return QStringLiteral("CREATE TABLE %1 (ID INTEGER PRIMARY KEY, %2)").arg(table, columns.join(u", "));
}

QString itemTable(const QString& table) {
    return named(table, {QStringLiteral("Polozka") + kTextType + QStringLiteral(" NOT NULL")});
}

QStringList joinTable(const QString& table, const QString& moreColumns = {}) {
    return {QStringLiteral("CREATE TABLE %1 (ID_Receptu INTEGER NOT NULL, ID_Polozky INTEGER NOT NULL%2)")
                .arg(table, moreColumns),
            QStringLiteral("CREATE INDEX %1_ID_Receptu ON %1 (ID_Receptu)").arg(table)};
}

QString recipes() {
    return named(QStringLiteral("Recepty"),
                 {QStringLiteral("Nazev") + kTextType, QStringLiteral("DlouhyNazev") + kTextType,
                  QStringLiteral("Porce INTEGER"), QStringLiteral("Recept") + kTextType,
                  QStringLiteral("Uvod") + kTextType, QStringLiteral("Prezentace") + kTextType,
                  QStringLiteral("Poznamka") + kTextType, QStringLiteral("vino") + kTextType,
                  QStringLiteral("Vlastni") + kTextType});
}

QStringList ingredientRows() {
    return joinTable(QStringLiteral("SpojSur"),
                     QStringLiteral(", ID_Upresneni INTEGER, ID_JdnKg INTEGER, MnozstviKg REAL, "
                                    "ID_Jdnlzice INTEGER, MnozstviLzice REAL, ID_nahrSur INTEGER"));
}

/// The picture galleries: pictures by their file's number, and areas in thousandths of their picture.
QStringList galleries() {
    const QString name = QStringLiteral("Nazev") + kTextType;
    const QString text = QStringLiteral("Text") + kTextType;
    return {named(QStringLiteral("Sponzor"), {QStringLiteral("Tema INTEGER NOT NULL"), name, text}),
            named(QStringLiteral("PlochySponzoru"),
                  {QStringLiteral("ID_Sponzoru INTEGER NOT NULL"),
                   QStringLiteral("X INTEGER, Y INTEGER, Sirka INTEGER, Vyska INTEGER"), name, text,
                   QStringLiteral("Odkaz") + kTextType})};
}

/// What the kitchen needs beyond the recipes themselves. A book without these tables is a good book, too.
QStringList kitchen() {
    const QString name = QStringLiteral("Nazev") + kTextType;
    return {
        // A recipe's steps, and which share of which line of its ingredients each takes; lines from 0.
        named(QStringLiteral("Kroky"),
              {QStringLiteral("ID_Receptu INTEGER NOT NULL"), name, QStringLiteral("Text") + kTextType}),
        QStringLiteral("CREATE INDEX Kroky_ID_Receptu ON Kroky (ID_Receptu)"),
        QStringLiteral(
            "CREATE TABLE KrokySur (ID_Kroku INTEGER NOT NULL, Radek INTEGER NOT NULL, Podil REAL)"),
        QStringLiteral("CREATE INDEX KrokySur_ID_Kroku ON KrokySur (ID_Kroku)"),
        // An ingredient as goods: the department, whether everyone has it, allergens by the bits of their
        // numbers.
        named(QStringLiteral("Zbozi"), {QStringLiteral("Oddeleni INTEGER, Doma INTEGER, Alergeny INTEGER")}),
        // The refinements that a cook makes and no shop sells.
        QStringLiteral("CREATE TABLE Uprava (ID INTEGER PRIMARY KEY)"),
        // How much of a whole fish, in hundredths, is left of it in this refinement.
        named(QStringLiteral("Vyteznost"), {QStringLiteral("Podil INTEGER NOT NULL")}),
        // A recipe in numbers: minutes; months and allergens by bits; the line of its main fish.
        named(QStringLiteral("Fakta"),
              {QStringLiteral("Priprava INTEGER, Vareni INTEGER, Minut INTEGER, Predem") + kTextType,
               QStringLiteral("Mesice INTEGER, Alergeny INTEGER, Ryba INTEGER, Chod") + kTextType,
               QStringLiteral("Obdobi") + kTextType})};
}

}  // namespace

QStringList recipeSchema() {
    const QString name = QStringLiteral("Nazev") + kTextType;
    const QString text = QStringLiteral("Text") + kTextType;
    QStringList all{recipes()};
    for (const char* table : {"Suroviny", "Upresneni", "Jednotky", "Pomucky", "Vino"})
        all << itemTable(QLatin1String(table));
    all << named(QStringLiteral("Odkazy"), {QStringLiteral("Polozka") + kTextType, text});
    all << ingredientRows();
    for (const char* table : {"SpojPomucky", "SpojOdkazy", "SpojVino"})
        all << joinTable(QLatin1String(table));
    all << QStringLiteral("CREATE INDEX SpojSur_ID_Polozky ON SpojSur (ID_Polozky)");
    all << QStringLiteral("CREATE TABLE Menu (Id%1 PRIMARY KEY, Label%1, Odkazy%1)").arg(kTextType);
    for (const char* table : {"RychleRecepty", "Help"})
        all << named(QLatin1String(table), {name, QStringLiteral("Recept INTEGER")});
    all << named(QStringLiteral("IndexHesla"), {QStringLiteral("nazvy") + kTextType, text});
    // What stands beside a keyword's text: the path of a picture and what it shows, the number of a film, the
    // recipes that use the word ("7,12,"). A keyword without any of them has no row.
    all << named(QStringLiteral("UkazkyHesel"),
                 {QStringLiteral("Obraz") + kTextType, QStringLiteral("Popis") + kTextType,
                  QStringLiteral("Film INTEGER"), QStringLiteral("Recepty") + kTextType});
    all << named(QStringLiteral("Nastav"), {name, QStringLiteral("hodnota INTEGER NOT NULL DEFAULT 0")});
    // Pages of text; Obrazovka is the form whose help a page is, empty for the others.
    all << named(QStringLiteral("Stranky"), {name, text, QStringLiteral("Obrazovka") + kTextType});
    // Tables to look things up in: headings and cells are parted by tabs. A row may open a keyword, 0 = none.
    all << named(QStringLiteral("Tabulky"),
                 {name, QStringLiteral("Sloupce") + kTextType, QStringLiteral("Poznamka") + kTextType});
    all << named(QStringLiteral("RadkyTabulek"),
                 {QStringLiteral("ID_Tabulky INTEGER NOT NULL"), QStringLiteral("ID_Hesla INTEGER"),
                  QStringLiteral("Bunky") + kTextType});
    // What the book says of itself; see bookFact().
    all << named(QStringLiteral("Kniha"), {name, QStringLiteral("Hodnota") + kTextType});
    all << galleries() << kitchen();
    return all;
}

QStringList pictureSchema() {
    return {QStringLiteral("CREATE TABLE TabObr (obr BLOB)")};
}

QList<QStringList> userSchema() {
    return {{QStringLiteral("CREATE TABLE Poznamky (ID INTEGER PRIMARY KEY, Nazev TEXT, Text TEXT)"),
             QStringLiteral("CREATE TABLE Rozepsane (ID INTEGER PRIMARY KEY, Text TEXT)"),
             QStringLiteral("CREATE TABLE Hodnoty (Nazev TEXT PRIMARY KEY, Hodnota TEXT)")},
            // What is to be bought: a row for each recipe that a thing is for, those of one thing together.
            {QStringLiteral("CREATE TABLE Nakup (ID INTEGER PRIMARY KEY, Nazev TEXT, Oddeleni INTEGER, "
                            "Doma INTEGER, Koupeno INTEGER, Nahrada TEXT, Recept INTEGER, NazevReceptu TEXT, "
                            "Porce REAL, Jednotka TEXT, Mnozstvi REAL)"),
             // What the user has made of a recipe: stars from 1 to 5, when it was opened last.
             QStringLiteral("CREATE TABLE Kucharka (ID INTEGER PRIMARY KEY, Nazev TEXT, Hvezdy INTEGER, "
                            "Otevreno TEXT)"),
             QStringLiteral("CREATE TABLE Uvareno (ID INTEGER PRIMARY KEY, Recept INTEGER, Nazev TEXT, "
                            "Den TEXT, Porce REAL)")},
            // The kitchen timers that run: when each ends, in milliseconds since 1970.
            {QStringLiteral("CREATE TABLE Casovace (ID INTEGER PRIMARY KEY, Nazev TEXT, Konec INTEGER)")}};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
