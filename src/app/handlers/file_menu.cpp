#include "app/handlers/file_menu.h"

#include "app/calculate.h"
#include "app/creature_in_form.h"
#include "app/handlers/buttons.h"
#include "app/resets.h"
#include "creature_files/document.h"
#include "creature_files/writer.h"
#include "localisation/error_text.h"
#include "localisation/language_file.h"
#include "localisation/titles.h"
#include "reports/reading_text.h"
#include "system/save_file.h"
#include "system/version_record.h"
#include "text/fill.h"
#include "text/numbers.h"
#include "text/shortened.h"

namespace Hesperin {

namespace {

const QString DefaultExtension = QStringLiteral("xdb");

QString TrimBlanks(QStringView text) {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

void ShowFilePage(MainForm& form) {
    form.Tablus.At(Page::File).SetCaption(TrimBlanks(form.ComDialog.FileName));
    form.Tablus.At(Page::File).Switch(true);
}

/// The number before the extension in "Creature_183.xdb"; numbers up to 179 are the game's own.
void TakeCreatureNumber(MainForm& form) {
    constexpr qsizetype numberAndExtension = 7;
    constexpr qsizetype numberLength = 3;
    constexpr double lastOfTheGame = 179;
    const QString number =
        TrimBlanks(form.ComDialog.FileName).right(numberAndExtension).left(numberLength);
    if (TextToNumber(number) > lastOfTheGame)
        form.txtIDC.SetText(number);
}

/// Why the composed text must not replace a file: the reader refuses it, or finds another name in
/// it. Plain values can't be misread, and are most of all; reading them again would make a save half
/// as long again.
Failure ReadBackFault(const CreatureText& composed, const QString& name) {
    constexpr qsizetype emptyElements = 100; // what they may grow by
    if (composed.plain && composed.text.size() < LongestCreatureText - emptyElements)
        return {};
    const auto document = NormaliseCreature(CreatureFileBytes(composed.text));
    if (!document)
        return document.Why();
    const QString read = CreatureNameIn(TextBuffer(*document)).value_or(QString());
    if (read == name)
        return {};
    return Error{Error::What::NameChanges, Shortened(read)};
}

SaveOutcome WriteComposed(const CreatureText& composed, const QString& name, const QString& path) {
    if (auto fault = ReadBackFault(composed, name))
        return {std::move(fault), {}};
    return SaveFile(path, CreatureFileBytes(composed.text));
}

/// Fills the cleared form from what was read.
void Show(Program& program, const ReadCreature& read) {
    MainForm& form = program.form;
    SetCreature(program, read.creature);
    SwitchCasterFields(form, read.creature.Has(Ability::Caster));
    SwitchShooterFields(form, read.creature.Has(Ability::Shooter));
    if (!read.spellExcerpt.isEmpty())
        form.RTBTEMP.SetText(read.spellExcerpt);
    if (!read.specabilityExcerpt.isEmpty())
        form.RTBSPEC.SetText(read.specabilityExcerpt);
    program.state.file = read.figures;
    if (read.name)
        program.state.CreatureName = *read.name;
    if (const QString odd = ReadingText(program.state.messages, read); !odd.isEmpty())
        program.Warn(BoxIcon::Information, odd);
}

} // namespace

Failure mnuNew_Click(Program& program) {
    cmdResetAll_Click(program);
    program.Warn(BoxIcon::Critical, program.state.messages.MsgEnterName);
    program.platform.SetFocus(program.form.txtNC);
    return {};
}

Failure mnuOpen_Click(Program& program) {
    FileDialog& dialog = program.form.ComDialog;
    dialog.InitialDirectory = program.platform.ProgramFolder();
    dialog.Filter = QStringLiteral("Heroes of Might and Magic V Files (*.xdb )|*.xdb");
    dialog.DefaultExtension = DefaultExtension;
    const QString lastName = dialog.FileName;
    if (!program.platform.ShowOpenDialog(dialog) || dialog.FileName.isEmpty())
        return {};
    auto failure = OpenCreatureFile(program, dialog.FileName);
    if (failure)
        dialog.FileName = lastName;
    return failure;
}

Failure OpenCreatureFile(Program& program, const QString& path) {
    const auto document = LoadCreatureDocument(path);
    if (!document)
        return program.Refuse(document.Why());
    FillFromDocument(program, *document, path);
    return {};
}

void FillFromDocument(Program& program, const QString& document, const QString& path) {
    MainForm& form = program.form;
    form.ComDialog.FileName = path;
    form.Tablus.At(Page::File).SetCaption(QString::fromUtf16(VersionRecord::Title));
    form.Tablus.At(Page::File).Switch(false);
    form.Tablus.At(Page::Spells).Switch(false);
    form.RTBData.SetText(document);
    ClearCreature(program);
    Reset_Abilities(program);
    Reset_Specabilities(program);
    Reset_Spells(program);

    Show(program, ReadCreatureText(document, TakeCreature(program)));

    form.frmMain.SetCaption(FileTitle(program.state.CreatureName, program.state.file));
    program.state.CreatureFileLoaded = true;
    program.platform.SetFocus(form.cmdCalc);
    Calculate(program);
    ShowFilePage(form);
    TakeCreatureNumber(form);
}

Failure mnuSave_Click(Program& program) {
    MainForm& form = program.form;
    SharedState& state = program.state;
    const QString name = ProperCase(form.txtNC.Text());
    if (name.isEmpty()) {
        state.CreatureName = name;
        program.Warn(BoxIcon::Critical, state.messages.MsgEnterName);
        return {};
    }
    FileDialog& dialog = form.ComDialog;
    const QString lastName = std::exchange(dialog.FileName, state.messages.DefaultFileName);
    dialog.InitialDirectory = program.platform.ProgramFolder();
    dialog.Filter = QStringLiteral("Heroes of Might and Magic V Files (*.xdb)|*.xdb");
    dialog.DefaultExtension = DefaultExtension;
    if (!program.platform.ShowSaveDialog(dialog)) {
        dialog.FileName = lastName;
        return {};
    }
    state.CreatureName = name;
    const CreatureText composed =
        BuildCreatureText(TakeCreature(program), name,
                          AverageOf(state.figures.GrowthHesperin, state.figures.GrowthRolvane));
    form.RTBData.SetText(composed.text);
    const SaveOutcome outcome = WriteComposed(composed, name, dialog.FileName);
    ShowFilePage(form);
    if (outcome.failure) {
        Error error = *outcome.failure;
        error.file = dialog.FileName;
        error.doing = Error::Doing::Saving;
        return program.Refuse(error);
    }
    if (!outcome.notes.empty())
        program.Warn(BoxIcon::Information,
                     Fill(state.messages.MsgSavedBut,
                          {dialog.FileName, NotesText(state.messages, outcome.notes)}));
    return {};
}

bool ConfirmQuit(Program& program) {
    const Messages& messages = program.state.messages;
    if (!program.platform.AskYesNo(messages.MsgQuitTitle, messages.MsgQuitQuestion))
        return false;
    WriteLanguageFile(program.platform.Places(), program.state.LanguageId);
    program.platform.EndProcess();
    return true;
}

Failure mnuQuit_Click(Program& program) {
    ConfirmQuit(program);
    return {};
}

bool Form_Unload(Program& program) {
    return ConfirmQuit(program);
}

} // namespace Hesperin
