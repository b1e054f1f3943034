#include "cli/state_json.h"

#include "form/form_lists.h"
#include "reports/json.h"

namespace Hesperin {

namespace {

QJsonObject FieldTexts(const MainForm& form) {
    QJsonObject texts;
    for (const Control* control : form.Controls())
        if (const auto* field = dynamic_cast<const TextField*>(control))
            texts.insert(field->Name(), field->Text());
    return texts;
}

QJsonObject Lists(const MainForm& form) {
    QJsonObject lists;
    for (const Control* control : form.Controls())
        if (const auto* list = dynamic_cast<const ComboBox*>(control))
            lists.insert(list->Name(),
                         QJsonObject{{"index", list->Index()}, {"text", list->Text()}});
    return lists;
}

QJsonObject Labels(const MainForm& form) {
    QJsonObject labels;
    for (const ResultRow& row : ResultRows) {
        const Label& label = form.*row.place.label;
        labels.insert(label.Name(), label.Caption());
    }
    return labels;
}

QJsonArray Ticked(const MainForm& form) {
    QJsonArray indices;
    for (const CheckBox& box : form.Abilities)
        if (box.Ticked())
            indices.append(box.ArrayIndex());
    return indices;
}

template <typename Boxes, typename Selectors>
QJsonObject Masteries(const Boxes& boxes, const Selectors& selectors) {
    QJsonObject masteries;
    for (const CheckBox& box : boxes)
        if (box.Ticked())
            masteries.insert(QString::number(box.ArrayIndex()),
                             selectors(box.ArrayIndex()).Value());
    return masteries;
}

QJsonObject EnabledFlags(const MainForm& form) {
    QJsonObject flags;
    const std::initializer_list<const Control*> controls{
        &form.mnuSave,  &form.cmdRAS,     &form.txtMana,    &form.FrameMana,
        &form.txtShots, &form.FrameShots, &form.ComboRange, &form.FrameRange};
    for (const Control* control : controls)
        flags.insert(control->Name(), control->Enabled());
    return flags;
}

} // namespace

QJsonObject StateJson(const Program& program, const CliPlatform& platform) {
    const MainForm& form = program.form;
    const SharedState& state = program.state;
    QJsonArray pages;
    QJsonArray captions;
    for (const TabPage& page : form.Tablus.Tab) {
        pages.append(page.On());
        captions.append(page.Caption());
    }
    return {
        {"title", form.frmMain.Caption()},
        {"language", state.LanguageId},
        {"texts", FieldTexts(form)},
        {"lists", Lists(form)},
        {"labels", Labels(form)},
        {"abilities", Ticked(form)},
        {"spells", Masteries(form.Spells, form.soq)},
        {"specabilities", Masteries(form.Specabilities, form.saz)},
        {"enabled", EnabledFlags(form)},
        {"pages", pages},
        {"page_captions", captions},
        {"calculate_tooltip", form.cmdCalc.ToolTip()},
        {"counter", state.SpellPoints1Count},
        {"flag", state.SpecabilityFlag},
        {"creature", state.CreatureName},
        {"loaded", state.CreatureFileLoaded},
        {"file", QJsonObject{{"power", state.file.FilePower},
                             {"experience", state.file.FileExperience},
                             {"growth", state.file.FileGrowth},
                             {"gold", state.file.FileGold}}},
        {"focus", platform.focus},
        {"messages", MessagesJson(platform.messages)},
    };
}

} // namespace Hesperin
