#include "print/recipesections.h"

#include "core/numbertext.h"
#include "db/companions.h"
#include "db/ingredients.h"
#include "db/queries.h"
#include "print/printfonts.h"

namespace sarne {
namespace {

constexpr int kSectionGap = 160;

/// The quantities of \a ingredient behind its name: by weight where that is wanted, and by the spoon; once
/// where both are the same.
QString quantityText(const Ingredient& ingredient, const Quantities& quantities, UnitSystem units) {
    const QString spoons = ingredient.spoons.text(quantities);
    if (units == UnitSystem::Spoons) return spoons;
    const QString kilograms = ingredient.weights.text(quantities);
    return kilograms == spoons ? spoons : kilograms + spoons;
}

}  // namespace

void RecipeSections::set() {
    setName();
    for (int section = 0; section < kPrintSections && flow_.wentOn(); ++section) {
        if (context_.options.sections[static_cast<size_t>(section)])
            setSection(static_cast<PrintSection>(section));
        context_.progress.sectionDone();
    }
    flow_.endPicture();
}

void RecipeSections::setName() {
    const QString name = field(QStringLiteral("Nazev")), longName = field(QStringLiteral("DlouhyNazev"));
    flow_.addText(name, printfonts::name(), FlowLine::Kind::Heading);
    if (longName != name) flow_.addText(longName, printfonts::name(), FlowLine::Kind::Heading);
}

void RecipeSections::setSection(PrintSection section) {
    switch (section) {
        case PrintSection::Photo:
            return photo();
        case PrintSection::Ingredients:
            return ingredients();
        case PrintSection::Texts:
            richField(QStringLiteral("Uvod"), QStringLiteral(" Tisknu úvod ... "));
            richField(QStringLiteral("Recept"), QStringLiteral(" Tisknu recept ... "));
            return richField(QStringLiteral("Poznamka"), QStringLiteral(" Tisknu poznámku ... "));
        case PrintSection::Serving:
            return richField(QStringLiteral("Prezentace"), QStringLiteral(" Tisknu servis ... "));
        case PrintSection::Wine:
            return richField(QStringLiteral("vino"), QStringLiteral(" Tisknu víno ... "));
        case PrintSection::OwnNote:
            return ownNote();
        case PrintSection::Tools:
            return tools();
        case PrintSection::Links:
            return links();
    }
}

void RecipeSections::gap() {
    flow_.addSpace(kSectionGap);
}

void RecipeSections::photo() {
    status(QStringLiteral(" Tisknu foto ... "));
    const Picture photo = context_.source.media(QStringLiteral("foto\\male\\r%1.bmp").arg(id()));
    if (photo.isNull()) return;
    gap();
    flow_.addPicture(photo, context_.pageRoom - flow_.height());
}

void RecipeSections::ingredients() {
    status(QStringLiteral(" Tisknu Suroviny ... "));
    const Quantities quantities(context_.options.portions, recipe_.field(QStringLiteral("Porce")).toInt(),
                                context_.source.locale);
    if (!flow_.besidePicture()) gap();
    flow_.addText(QStringLiteral("Porce: ") + numberText(context_.options.portions, context_.source.locale),
                  printfonts::body(), FlowLine::Kind::Heading);
    for (const Ingredient& ingredient : readIngredients(context_.source.db, id())) {
        if (!flow_.wentOn()) return;
        const QString line =
            ingredient.title() + quantityText(ingredient, quantities, context_.options.units);
        flow_.addText(line.trimmed(), printfonts::body());
        flow_.addContinuation(ingredient.alternativeLine(), printfonts::body());
    }
}

void RecipeSections::richField(const QString& name, const QString& statusText) {
    if (!flow_.wentOn()) return;
    status(statusText);
    const QString text = field(name);
    if (text.trimmed().isEmpty()) return;
    flow_.endPicture();
    gap();
    flow_.addRichText(text);
}

void RecipeSections::ownNote() {
    status(QStringLiteral(" Tisknu vlastní poznámku ... "));
    const QString note = field(QStringLiteral("Vlastni"));
    if (note.trimmed().isEmpty()) return;
    flow_.endPicture();
    gap();
    flow_.addHeading(QStringLiteral("Vlastní poznámka: "));
    flow_.addPlainText(note);
}

void RecipeSections::tools() {
    status(QStringLiteral(" Tisknu pomůcky ... "));
    const QStringList tools = recipeTools(context_.source.db, id());
    if (tools.isEmpty()) return;
    flow_.endPicture();
    gap();
    flow_.addText(QStringLiteral("Pomůcky: ") + tools.join(QStringLiteral(", ")), printfonts::body());
}

void RecipeSections::links() {
    for (Recordset links = queries::printedLinks(context_.source.db, id()); !links.AtEnd();
         links.MoveNext()) {
        if (!flow_.wentOn()) return;
        const QString title = links.field(QStringLiteral("Polozka")).toString();
        status(QStringLiteral(" Tisknu odkaz ") + title + QStringLiteral(" ... "));
        flow_.endPicture();
        gap();
        flow_.addHeading(QStringLiteral("Odkaz: ") + title);
        flow_.addRichText(links.field(QStringLiteral("Text")).toString(), title);
    }
}

}  // namespace sarne
