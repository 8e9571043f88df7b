#include "screens/recipe/collectedtext.h"

#include "core/texts.h"
#include "db/companions.h"
#include "richtext/plaintext.h"

namespace sarne {
namespace {

const QString kLineEnd = QStringLiteral("\r\n");

QString wordsOf(const QString& richText) {
    return plainText(richText).replace(u'\n', kLineEnd);
}

/// A text of its own stands apart from the next by an empty line.
QString asParagraph(const QString& text) {
    return text.trimmed().isEmpty() ? QString() : text + kLineEnd + kLineEnd;
}

QString textSections(const Recordset& recipe) {
    QString all = asParagraph(recipe.field(QStringLiteral("DlouhyNazev")).toString());
    for (const char* field : {"Uvod", "Recept", "Poznamka", "Prezentace", "vino"})
        all += asParagraph(wordsOf(recipe.field(QString::fromLatin1(field)).toString()));
    QString note = recipe.field(QStringLiteral("Vlastni")).toString();
    if (note.isEmpty()) return all;
    return all + asParagraph(Texts::tr("Vlastní poznámka: ") + note.replace(u'\n', kLineEnd));
}

QString toolsLine(Database& db, int recipe) {
    const QStringList tools = recipeTools(db, recipe);
    if (tools.isEmpty()) return {};
    return kLineEnd + Texts::tr("Pomůcky ") + tools.join(QStringLiteral(", "));
}

QString linkTexts(Database& db, int recipe) {
    QString all;
    for (const LinkDocument& link : linkDocuments(db, recipe))
        all += kLineEnd + Texts::tr("Pomocný recept: ") + link.title + wordsOf(link.text);
    return all;
}

}  // namespace

QString collectedText(Database& db, const Recordset& recipe, int id, UnitSystem units,
                      const Quantities& quantities) {
    QString all = ingredientsText(readIngredients(db, id), units, quantities);
    const QString texts = textSections(recipe);
    if (!all.isEmpty() && !texts.isEmpty()) all += kLineEnd;
    return all + texts + toolsLine(db, id) + linkTexts(db, id);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
