#include "catalogues/click_rules.h"

#include "catalogues/ability_catalogue.h"
#include "catalogues/links.h"
#include "engine/numbers.h"

#include <algorithm>

namespace Hesperin {

namespace {

template <typename Rows>
bool Contains(const Rows& rows, int index) {
    return std::find(rows.begin(), rows.end(), index) != rows.end();
}

/// CASTER opens the spells page and the mana field.
void SwitchCasterFields(Program& program, bool ticked) {
    MainForm& form = program.form;
    form.Tablus.Tab(2).Switch(ticked);
    form.cmdRAS.SetEnabled(ticked);
    form.FrameMana.SetEnabled(ticked);
    form.txtMana.SetEnabled(ticked);
    if (ticked)
        program.platform.SetFocus(form.txtMana);
    else
        form.txtMana.SetText({});
}

/// SHOOTER opens the fields of range and shots.
void SwitchShooterFields(Program& program, bool ticked) {
    MainForm& form = program.form;
    if (!ticked)
        form.ComboRange.Select(0);
    form.ComboRange.SetEnabled(ticked);
    form.FrameRange.SetEnabled(ticked);
    form.FrameShots.SetEnabled(ticked);
    form.txtShots.SetEnabled(ticked);
    if (ticked)
        program.platform.SetFocus(form.txtShots);
    else
        form.txtShots.SetText({});
}

void ShowCurrentValue(Program& program, int i) {
    CheckBox& box = program.form.Abilities(i);
    const auto row = static_cast<std::size_t>(i);
    const float value = AbilityCatalogue[row].value;
    program.state.AbilityCurrentValue[row] = box.Ticked() ? value : 1.0F;
    box.SetToolTip(box.Ticked() ? program.state.MsgAbilityValue + FloatText(value)
                                : QStringLiteral("1"));
}

/// A box of the nature group that was ticked earlier wins; the new tick is taken back.
void RefuseSecondNature(MainForm& form, int i) {
    const bool otherTicked = std::any_of(NatureGroup.begin(), NatureGroup.end(), [&](int other) {
        return other != i && form.Abilities(other).Ticked();
    });
    if (otherTicked)
        form.Abilities(i).SetTicked(false);
}

} // namespace

void StepSpellPoints1(SharedState& state, bool ticked) {
    state.SpellPoints1Count =
        static_cast<std::int16_t>(state.SpellPoints1Count + (ticked ? 1 : -1));
    state.SpecabilityFlag = ticked ? FlagTrue : FlagFalse;
}

void Abilities_Click(Program& program, int i) {
    MainForm& form = program.form;
    const bool ticked = form.Abilities(i).Ticked();

    const int partner = LinkedSpecability(i);
    if (partner >= 0)
        form.Specabilities(partner).SetTicked(ticked);
    if (partner >= 0 || Contains(OneSidedAbilities, i))
        StepSpellPoints1(program.state, ticked);
    if (i == Ability::Caster)
        SwitchCasterFields(program, ticked);
    if (i == Ability::Shooter)
        SwitchShooterFields(program, ticked);
    ShowCurrentValue(program, i);
    if (Contains(NatureGroup, i))
        RefuseSecondNature(form, i);
}

} // namespace Hesperin
