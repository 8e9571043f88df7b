#include "screens/recipe/collectedtext.h"

#include "db/companions.h"
#include "richtext/rtfreader.h"

namespace sarne {
namespace {

const QString kLineEnd = QStringLiteral("\r\n");

/// Keeps the words of a rich text and nothing else.
class TextCollector final : public RtfSink {
  public:
    void text(QStringView run) override { all_ += run; }
    void character(QChar c) override { all_ += c; }
    void font(const TextFont&) override {}
    void color(QRgb) override {}
    void openLink(const LinkKey&) override {}
    void closeLink() override {}
    void endPara() override { all_ += kLineEnd; }
    void tab() override { all_ += u'\t'; }
    void tabStop(int) override {}
    void clearTabStops() override {}
    void defaultTabWidth(int) override {}

    QString take() {
        while (all_.endsWith(kLineEnd)) all_.chop(kLineEnd.size());
        return std::move(all_);
    }

  private:
    QString all_;
};

/// A text of its own stands apart from the next by an empty line.
QString asParagraph(const QString& text) {
    return text.trimmed().isEmpty() ? QString() : text + kLineEnd + kLineEnd;
}

QString textSections(const Recordset& recipe) {
    QString all = asParagraph(recipe.field(QStringLiteral("DlouhyNazev")).toString());
    for (const char* field : {"Uvod", "Recept", "Poznamka", "Prezentace", "vino"})
        all += asParagraph(plainText(recipe.field(QString::fromLatin1(field)).toString()));
    QString note = recipe.field(QStringLiteral("Vlastni")).toString();
    if (note.isEmpty()) return all;
    return all + asParagraph(QStringLiteral("Vlastní poznámka: ") + note.replace(u'\n', kLineEnd));
}

QString toolsLine(Database& db, int recipe) {
    const QStringList tools = recipeTools(db, recipe);
    if (tools.isEmpty()) return {};
    return kLineEnd + QStringLiteral("Pomůcky ") + tools.join(QStringLiteral(", "));
}

QString linkDocuments(Database& db, int recipe) {
    QString all;
    for (const RecipeLink& link : recipeLinks(db, recipe)) {
        const auto document = linkDocument(db, link.id);
        if (!document) continue;
        all += kLineEnd + QStringLiteral("Pomocný recept: ") + document->title + kLineEnd +
               plainText(document->text);
    }
    return all;
}

}  // namespace

QString plainText(const QString& richText) {
    TextCollector collector;
    if (!richText.trimmed().isEmpty()) readRichText(richText, collector, LinkMarkers::Remove);
    return collector.take();
}

QString collectedText(Database& db, const Recordset& recipe, int id, UnitSystem units,
                      const Quantities& quantities) {
    QString all = ingredientsText(readIngredients(db, id), units, quantities);
    const QString texts = textSections(recipe);
    if (!all.isEmpty() && !texts.isEmpty()) all += kLineEnd;
    return all + texts + toolsLine(db, id) + linkDocuments(db, id);
}

}  // namespace sarne
