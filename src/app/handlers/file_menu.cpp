#include "creature_files/file_commands.h"

#include "catalogues/resets.h"
#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "creature_files/scanning.h"
#include "creature_files/writer.h"
#include "engine/calculate.h"
#include "engine/clear_creature.h"
#include "engine/numbers.h"
#include "form/version_record.h"
#include "localisation/obstacle_text.h"
#include "localisation/string_tables.h"
#include "platform/save_file.h"
#include "platform/shortened.h"

namespace Hesperin {

namespace {

QString TrimBlanks(QStringView text) {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

void ShowFilePage(MainForm& form) {
    form.Tablus.Tab(4).SetCaption(TrimBlanks(form.ComDialog.FileName));
    form.Tablus.Tab(4).Switch(true);
}

/// The same words in every language, until Calculate writes its summary.
void ShowFileFigures(Program& program) {
    const SharedState& state = program.state;
    program.form.frmMain.SetCaption(VersionRecord::TitleAndVersion() +
                                    QLatin1String(" [Creature: ") + state.CreatureName +
                                    QStringLiteral(", Power=%1, Experience=%2, Growth=%3, Cost=%4]")
                                        .arg(state.FilePower)
                                        .arg(state.FileExperience)
                                        .arg(state.FileGrowth)
                                        .arg(state.FileGold));
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
/// it. Empty: neither. Plain values can't be misread, and are most of all; reading them again would
/// make a save half as long again.
QString ReadBackFault(const SharedState& state, const CreatureText& composed) {
    constexpr qsizetype emptyElements = 100; // what they may grow by
    if (composed.plain && composed.text.size() < LongestCreatureText - emptyElements)
        return {};
    const auto document = NormaliseCreature(CreatureFileBytes(composed.text));
    if (const auto* problem = std::get_if<OpenProblem>(&document))
        return OpenProblemReason(state, *problem);
    ControlRegistry registry;
    TextBuffer buffer(registry, "composed");
    buffer.SetText(std::get<QString>(document));
    const QString name = CreatureNameIn(buffer).value_or(QString());
    return name == state.CreatureName ? QString() : Fill(state.MsgNameChanges, {Shortened(name)});
}

/// Writes the composed text. Gives why it could not, or empty; `notes` is for a save that stands.
QString WriteComposed(const SharedState& state, const CreatureText& composed, const QString& path,
                      QString& notes) {
    if (QString fault = ReadBackFault(state, composed); !fault.isEmpty())
        return fault;
    const SaveOutcome outcome = SaveFile(path, CreatureFileBytes(composed.text));
    if (outcome.obstacle)
        return ObstacleText(state, *outcome.obstacle);
    notes = NotesText(state, outcome.notes);
    return {};
}

} // namespace

void mnuNew_Click(Program& program) {
    cmdResetAll_Click(program);
    program.Warn(BoxIcon::Critical, program.state.MsgEnterName);
    program.platform.SetFocus(program.form.txtNC);
}

void mnuOpen_Click(Program& program) {
    FileDialog& dialog = program.form.ComDialog;
    dialog.InitialDirectory = program.platform.ProgramFolder();
    dialog.Filter = QStringLiteral("Heroes of Might and Magic V Files (*.xdb )|*.xdb");
    dialog.DefaultExtension = QStringLiteral("xdb");
    const QString lastName = dialog.FileName;
    if (program.platform.ShowOpenDialog(dialog) && !dialog.FileName.isEmpty() &&
        !OpenCreatureFile(program, dialog.FileName))
        dialog.FileName = lastName;
}

bool OpenCreatureFile(Program& program, const QString& path) {
    program.failure.clear();
    const auto document = LoadCreatureDocument(path);
    if (const auto* problem = std::get_if<OpenProblem>(&document)) {
        program.failure = OpenProblemText(program.state, path, *problem);
        program.Warn(BoxIcon::Critical, program.failure);
        return false;
    }
    FillFromDocument(program, std::get<QString>(document), path);
    return true;
}

void FillFromDocument(Program& program, const QString& document, const QString& path) {
    MainForm& form = program.form;
    form.ComDialog.FileName = path;
    form.Tablus.Tab(4).SetCaption(QString::fromUtf16(VersionRecord::Title));
    form.Tablus.Tab(4).Switch(false);
    form.Tablus.Tab(2).Switch(false);
    form.RTBData.SetText(document);
    ClearCreature(program);
    Reset_Abilities(program);
    Reset_Specabilities(program);
    Reset_Spells(program);

    ScanCreature(program);

    ShowFileFigures(program);
    program.state.CreatureFileLoaded = true;
    program.platform.SetFocus(form.cmdCalc);
    Calculate(program);
    ShowFilePage(form);
    TakeCreatureNumber(form);
}

void mnuSave_Click(Program& program) {
    MainForm& form = program.form;
    SharedState& state = program.state;
    program.failure.clear();
    const QString name = ProperCase(form.txtNC.Text());
    if (name.isEmpty()) {
        state.CreatureName = name;
        program.Warn(BoxIcon::Critical, state.MsgEnterName);
        return;
    }
    FileDialog& dialog = form.ComDialog;
    const QString lastName = std::exchange(dialog.FileName, state.DefaultFileName);
    dialog.InitialDirectory = program.platform.ProgramFolder();
    dialog.Filter = QStringLiteral("Heroes of Might and Magic V Files (*.xdb)|*.xdb");
    dialog.DefaultExtension = QStringLiteral("xdb");
    if (!program.platform.ShowSaveDialog(dialog)) {
        dialog.FileName = lastName;
        return;
    }
    state.CreatureName = name;
    const CreatureText composed = BuildCreatureText(program, name);
    form.RTBData.SetText(composed.text);
    QString notes;
    const QString fault = WriteComposed(state, composed, dialog.FileName, notes);
    ShowFilePage(form);
    if (!fault.isEmpty()) {
        program.failure = Fill(state.MsgSaveFailed, {dialog.FileName, fault});
        program.Warn(BoxIcon::Critical, program.failure);
    } else if (!notes.isEmpty()) {
        program.Warn(BoxIcon::Information, Fill(state.MsgSavedBut, {dialog.FileName, notes}));
    }
}

} // namespace Hesperin
