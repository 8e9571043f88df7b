#include "print/recipesections.h"

#include "core/numbertext.h"
#include "core/texts.h"
#include "db/companions.h"
#include "db/ingredients.h"
#include "db/queries.h"
#include "print/printfonts.h"
#include "print/shortsteps.h"
#include "richtext/plaintext.h"

namespace sarne {
namespace {

constexpr int kSectionGap = 160;
constexpr int kCardGap = 60;

/// An amount in a column of its own. Without a unit the number stands there alone: ": " would have nothing to
/// part.
QString columnText(const Measure& measure, const Quantities& quantities) {
    const QString text = measure.text(quantities).trimmed();
    return text.startsWith(u": ") ? text.mid(2) : text;
}

/// The row of \a ingredient: by weight where that is wanted, and by the spoon; once where both are the same.
QuantityRow rowOf(const Ingredient& ingredient, const Quantities& quantities, UnitSystem units) {
    QuantityRow row{ingredient.title(), {}, ingredient.alternativeLine()};
    row.quantities[1] = columnText(ingredient.spoons, quantities);
    if (units == UnitSystem::Spoons) return row;
    row.quantities[0] = columnText(ingredient.weights, quantities);
    if (row.quantities[0] == row.quantities[1]) row.quantities[1].clear();
    return row;
}

}  // namespace

void RecipeSections::set() {
    setName();
    for (int section = 0; section < kPrintSections && flow_.wentOn(); ++section) {
        const double done = kSetPart * section / kPrintSections, next = done + kSetPart / kPrintSections;
        flow_.setPart(done, next);
        if (context_.options.sections[static_cast<size_t>(section)])
            setSection(static_cast<PrintSection>(section));
        context_.progress.progressed(next);
    }
}

void RecipeSections::setCard(int sentences) {
    const QString name = field(QStringLiteral("Nazev"));
    flow_.nameNext({0, placeName(), name});
    flow_.addText(name, printfonts::name(), FlowLine::Kind::Heading);
    const PrintOptions& options = context_.options;
    if (options.wants(PrintSection::Photo)) photo();
    if (options.wants(PrintSection::Ingredients)) ingredients();
    if (options.wants(PrintSection::Texts) && flow_.wentOn()) shortSteps(sentences);
    context_.progress.progressed(kSetPart);
}

void RecipeSections::shortSteps(int sentences) {
    status(Texts::tr(" Tisknu recept ... "));
    const QStringList steps = stepsInShort(plainText(field(QStringLiteral("Recept"))), sentences);
    if (steps.isEmpty()) return;
    flow_.endPicture();
    flow_.addSpace(kCardGap);
    flow_.addPlainText(steps.join(u'\n'));
}

void RecipeSections::setName() {
    const QString name = field(QStringLiteral("Nazev")), longName = field(QStringLiteral("DlouhyNazev"));
    flow_.nameNext({0, placeName(), name});
    flow_.addText(name, printfonts::name(), FlowLine::Kind::Heading);
    if (!longName.isEmpty()) flow_.addText(longName, printfonts::name(), FlowLine::Kind::Heading);
}

void RecipeSections::setSection(PrintSection section) {
    switch (section) {
        case PrintSection::Photo:
            return photo();
        case PrintSection::Ingredients:
            return ingredients();
        case PrintSection::Texts:
            return texts();
        case PrintSection::Serving:
            return richField(QStringLiteral("Prezentace"), Texts::tr(" Tisknu servis ... "));
        case PrintSection::Wine:
            return richField(QStringLiteral("vino"), Texts::tr(" Tisknu víno ... "));
        case PrintSection::OwnNote:
            return ownNote();
        case PrintSection::Tools:
            return tools();
        case PrintSection::Links:
            return links();
    }
}

void RecipeSections::texts() {
    const std::pair<QString, QString> fields[] = {
        {QStringLiteral("Uvod"), Texts::tr(" Tisknu úvod ... ")},
        {QStringLiteral("Recept"), Texts::tr(" Tisknu recept ... ")},
        {QStringLiteral("Poznamka"), Texts::tr(" Tisknu poznámku ... ")}};
    constexpr double kAll = kSetPart / kPrintSections, kFrom = kAll * int(PrintSection::Texts);
    int done = 0;
    for (const auto& [name, statusText] : fields) {
        const double from = kFrom + kAll * done / std::size(fields);
        flow_.setPart(from, kFrom + kAll * ++done / std::size(fields));
        richField(name, statusText);
    }
}

void RecipeSections::gap() {
    flow_.addSpace(kSectionGap);
}

void RecipeSections::photo() {
    status(Texts::tr(" Tisknu foto ... "));
    const QString file = context_.source.media(QStringLiteral("foto\\male\\r%1.bmp").arg(id()));
    const Picture photo = Picture::fromFile(file);
    if (photo.isNull()) return;
    gap();
    flow_.addPicture(photo, file, context_.pageRoom - flow_.height());
}

void RecipeSections::ingredients() {
    status(Texts::tr(" Tisknu Suroviny ... "));
    const Quantities quantities(context_.options.portions, recipe_.field(QStringLiteral("Porce")).toInt(),
                                context_.source.locale);
    if (!flow_.besidePicture()) gap();
    flow_.addText(Texts::tr("Porce: ") + numberText(context_.options.portions, context_.source.locale),
                  printfonts::body(), FlowLine::Kind::Heading);
    std::vector<QuantityRow> rows;
    for (const Ingredient& ingredient : readIngredients(context_.source.db, id()))
        rows.push_back(rowOf(ingredient, quantities, context_.options.units));
    flow_.addQuantities(rows);
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
    status(Texts::tr(" Tisknu vlastní poznámku ... "));
    const QString note = context_.source.draft(id()).value_or(field(QStringLiteral("Vlastni")));
    if (note.trimmed().isEmpty()) return;
    flow_.endPicture();
    gap();
    const QString heading = Texts::tr("Vlastní poznámka: ");
    flow_.nameNext({0, {}, heading.trimmed().chopped(1), 1});
    flow_.addHeading(heading);
    flow_.addPlainText(note);
}

void RecipeSections::tools() {
    status(Texts::tr(" Tisknu pomůcky ... "));
    const QStringList tools = recipeTools(context_.source.db, id());
    if (tools.isEmpty()) return;
    flow_.endPicture();
    gap();
    flow_.addText(Texts::tr("Pomůcky: ") + tools.join(QStringLiteral(", ")), printfonts::body());
}

void RecipeSections::links() {
    flow_.listHeadings(false);  // they repeat what is linked
    for (Recordset links = queries::printedLinks(context_.source.db, id()); !links.AtEnd();
         links.MoveNext()) {
        if (!flow_.wentOn()) return;
        const QString title = links.field(QStringLiteral("Polozka")).toString();
        status(Texts::tr(" Tisknu odkaz ") + title + QStringLiteral(" ... "));
        flow_.endPicture();
        gap();
        const QString place = placeName() + u'-' + links.field(QStringLiteral("ID")).toString();
        const QString heading = Texts::tr("Odkaz: ") + title;
        flow_.nameNext({0, place, heading, 1});
        mentions_.add(title, place);
        flow_.addHeading(heading);
        flow_.addRichText(links.field(QStringLiteral("Text")).toString());
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
