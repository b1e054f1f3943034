#include "catalogues/build_catalogues.h"

#include "catalogues/ability_catalogue.h"
#include "catalogues/spell_catalogue.h"

namespace Hesperin {

namespace {

QString Token(const char16_t* text) {
    return QString::fromUtf16(text);
}

} // namespace

void NameBoxes(MainForm& form) {
    for (CheckBox& box : form.Abilities)
        box.SetCaption(Token(AbilityCatalogue[static_cast<std::size_t>(box.ArrayIndex())].token));
    for (CheckBox& box : form.Spells)
        box.SetCaption(Token(SpellToken[static_cast<std::size_t>(box.ArrayIndex())]));
    for (CheckBox& box : form.Specabilities)
        box.SetCaption(Token(SpecabilityToken[static_cast<std::size_t>(box.ArrayIndex())]));
}

void BuildCatalogues(Program& program) {
    program.state.SpellPoints1Count = 0;
    program.state.SpecabilityFlag = FlagFalse;
}

} // namespace Hesperin
