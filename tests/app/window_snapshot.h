// Everything that a command may leave behind in the window and the state, for tests of commands
// that must leave nothing.
#pragma once

#include "support/test_program.h"

namespace Hesperin {

/// One line for each control and each field of the state. The file dialog's own name isn't in it.
inline QStringList Snapshot(const TestProgram& test) {
    QStringList lines;
    for (const Control* control : test.form.Controls()) {
        if (control == &test.form.ComDialog)
            continue;
        QString line =
            QString("%1 enabled %2 visible %3 ").arg(control->Name()).arg(control->Enabled()).arg(control->Visible());
        line += control->ToolTip() + " | " + control->Shown();
        if (const auto* list = dynamic_cast<const ComboBox*>(control))
            line += QString(" entry %1").arg(list->Index());
        if (const auto* selector = dynamic_cast<const MultiOption*>(control))
            line += QString(" option %1").arg(selector->SelectedOption());
        if (const auto* entry = dynamic_cast<const MenuEntry*>(control))
            line += QString(" checked %1").arg(entry->Checked());
        lines.append(line);
    }
    const SharedState& state = test.state;
    for (const std::int16_t SharedState::*field : {&SharedState::Attack,
                                                   &SharedState::Defence,
                                                   &SharedState::Health,
                                                   &SharedState::MinDam,
                                                   &SharedState::MaxDam,
                                                   &SharedState::Speed,
                                                   &SharedState::Initiative,
                                                   &SharedState::Tier,
                                                   &SharedState::SpellPoints1Count,
                                                   &SharedState::SpecabilityFlag,
                                                   &SharedState::ExpRolvane,
                                                   &SharedState::ExpAverage,
                                                   &SharedState::GrowthNumerator,
                                                   &SharedState::GrowthRolvane,
                                                   &SharedState::GrowthHesperin,
                                                   &SharedState::GrowthAverage,
                                                   &SharedState::GoldBaseNow,
                                                   &SharedState::TierReferencePower,
                                                   &SharedState::AdvisedTier,
                                                   &SharedState::FilePower,
                                                   &SharedState::FileExperience,
                                                   &SharedState::FileGrowth,
                                                   &SharedState::FileGold,
                                                   &SharedState::TokenPosition,
                                                   &SharedState::SpecabilityTokenPosition})
        lines.append(QString::number(state.*field));
    for (const double SharedState::*field :
         {&SharedState::OffenceScore, &SharedState::DefenceScore, &SharedState::PowerRolvane,
          &SharedState::PowerHesperin, &SharedState::PowerAverage, &SharedState::CostRolvane,
          &SharedState::CostHesperin, &SharedState::CostAverage})
        lines.append(QString::number(state.*field, 'g', 17));
    for (const float value : state.AbilityCurrentValue)
        lines.append(QString::number(static_cast<double>(value)));
    lines.append({QString::number(static_cast<double>(state.parameters.AbilityProduct)),
                  QString::number(static_cast<double>(state.UpgradeFactor)),
                  QString::number(static_cast<double>(state.advice.PowerRatio)), state.CreatureName,
                  QString::number(state.CreatureFileLoaded), QString::number(state.LanguageId)});
    lines.append(test.platform.focus);
    lines.append(test.platform.status);
    return lines;
}

} // namespace Hesperin
