#include "app/handlers/file_menu.h"

#include "app/calculate.h"
#include "app/creature_in_form.h"
#include "app/handlers/buttons.h"
#include "app/handlers/save_and_update.h"
#include "app/resets.h"
#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "localisation/language_file.h"
#include "localisation/titles.h"
#include "reports/reading_text.h"
#include "system/version_record.h"
#include "text/blanks.h"
#include "text/numbers.h"

namespace Hesperin {

namespace {

/// The number before the extension in "Creature_183.xdb"; numbers up to 179 are the game's own.
void TakeCreatureNumber(MainForm& form) {
    constexpr qsizetype numberAndExtension = 7;
    constexpr qsizetype numberLength = 3;
    constexpr double lastOfTheGame = 179;
    const QString number =
        WithoutSpaces(form.ComDialog.FileName).right(numberAndExtension).left(numberLength);
    if (TextToNumber(number) > lastOfTheGame)
        form.txtIDC.SetText(number);
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
    dialog.DefaultExtension = QStringLiteral("xdb");
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
    ShowDocument(program, *document, path);
    return {};
}

void ShowDocument(Program& program, const CreatureDocument& document, const QString& path) {
    MainForm& form = program.form;
    program.state.BeginCreature();
    form.ComDialog.FileName = path;
    form.Tablus.At(Page::File).SetCaption(QString::fromUtf16(VersionRecord::Title));
    form.Tablus.At(Page::File).Switch(false);
    form.Tablus.At(Page::Spells).Switch(false);
    form.RTBData.SetText(document.text);
    ClearCreature(program);
    Reset_Abilities(program);
    Reset_Specabilities(program);
    Reset_Spells(program);

    Show(program, ReadCreatureText(document.text, TakeCreature(program)));

    form.frmMain.SetCaption(FileTitle(program.state.CreatureName, program.state.file));
    program.state.CreatureFileLoaded = true;
    program.platform.SetFocus(form.cmdCalc);
    Calculate(program);
    ShowFilePage(form);
    TakeCreatureNumber(form);
    SetBaseline(program, document.bytes);
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
