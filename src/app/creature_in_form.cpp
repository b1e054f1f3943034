#include "app/creature_in_form.h"

#include "catalogue/ability_catalogue.h"
#include "form/form_lists.h"
#include "text/numbers.h"

namespace Hesperin {

namespace {

constexpr bool FollowsLanguage(std::size_t list) {
    return ListCatalogue.items[list].entries.empty();
}

template <typename Boxes, typename Selectors, std::size_t Count>
void TakeSkills(const Boxes& boxes, const Selectors& selectors, std::array<Skill, Count>& skills) {
    for (const CheckBox& box : boxes)
        skills[static_cast<std::size_t>(box.ArrayIndex())] = {box.Ticked(),
                                                              selectors(box.ArrayIndex()).Value()};
}

template <typename Boxes, typename Selectors, std::size_t Count>
void SetSkills(Boxes& boxes, Selectors& selectors, const std::array<Skill, Count>& skills) {
    for (CheckBox& box : boxes) {
        const Skill& skill = skills[static_cast<std::size_t>(box.ArrayIndex())];
        MultiOption& selector = selectors(box.ArrayIndex());
        box.Restore(skill.known);
        selector.SetOptionsEnabled(skill.known);
        selector.SetValue(skill.mastery);
        selector.Redraw();
    }
}

} // namespace

Creature TakeCreature(const Program& program) {
    const MainForm& form = program.form;
    Creature creature;
    creature.Name = form.txtNC.Text();
    creature.Id = form.txtIDC.Text();
    for (std::size_t i = 0; i < NumberFields.items.size(); ++i)
        creature.Numbers.items[i] = (form.*NumberFields.items[i]).Text();
    for (std::size_t i = 0; i < ListFields.items.size(); ++i) {
        const ComboBox& list = form.*ListFields.items[i];
        creature.Choices.items[i] = {list.Index(), FollowsLanguage(i) ? QString() : list.Text()};
    }
    for (const CheckBox& box : form.Abilities)
        creature.Set(box.ArrayIndex(), box.Ticked());
    TakeSkills(form.Spells, form.soq, creature.Spells);
    TakeSkills(form.Specabilities, form.saz, creature.Specabilities);
    creature.SpellPoints1Count = program.state.SpellPoints1Count;
    creature.SpecabilityFlag = program.state.SpecabilityFlag;
    return creature;
}

void SetCreature(Program& program, const Creature& creature) {
    MainForm& form = program.form;
    form.txtNC.SetText(creature.Name);
    form.txtIDC.SetText(creature.Id);
    for (std::size_t i = 0; i < NumberFields.items.size(); ++i)
        (form.*NumberFields.items[i]).SetText(creature.Numbers.items[i]);
    for (std::size_t i = 0; i < ListFields.items.size(); ++i)
        (form.*ListFields.items[i])
            .Restore(creature.Choices.items[i].index, creature.Choices.items[i].text);
    for (CheckBox& box : form.Abilities)
        if (box.Restore(creature.Has(box.ArrayIndex())))
            ShowCurrentValue(program, box.ArrayIndex());
    SetSkills(form.Spells, form.soq, creature.Spells);
    SetSkills(form.Specabilities, form.saz, creature.Specabilities);
    program.state.SpellPoints1Count = creature.SpellPoints1Count;
    program.state.SpecabilityFlag = creature.SpecabilityFlag;
    program.state.UpgradeFactor = UpgradeFactorOf(creature.Choices[ListField::Upgrade].text);
}

EnteredParameters EnteredIn(const Program& program) {
    const MainForm& form = program.form;
    const SharedState& state = program.state;
    return {form.txtAttack.Text(),
            form.txtDefence.Text(),
            form.txtHealth.Text(),
            form.txtMinDam.Text(),
            form.txtMaxDam.Text(),
            form.ComboSpeed.Text(),
            form.ComboInitiative.Text(),
            form.ComboTier.Text(),
            form.txtMana.Text(),
            form.txtShots.Text(),
            form.Abilities(Ability::Caster).Ticked(),
            form.Abilities(Ability::Shooter).Ticked(),
            ProductOf(state.AbilityCurrentValue),
            state.UpgradeFactor};
}

void ShowCurrentValue(Program& program, int i) {
    CheckBox& box = program.form.Abilities(i);
    const auto row = static_cast<std::size_t>(i);
    const float value = AbilityCatalogue[row].value;
    program.state.AbilityCurrentValue[row] = box.Ticked() ? value : 1.0F;
    box.SetToolTip(box.Ticked() ? program.state.messages.MsgAbilityValue + FloatText(value)
                                : QStringLiteral("1"));
}

void SwitchCasterFields(MainForm& form, bool caster) {
    form.Tablus.At(Page::Spells).Switch(caster);
    for (Control* control :
         std::initializer_list<Control*>{&form.cmdRAS, &form.FrameMana, &form.txtMana})
        control->SetEnabled(caster);
}

void SwitchShooterFields(MainForm& form, bool shooter) {
    for (Control* control : std::initializer_list<Control*>{&form.ComboRange, &form.FrameRange,
                                                            &form.FrameShots, &form.txtShots})
        control->SetEnabled(shooter);
}

} // namespace Hesperin
