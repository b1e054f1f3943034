// Sequences of what a user can do, three bytes an action: what must hold holds after each.
#include "fuzz_program.h"

#include "app/calculate.h"
#include "app/creature_in_form.h"
#include "app/handlers/file_menu.h"
#include "creature_files/document.h"
#include "creature_files/writer.h"
#include "text/numbers.h"

#include <algorithm>
#include <array>

using namespace Hesperin;

namespace {

constexpr std::array<Button MainForm::*, 5> Buttons{&MainForm::cmdCalc, &MainForm::cmdRAP,
                                                    &MainForm::cmdRAA, &MainForm::cmdRAS,
                                                    &MainForm::cmdResetAll};
constexpr std::array<MenuEntry MainForm::*, 3> Entries{&MainForm::mnuNew, &MainForm::mnuEnglish,
                                                       &MainForm::mnuRussian};

/// What is pasted, past the key filters.
const QString& Text(std::uint8_t which) {
    static const std::array<QString, 20> texts{"",
                                               "0",
                                               "1",
                                               "7",
                                               "50",
                                               "51",
                                               "-3",
                                               "99999",
                                               "2.5",
                                               "x1",
                                               "a & b",
                                               "<Gold>",
                                               "\"",
                                               "&quot;]]>",
                                               "old/wyrm\t",
                                               "\x01",
                                               "ДРАКОН",
                                               ".xdb#xpointer(/AdvMapMonsterShared)",
                                               "MonsterShared href=\"/",
                                               QString(16'000, u'x')};
    return texts[which % texts.size()];
}

template <typename Array>
auto& Pick(Array& array, std::uint8_t which) {
    return array(Array::FirstIndex + which % (Array::LastIndex - Array::FirstIndex + 1));
}

void ClickIfUsable(CheckBox& box) {
    if (box.Usable())
        box.SetTicked(!box.Ticked());
}

void ActOnce(Program& program, std::uint8_t kind, std::uint8_t which, std::uint8_t how) {
    MainForm& form = program.form;
    switch (kind % 9) {
    case 0:
        return ClickIfUsable(Pick(form.Abilities, which));
    case 1:
        return ClickIfUsable(Pick(form.Spells, which));
    case 2:
        return ClickIfUsable(Pick(form.Specabilities, which));
    case 3:
        if (MultiOption& selector = Pick(form.saz, which); selector.Usable())
            selector.ClickOption(how % 5);
        return;
    case 4:
        if (Button& button = form.*Buttons[which % Buttons.size()]; button.Usable())
            button.Click();
        return;
    case 5:
        if (MenuEntry& entry = form.*Entries[which % Entries.size()]; entry.Usable())
            entry.Click();
        return;
    case 6:
    case 7:
    default:
        break;
    }
    Control* control = form.Controls()[which % form.Controls().size()];
    if (!control->Usable())
        return;
    if (auto* field = dynamic_cast<TextField*>(control))
        kind % 2 == 0 ? field->SetText(Text(how)) : field->Type(how);
    else if (auto* list = dynamic_cast<ComboBox*>(control);
             list != nullptr && !list->Items().isEmpty())
        list->Select(static_cast<std::int16_t>(how % list->Items().size()));
}

/// What consists of plain values is read as it is written.
void RequireReadBack(Program& program) {
    const QString name = ProperCase(program.form.txtNC.Text());
    const CreatureText composed = BuildCreatureText(TakeCreature(program), name, 0);
    Require(composed.text.endsWith(QLatin1String("</Creature>")), "it can be written");
    const auto document = NormaliseCreature(CreatureFileBytes(composed.text));
    if (!composed.plain || composed.text.size() > LongestCreatureText / 2)
        return;
    Require(static_cast<bool>(document), "plain values are accepted");
    ShowDocument(program, {CreatureFileBytes(composed.text), *document}, {});
    Require(program.state.CreatureName == name, "and keep the name");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzProgram fuzzed;
    bool languageChanged = false;
    for (std::size_t at = 0; at + 2 < size && at < 3 * 400; at += 3) {
        ActOnce(fuzzed.program, data[at], data[at + 1], data[at + 2]);
        languageChanged =
            languageChanged || (data[at] % 9 == 5 && data[at + 1] % Entries.size() != 0);
        RequireInvariants(fuzzed.program);
        Require(languageChanged || fuzzed.program.state.SpellPoints1Count ==
                                       ChargesOf(TakeCreature(fuzzed.program)),
                "the charge counter counts the charges");
    }
    Calculate(fuzzed.program);
    const SharedState& state = fuzzed.program.state;
    const Parameters& parameters = state.parameters;
    Require(parameters.MinDam >= 1 && parameters.MinDam <= parameters.MaxDam &&
                parameters.MaxDam <= 95,
            "the damage is in its range");
    Require(state.powers.PowerRolvane >= 1 && state.advice.AdvisedTier >= 1 &&
                state.advice.AdvisedTier <= 8,
            "the figures are there");
    RequireReadBack(fuzzed.program);
    return 0;
}
