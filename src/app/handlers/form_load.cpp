#include "ui/form_load.h"

#include "catalogues/build_catalogues.h"
#include "catalogues/click_rules.h"
#include "catalogues/spell_catalogue.h"
#include "engine/clear_creature.h"
#include "engine/numbers.h"
#include "form/version_record.h"
#include "localisation/ability_texts.h"
#include "localisation/apply_language.h"
#include "localisation/language_file.h"
#include "localisation/string_tables.h"
#include "ui/wire_handlers.h"

#include <QDir>

namespace Hesperin {

namespace {

void NameLanguages(MainForm& form) {
    form.mnuEnglish.SetCaption(QStringLiteral("English"));
    form.mnuRussian.SetCaption(QStringLiteral("Русский [Russian]"));
    form.mnuFrench.SetCaption(QStringLiteral("Franзais [French]"));
    form.mnuGerman.SetCaption(QStringLiteral("Deutsch [German]"));
}

void AddItems(ComboBox& list, std::initializer_list<const char*> items) {
    for (const char* item : items)
        list.AddItem(QString::fromLatin1(item));
}

void AddNumbers(ComboBox& list, int last) {
    for (int number = 1; number <= last; ++number)
        list.AddItem(QString::number(number));
}

/// The lists whose entries are the same in every language.
void FillLists(MainForm& form) {
    for (ComboBox* element : {&form.ComboFME, &form.ComboSME})
        AddItems(*element, {"None", "Air", "Earth", "Fire", "Water"});
    AddItems(form.ComboAlias, {"HEAVEN", "INFERNO", "NECROMANCY", "PRESERVE", "DUNGEON", "ACADEMY",
                               "FORTRESS", "STRONGHOLD", "NO_TYPE"});
    AddItems(form.ComboDiapazon, {"0", "-1", "-2"});
    AddItems(form.ComboTTC, {"10", "15"});
    AddNumbers(form.ComboTier, 8);
    AddNumbers(form.ComboSpeed, 9);
    AddNumbers(form.ComboInitiative, 20);
    form.ComboUpgrade.AddItem(ProperCase(QString::fromUtf16(TokenFalse)));
    form.ComboUpgrade.AddItem(ProperCase(QString::fromUtf16(TokenTrue)));
}

void ClearBoxes(Program& program) {
    MainForm& form = program.form;
    program.state.AbilityCurrentValue.fill(1.0F);
    for (int i = 1; i <= SpellCount; ++i) {
        form.Spells(i).SetTicked(false);
        OpenSelector(form.soq(i), false);
    }
    for (int j = 0; j <= SpecabilityCount; ++j) {
        form.Specabilities(j).SetTicked(false);
        OpenSelector(form.saz(j), false);
    }
}

QString OtherInstanceText(const SharedState& state, const RunningInstance& other) {
    return other.otherHost.isEmpty()
               ? state.MsgSecondInstance
               : Fill(state.MsgLockOfOtherHost,
                      {other.otherHost, QDir::toNativeSeparators(other.lockFile)});
}

} // namespace

bool Form_Load(Program& program, const StartOptions& options) {
    SharedState& state = program.state;
    MainForm& form = program.form;
    WireHandlers(program);
    NameBoxes(form);

    state.CreatureFileLoaded = false;
    for (int page = 0; page < TabControl::PageCount; ++page)
        form.Tablus.Tab(page).Switch(page != 2 && page != 4);
    NameLanguages(form);
    form.mnuSave.SetEnabled(false);
    state.LanguageId =
        options.languageId ? *options.languageId : ReadLanguageFile(program.platform.Places());
    ApplyLanguage(program, state.LanguageId);
    if (const auto other = program.platform.OtherInstance()) {
        program.Warn(BoxIcon::Critical, OtherInstanceText(state, *other));
        return false;
    }
    form.frmMain.SetCaption(VersionRecord::TitleAndVersion());
    BuildCatalogues(program);
    if (options.loadAbilityTexts)
        LoadAbilityTexts(program);
    ClearBoxes(program);
    FillLists(form);
    ClearCreature(program);
    return true;
}

} // namespace Hesperin
