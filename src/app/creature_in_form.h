// What joins the creature as a value and the form that shows it.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// The creature that the window shows, as it was entered.
Creature TakeCreature(const Program& program);

/// Shows a creature without running a rule: fields, choices, ticks and masteries, and what follows
/// from a tick alone (the ability's current value and tool tip, the upgrade factor). Pages and
/// enabled flags stay.
void SetCreature(Program& program, const Creature& creature);

/// What Calculate reads of it. The views last until the next change.
EnteredParameters EnteredIn(const Program& program);

/// Stores what ability `i`, 1 to 174, contributes now, and tells it in the box's tool tip.
void ShowCurrentValue(Program& program, int i);

/// Opens or closes what only a caster needs: the spells page, the mana field, the reset of the
/// spells.
void SwitchCasterFields(MainForm& form, bool caster);

/// Opens or closes what only a shooter needs: the fields of range and shots.
void SwitchShooterFields(MainForm& form, bool shooter);

} // namespace Hesperin
