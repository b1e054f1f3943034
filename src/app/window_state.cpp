#include "app/window_state.h"

#include "app/creature_in_form.h"
#include "localisation/titles.h"

#include <utility>

namespace Hesperin {

namespace {

/// What rules and handlers enable and disable beside the page of the spells, which goes on and off.
std::array<Control*, WindowState::SwitchCount - 1> Switched(MainForm& form) {
    return {&form.mnuSave,    &form.cmdRAS,     &form.FrameMana,  &form.txtMana,
            &form.FrameRange, &form.ComboRange, &form.FrameShots, &form.txtShots};
}

} // namespace

bool WindowState::LooksLike(const WindowState& other) const {
    return creature == other.creature && creatureName == other.creatureName &&
           languageId == other.languageId && title == other.title &&
           calculateToolTip == other.calculateToolTip && results == other.results &&
           switches == other.switches;
}

WindowState TakeWindowState(Program& program) {
    MainForm& form = program.form;
    const SharedState& state = program.state;
    WindowState taken{TakeCreature(program),
                      state.CreatureName,
                      state.LanguageId,
                      form.frmMain.Caption(),
                      form.cmdCalc.ToolTip(),
                      {},
                      {},
                      state.UpgradeFactor,
                      state.corrections,
                      state.parameters,
                      state.exponents,
                      state.powers,
                      state.figures,
                      state.advice};
    for (std::size_t row = 0; row < taken.results.size(); ++row)
        taken.results[row] = (form.*ResultRows[row].place.label).Caption();
    bool* on = taken.switches.data();
    for (const Control* control : Switched(form))
        *on++ = control->Enabled();
    *on = form.Tablus.At(Page::Spells).On();
    return taken;
}

void SetWindowState(Program& program, const WindowState& state) {
    MainForm& form = program.form;
    SharedState& current = program.state;
    SetCreature(program, state.creature);
    current.CreatureName = state.creatureName;
    current.UpgradeFactor = state.upgradeFactor;
    current.corrections = state.corrections;
    current.parameters = state.parameters;
    current.exponents = state.exponents;
    current.powers = state.powers;
    current.figures = state.figures;
    current.advice = state.advice;
    for (std::size_t row = 0; row < state.results.size(); ++row)
        (form.*ResultRows[row].place.label).SetCaption(state.results[row]);
    const bool* on = state.switches.data();
    for (Control* control : Switched(form))
        control->SetEnabled(*on++);
    form.Tablus.At(Page::Spells).Switch(*on);
    if (state.languageId == current.LanguageId) {
        form.frmMain.SetCaption(state.title);
        form.cmdCalc.SetToolTip(state.calculateToolTip);
        return;
    }
    const Messages& then = MessagesIn(state.languageId);
    form.frmMain.SetCaption(SummaryTitleIn(current.messages, then, state.title));
    QString toolTip = state.calculateToolTip;
    if (!then.MsgAverageValue.isEmpty() && toolTip.startsWith(then.MsgAverageValue))
        toolTip.replace(0, then.MsgAverageValue.size(), current.messages.MsgAverageValue);
    form.cmdCalc.SetToolTip(toolTip);
    for (const CheckBox& box : form.Abilities)
        if (box.Ticked())
            ShowCurrentValue(program, box.ArrayIndex());
}

PackedFilePart Pack(FilePart part) {
    const QByteArray text(reinterpret_cast<const char*>(part.text.constData()),
                          part.text.size() * static_cast<qsizetype>(sizeof(QChar)));
    part.text.clear();
    const QByteArray bytes =
        part.baseline ? std::exchange(part.baseline->bytes, QByteArray()) : QByteArray();
    PackedFilePart packed{std::move(part), qCompress(bytes), qCompress(text)};
    packed.bytes.squeeze();
    packed.text.squeeze();
    return packed;
}

FilePart Unpack(const PackedFilePart& packed) {
    FilePart part = packed.rest;
    const QByteArray text = qUncompress(packed.text);
    part.text = QString(reinterpret_cast<const QChar*>(text.constData()),
                        text.size() / static_cast<qsizetype>(sizeof(QChar)));
    if (part.baseline)
        part.baseline->bytes = qUncompress(packed.bytes);
    return part;
}

FilePart TakeFilePart(const Program& program) {
    const MainForm& form = program.form;
    const TabPage& page = form.Tablus.At(Page::File);
    return {form.ComDialog.FileName,
            program.state.baseline,
            program.state.CreatureFileLoaded,
            program.state.file,
            page.On(),
            page.Caption(),
            form.RTBData.Text(),
            form.RTBTEMP.Text(),
            form.RTBSPEC.Text()};
}

void SetFilePart(Program& program, const FilePart& part) {
    MainForm& form = program.form;
    TabPage& page = form.Tablus.At(Page::File);
    form.ComDialog.FileName = part.dialogName;
    program.state.baseline = part.baseline;
    form.mnuUpdate.SetEnabled(part.baseline.has_value());
    program.state.CreatureFileLoaded = part.loaded;
    program.state.file = part.figures;
    page.SetCaption(part.pageCaption);
    form.RTBData.SetText(part.text);
    page.Switch(part.pageOn);
    form.RTBTEMP.SetText(part.spellExcerpt);
    form.RTBSPEC.SetText(part.specabilityExcerpt);
}

} // namespace Hesperin
