#include "screens/recipe/sectiontable.h"

#include "screens/recipe/ingredientpanel.h"
#include "screens/recipe/linkpanel.h"
#include "screens/recipe/notepanel.h"
#include "screens/recipe/textsections.h"

namespace sarne {
namespace {

using Made = std::unique_ptr<RecipeSection>;

template <typename Section>
Made make(const SectionRoom& room) {
    return std::make_unique<Section>(room);
}

Made method(const SectionRoom& room) {
    return std::make_unique<TextSection>(room, TextSection::Fields{"Recept"});
}

Made introduction(const SectionRoom& room) {
    return std::make_unique<TextSection>(room, TextSection::Fields{"Uvod", "Prezentace", "Poznamka"});
}

constexpr SectionKind kSections[] = {
    {{"Foto", nullptr, QT_TRANSLATE_NOOP("Texts", "Foto")}, make<PhotoSection>},
    {{"Recept", nullptr, QT_TRANSLATE_NOOP("Texts", "Recept")}, method},
    {{"Uvod", nullptr, QT_TRANSLATE_NOOP("Texts", "Úvod")}, introduction},
    {{"Odkazy", nullptr, QT_TRANSLATE_NOOP("Texts", "Odkazy")}, make<LinkPanel>},
    {{"Vino", nullptr, QT_TRANSLATE_NOOP("Texts", "Víno")}, make<WineSection>},
    {{"Suroviny", nullptr, QT_TRANSLATE_NOOP("Texts", "Suroviny")}, make<IngredientPanel>},
    {{"Pomucky", nullptr, QT_TRANSLATE_NOOP("Texts", "Pomůcky")}, make<ToolSection>},
    {{"Vlastni", nullptr, QT_TRANSLATE_NOOP("Texts", "Vlastní poznámka")}, make<NotePanel>}};
static_assert(std::size(kSections) == recipelayout::kSectionCount, "a section without a place");

}  // namespace

std::span<const SectionKind> sectionKinds() {
    return kSections;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
