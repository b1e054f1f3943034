#include "app/handlers/box_rules.h"

#include "app/creature_in_form.h"
#include "catalogue/links.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// Moves the charge counter by one, up for a tick and down for an untick, and lets the flag take
/// its sense.
void StepSpellPoints1(SharedState& state, bool ticked) {
    state.SpellPoints1Count =
        static_cast<std::int16_t>(state.SpellPoints1Count + (ticked ? 1 : -1));
    state.SpecabilityFlag = ticked ? FlagTrue : FlagFalse;
}

void CasterChanged(Program& program, bool ticked) {
    SwitchCasterFields(program.form, ticked);
    if (ticked)
        program.platform.SetFocus(program.form.txtMana);
    else
        program.form.txtMana.SetText({});
}

void ShooterChanged(Program& program, bool ticked) {
    MainForm& form = program.form;
    if (!ticked)
        form.ComboRange.Select(0);
    SwitchShooterFields(form, ticked);
    if (ticked)
        program.platform.SetFocus(form.txtShots);
    else
        form.txtShots.SetText({});
}

/// The nature that was ticked earlier wins; the new tick is taken back.
void RefuseSecondNature(MainForm& form, int i) {
    const bool otherTicked = std::any_of(NatureGroup.begin(), NatureGroup.end(), [&](int other) {
        return other != i && form.Abilities(other).Ticked();
    });
    if (otherTicked)
        form.Abilities(i).SetTicked(false);
}

} // namespace

void Abilities_Click(Program& program, int i) {
    MainForm& form = program.form;
    const bool ticked = form.Abilities(i).Ticked();

    const int partner = LinkedSpecability(i);
    if (partner >= 0)
        form.Specabilities(partner).SetTicked(ticked);
    if (partner >= 0 || IsOneSidedAbility(i))
        StepSpellPoints1(program.state, ticked);
    if (i == Ability::Caster)
        CasterChanged(program, ticked);
    if (i == Ability::Shooter)
        ShooterChanged(program, ticked);
    ShowCurrentValue(program, i);
    if (IsNature(i))
        RefuseSecondNature(form, i);
}

void Specabilities_Click(Program& program, int j) {
    MainForm& form = program.form;
    const CheckBox& box = form.Specabilities(j);
    const bool ticked = box.Ticked();

    const int partner = LinkedAbility(j);
    if (partner >= 0)
        form.Abilities(partner).SetTicked(ticked);
    if (partner >= 0 || IsOneSidedSpecability(j))
        StepSpellPoints1(program.state, ticked);

    program.state.SpecabilityFlag = box.Ticked() ? FlagTrue : FlagFalse;
    OpenSelector(form.saz(j), box.Ticked());
}

void Spells_Click(Program& program, int i) {
    OpenSelector(program.form.soq(i), program.form.Spells(i).Ticked());
}

void OpenSelector(MultiOption& selector, bool open) {
    selector.SetOptionsEnabled(open);
    if (!open)
        selector.SetValue(0);
    selector.Redraw();
}

void Abilities_RightClick(Program& program, int index) {
    program.form.frmMain.SetEnabled(false);
    program.state.AbilityInfoIndex = static_cast<std::int16_t>(index);
    program.platform.Open(SecondaryWindow::AbilityInformation);
}

} // namespace Hesperin
