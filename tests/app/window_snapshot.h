// Everything that a command may leave behind in the window and the state.
#pragma once

#include "form/form_lists.h"
#include "localisation/captions.h"
#include "support/test_program.h"
#include "text/numbers.h"

#include <QMap>

namespace Hesperin {

/// Words by what they tell of: "txtAttack" its text, "txtAttack is" its flags, "figures" those of the state. Empty
/// where a control shows nothing or is as usual. Captions that follow the language and the tokens of boxes aren't in
/// it.
class WindowSnapshot {
public:
    explicit WindowSnapshot(const Program& program) {
        for (const Control* control : program.form.Controls())
            if (control != &program.form.mnuUndo && control != &program.form.mnuRedo) // which follow every act
                Tell(*control);
        for (const CheckBox& box : program.form.Abilities)
            if (const float value = program.state.AbilityCurrentValue[static_cast<std::size_t>(box.ArrayIndex())];
                value != 1)
                words[box.Name()] += " for " + FloatText(value);
        Tell(program.state);
    }

    QMap<QString, QString> words;

private:
    void Tell(const Control& control) {
        const QString name = control.Name();
        words[name] = Shown(control);
        if (dynamic_cast<const StoredText*>(&control) != nullptr ||
            dynamic_cast<const MultiOption*>(&control) != nullptr)
            return;
        words[name + " is"] = QString(control.Enabled() ? "" : "off") + (control.Visible() ? "" : " hidden");
        if (CaptionsOf(control.ArrayName()) == nullptr || name == "cmdCalc")
            words[name + " tip"] = control.ToolTip();
        if (const auto* list = dynamic_cast<const ComboBox*>(&control))
            words[name + " holds"] = list->Items().join(' ');
        if (const auto* field = dynamic_cast<const TextField*>(&control))
            words[name + " takes"] = field->MaxLength() == 0 ? "" : QString::number(field->MaxLength());
        if (const auto* entry = dynamic_cast<const MenuEntry*>(&control)) {
            words[name + " keys"] = entry->Shortcut();
            words[name + " reads"] = CaptionsOf(control.ArrayName()) == nullptr ? entry->Caption() : "";
        }
        if (const auto* dialog = dynamic_cast<const FileDialog*>(&control))
            words[name + " set"] = dialog->InitialDirectory + ' ' + dialog->Filter + ' ' + dialog->DefaultExtension;
    }

    QString Shown(const Control& control) {
        QString shown = control.Shown();
        if (const auto* selector = dynamic_cast<const MultiOption*>(&control))
            return Words(*selector);
        if (const auto* box = dynamic_cast<const CheckBox*>(&control))
            return box->Ticked() ? box->Caption() : QString();
        if (const auto* entry = dynamic_cast<const MenuEntry*>(&control))
            return entry->Checked() ? "checked" : "";
        if (const auto* list = dynamic_cast<const ComboBox*>(&control))
            return shown + QString(" [%1]").arg(list->Index());
        if (dynamic_cast<const StoredText*>(&control) != nullptr && shown.size() > 60)
            return QString("%1 units, %2").arg(shown.size()).arg(Hash(shown));
        if (dynamic_cast<const TabPage*>(&control) != nullptr && control.ArrayIndex() != static_cast<int>(Page::File))
            return {};
        if (CaptionsOf(control.ArrayName()) != nullptr)
            return {};
        if (dynamic_cast<const Label*>(&control) == nullptr)
            return shown;
        words["results"] = (words["results"] + ' ' + shown).trimmed();
        return {};
    }

    static QString Words(const MultiOption& selector) {
        QString level = QString::number(selector.Value());
        if (selector.SelectedOption() != selector.Value())
            level += " drawn as " + QString::number(selector.SelectedOption());
        const bool open = selector.OptionsEnabled() && selector.Enabled();
        return open ? level : selector.OptionsEnabled() || selector.Enabled() ? "half open" : level == "0" ? "" : level;
    }

    template <typename... Numbers>
    static QString Line(Numbers... numbers) {
        return QStringList{QString::number(static_cast<double>(numbers))...}.join(' ');
    }

    void Tell(const SharedState& state) {
        const Parameters& p = state.parameters;
        const Exponents& e = state.exponents;
        const Figures& f = state.figures;
        words["counter"] = QString::number(state.SpellPoints1Count);
        words["flag"] = QString::number(state.SpecabilityFlag);
        words["upgrade factor"] = Line(state.UpgradeFactor);
        words["parameters"] = Line(p.Attack, p.Defence, p.Health, p.MinDam, p.MaxDam, p.Speed, p.Initiative, p.Tier,
                                   p.AbilityProduct, p.UpgradeFactor, p.Shooter);
        words["exponents"] = Line(e.ExponentOffence, e.ExponentDefence, e.ExponentSpeed, e.ExponentInitiative);
        words["powers"] = Line(state.powers.OffenceScore, state.powers.DefenceScore, state.powers.PowerRolvane,
                               state.powers.PowerHesperin);
        words["figures"] = Line(f.PowerAverage, f.ExpRolvane, f.ExpHesperin, f.ExpAverage, f.GrowthNumerator,
                                f.GrowthRolvane, f.GrowthHesperin, f.GrowthAverage, f.GoldBaseNow, f.CostRolvane,
                                f.CostDivisor, f.CostHesperin, f.CostAverage);
        words["advice"] = Line(state.advice.TierReferencePower, state.advice.PowerRatio, state.advice.AdvisedTier);
        words["file"] =
            Line(state.file.FilePower, state.file.FileExperience, state.file.FileGrowth, state.file.FileGold);
        words["creature"] = state.CreatureName;
        words["file is loaded"] = state.CreatureFileLoaded ? "yes" : "no";
        words["ability asked for"] = Line(state.AbilityInfoIndex);
        words["language"] = Line(state.LanguageId) + ' ' + state.messages.LanguageCode;
    }
};

/// The same as lines. The file dialog's own name isn't in them.
inline QStringList Snapshot(const TestProgram& test) {
    auto words = WindowSnapshot(test.program).words;
    words.remove("ComDialog");
    return words.values() + test.platform.focus + test.platform.status;
}

} // namespace Hesperin
