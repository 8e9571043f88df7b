#include "db/schema.h"

namespace sarne {
namespace {

/// A text column: Czech order, case aside.
const QString kText = QStringLiteral(" TEXT COLLATE CESTINA");

QString named(const QString& table, const QStringList& columns) {
    return QStringLiteral("CREATE TABLE %1 (ID INTEGER PRIMARY KEY, %2)").arg(table, columns.join(u", "));
}

QString itemTable(const QString& table) {
    return named(table, {QStringLiteral("Polozka") + kText + QStringLiteral(" NOT NULL")});
}

QStringList joinTable(const QString& table, const QString& moreColumns = {}) {
    return {QStringLiteral("CREATE TABLE %1 (ID_Receptu INTEGER NOT NULL, ID_Polozky INTEGER NOT NULL%2)")
                .arg(table, moreColumns),
            QStringLiteral("CREATE INDEX %1_ID_Receptu ON %1 (ID_Receptu)").arg(table)};
}

QString recipes() {
    return named(
        QStringLiteral("Recepty"),
        {QStringLiteral("Nazev") + kText, QStringLiteral("DlouhyNazev") + kText,
         QStringLiteral("Porce INTEGER"), QStringLiteral("Recept") + kText, QStringLiteral("Uvod") + kText,
         QStringLiteral("Prezentace") + kText, QStringLiteral("Poznamka") + kText,
         QStringLiteral("vino") + kText, QStringLiteral("Vlastni") + kText});
}

QStringList ingredientRows() {
    return joinTable(QStringLiteral("SpojSur"),
                     QStringLiteral(", ID_Upresneni INTEGER, ID_JdnKg INTEGER, MnozstviKg REAL, "
                                    "ID_Jdnlzice INTEGER, MnozstviLzice REAL, ID_nahrSur INTEGER"));
}

/// The picture galleries: pictures by their file's number, and areas in thousandths of their picture.
QStringList galleries() {
    const QString name = QStringLiteral("Nazev") + kText;
    const QString text = QStringLiteral("Text") + kText;
    return {named(QStringLiteral("Sponzor"), {QStringLiteral("Tema INTEGER NOT NULL"), name, text}),
            named(QStringLiteral("PlochySponzoru"),
                  {QStringLiteral("ID_Sponzoru INTEGER NOT NULL"),
                   QStringLiteral("X INTEGER, Y INTEGER, Sirka INTEGER, Vyska INTEGER"), name, text,
                   QStringLiteral("Odkaz") + kText})};
}

}  // namespace

QStringList recipeSchema() {
    const QString name = QStringLiteral("Nazev") + kText;
    const QString text = QStringLiteral("Text") + kText;
    QStringList all{recipes()};
    for (const char* table : {"Suroviny", "Upresneni", "Jednotky", "Pomucky", "Vino"})
        all << itemTable(QLatin1String(table));
    all << named(QStringLiteral("Odkazy"), {QStringLiteral("Polozka") + kText, text});
    all << ingredientRows();
    for (const char* table : {"SpojPomucky", "SpojOdkazy", "SpojVino"})
        all << joinTable(QLatin1String(table));
    all << QStringLiteral("CREATE INDEX SpojSur_ID_Polozky ON SpojSur (ID_Polozky)");
    all << QStringLiteral("CREATE TABLE Menu (Id%1 PRIMARY KEY, Label%1, Odkazy%1)").arg(kText);
    for (const char* table : {"RychleRecepty", "Help"})
        all << named(QLatin1String(table), {name, QStringLiteral("Recept INTEGER")});
    all << named(QStringLiteral("IndexHesla"), {QStringLiteral("nazvy") + kText, text});
    all << named(QStringLiteral("Nastav"), {name, QStringLiteral("hodnota INTEGER NOT NULL DEFAULT 0")});
    // Pages of text; Obrazovka is the form whose help a page is, empty for the others.
    all << named(QStringLiteral("Stranky"), {name, text, QStringLiteral("Obrazovka") + kText});
    // Tables to look things up in: headings and cells are parted by tabs. A row may open a keyword, 0 = none.
    all << named(QStringLiteral("Tabulky"),
                 {name, QStringLiteral("Sloupce") + kText, QStringLiteral("Poznamka") + kText});
    all << named(QStringLiteral("RadkyTabulek"),
                 {QStringLiteral("ID_Tabulky INTEGER NOT NULL"), QStringLiteral("ID_Hesla INTEGER"),
                  QStringLiteral("Bunky") + kText});
    all << galleries();
    return all;
}

QStringList pictureSchema() {
    return {QStringLiteral("CREATE TABLE TabObr (obr BLOB)")};
}

QList<QStringList> userSchema() {
    return {{QStringLiteral("CREATE TABLE Poznamky (ID INTEGER PRIMARY KEY, Nazev TEXT, Text TEXT)"),
             QStringLiteral("CREATE TABLE Rozepsane (ID INTEGER PRIMARY KEY, Text TEXT)"),
             QStringLiteral("CREATE TABLE Hodnoty (Nazev TEXT PRIMARY KEY, Hodnota TEXT)")}};
}

}  // namespace sarne
