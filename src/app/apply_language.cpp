#include "app/apply_language.h"

#include "app/standing.h"
#include "app/window_title.h"
#include "game_texts/ability_texts.h"
#include "localisation/captions.h"

namespace Hesperin {

namespace {

constexpr MenuEntry MainForm::*LanguageEntries[] = {&MainForm::mnuEnglish, &MainForm::mnuRussian,
                                                    &MainForm::mnuFrench, &MainForm::mnuGerman};

void SetCaptions(MainForm& form, std::size_t column) {
    for (Control* control : form.Controls()) {
        if (control->ArrayIndex() >= 0)
            continue;
        const Texts* texts = CaptionsOf(control->ArrayName());
        if (texts != nullptr && (*texts)[column] != nullptr)
            static_cast<Captioned*>(control)->SetCaption(QString::fromUtf16((*texts)[column]));
    }
    for (std::size_t page = 0; page < PageRows.size(); ++page)
        if (PageRows[page][column] != nullptr)
            form.Tablus.At(static_cast<Page>(page))
                .SetCaption(QString::fromUtf16(PageRows[page][column]));
    if (AverageToolTip[column] != nullptr)
        form.lblValuesA.SetToolTip(QString::fromUtf16(AverageToolTip[column]));
}

/// Refills a list if the language has its items.
void SetItems(ComboBox& list, std::span<const Texts> rows, std::size_t column) {
    QStringList items;
    for (const Texts& texts : rows)
        if (texts[column] != nullptr)
            items.append(QString::fromUtf16(texts[column]));
    if (!items.isEmpty())
        list.SetItems(items);
}

} // namespace

void ApplyLanguage(Program& program, std::int16_t languageId) {
    if (languageId < 1 || languageId > 4)
        return;
    const auto column = static_cast<std::size_t>(languageId - 1);
    MainForm& form = program.form;

    for (std::size_t entry = 0; entry < std::size(LanguageEntries); ++entry)
        (form.*LanguageEntries[entry]).SetChecked(entry == column);
    SetMessages(program.state.messages, static_cast<std::uint8_t>(languageId));
    SetCaptions(form, column);
    SetItems(form.ComboFaction, FactionRows, column);
    SetItems(form.ComboRange, RangeRows, column);
    FollowResults(program);
}

void BuildCatalogues(Program& program) {
    program.state.SpellPoints1Count = 0;
    program.state.SpecabilityFlag = FlagFalse;
}

void LoadTextsOfAbilities(Program& program) {
    const auto words =
        LoadAbilityTexts(program.state.messages.LanguageCode, program.platform.Places());
    for (int i = 1; i <= Ability::Count; ++i) {
        program.form.utbN(i).SetText(words[static_cast<std::size_t>(i)].name);
        program.form.utbD(i).SetText(words[static_cast<std::size_t>(i)].description);
    }
}

void ReloadAbilityTexts(Program& program) {
    BuildCatalogues(program);
    LoadTextsOfAbilities(program);
    BuildTitle(program);
}

} // namespace Hesperin
