#include "app/handlers/form_load.h"

#include "app/apply_language.h"
#include "app/handlers/wire_handlers.h"
#include "app/resets.h"
#include "catalogue/ability_catalogue.h"
#include "catalogue/spell_catalogue.h"
#include "form/form_lists.h"
#include "localisation/language_file.h"
#include "system/version_record.h"
#include "text/fill.h"

#include <QDir>

namespace Hesperin {

namespace {

void NameLanguages(MainForm& form) {
    form.mnuEnglish.SetCaption(QStringLiteral("English"));
    form.mnuRussian.SetCaption(QStringLiteral("Русский [Russian]"));
    form.mnuFrench.SetCaption(QStringLiteral("Franзais [French]"));
    form.mnuGerman.SetCaption(QStringLiteral("Deutsch [German]"));
}

/// Gives every check box the game's token as its caption, the same in every language.
void NameBoxes(MainForm& form) {
    const auto name = [](auto& boxes, auto tokenOf) {
        for (CheckBox& box : boxes)
            box.SetCaption(QString::fromUtf16(tokenOf(static_cast<std::size_t>(box.ArrayIndex()))));
    };
    name(form.Abilities, [](std::size_t i) { return AbilityCatalogue[i].token; });
    name(form.Spells, [](std::size_t i) { return SpellToken[i]; });
    name(form.Specabilities, [](std::size_t j) { return SpecabilityToken[j]; });
}

/// The lists whose entries are the same in every language.
void FillLists(MainForm& form) {
    for (std::size_t list = 0; list < ListFields.items.size(); ++list)
        for (const QStringView entry : ListCatalogue.items[list].entries)
            (form.*ListFields.items[list]).AddItem(entry.toString());
}

QString OtherInstanceText(const Messages& messages, const RunningInstance& other) {
    return other.otherHost.isEmpty()
               ? messages.MsgSecondInstance
               : Fill(messages.MsgLockOfOtherHost,
                      {other.otherHost, QDir::toNativeSeparators(other.lockFile)});
}

} // namespace

bool Form_Load(Program& program, const StartOptions& options) {
    SharedState& state = program.state;
    MainForm& form = program.form;
    WireHandlers(program);
    NameBoxes(form);

    for (const Page page : {Page::Spells, Page::File})
        form.Tablus.At(page).Switch(false);
    NameLanguages(form);
    state.LanguageId =
        options.languageId ? *options.languageId : ReadLanguageFile(program.platform.Places());
    ApplyLanguage(program, state.LanguageId);
    if (const auto other = program.platform.OtherInstance()) {
        program.Warn(BoxIcon::Critical, OtherInstanceText(state.messages, *other));
        return false;
    }
    form.frmMain.SetCaption(VersionRecord::TitleAndVersion());
    if (options.loadAbilityTexts)
        LoadTextsOfAbilities(program);
    FillLists(form);
    ClearCreature(program);
    form.SetActListener(&program.history);
    return true;
}

} // namespace Hesperin
