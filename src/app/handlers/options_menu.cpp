#include "localisation/language_menu.h"

#include "catalogues/build_catalogues.h"
#include "engine/title.h"
#include "localisation/ability_texts.h"
#include "localisation/apply_language.h"

namespace Hesperin {

namespace {

void SwitchLanguage(Program& program, std::uint8_t languageId) {
    program.state.LanguageId = languageId;
    ApplyLanguage(program, languageId);
    ReloadAbilityTexts(program);
}

} // namespace

void ReloadAbilityTexts(Program& program) {
    BuildCatalogues(program);
    LoadAbilityTexts(program);
    BuildTitle(program);
}

void mnuEnglish_Click(Program& program) {
    SwitchLanguage(program, 1);
}

void mnuRussian_Click(Program& program) {
    SwitchLanguage(program, 2);
}

void mnuFrench_Click(Program& program) {
    SwitchLanguage(program, 3);
}

void mnuGerman_Click(Program& program) {
    SwitchLanguage(program, 4);
}

} // namespace Hesperin
