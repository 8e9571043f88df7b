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

constexpr SectionKind kSections[] = {{"Foto", "Foto", make<PhotoSection>},
                                     {"Recept", "Recept", method},
                                     {"Úvod", "Uvod", introduction},
                                     {"Odkazy", "Odkazy", make<LinkPanel>},
                                     {"Víno", "Vino", make<WineSection>},
                                     {"Suroviny", "Suroviny", make<IngredientPanel>},
                                     {"Pomůcky", "Pomucky", make<ToolSection>},
                                     {"Vlastní poznámka", "Vlastni", make<NotePanel>}};
static_assert(std::size(kSections) == recipelayout::kSectionCount, "a section without a place");

}  // namespace

std::span<const SectionKind> sectionKinds() {
    return kSections;
}

}  // namespace sarne
