#include "app/handlers/save_and_update.h"

#include "app/creature_in_form.h"
#include "app/standing.h"
#include "creature_files/document.h"
#include "creature_files/scanning.h"
#include "creature_files/update_plan.h"
#include "creature_files/writer.h"
#include "localisation/error_text.h"
#include "system/backups.h"
#include "system/file_place.h"
#include "system/read_file.h"
#include "system/save_file.h"
#include "text/blanks.h"
#include "text/fill.h"
#include "text/numbers.h"
#include "text/shortened.h"

#include <QDir>
#include <QFileInfo>

namespace Hesperin {

namespace {

/// Why the composed text must not replace a file: the reader refuses it, or finds another name in
/// it. Plain values, which most are, can't be misread, and aren't read again.
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

Error Saving(const QString& path, Error error) {
    error.file = path;
    error.doing = Error::Doing::Saving;
    return error;
}

void TellNotes(Program& program, const QString& path, const SaveOutcome& outcome) {
    const Messages& messages = program.state.messages;
    if (!outcome.notes.empty())
        program.Warn(BoxIcon::Information,
                     Fill(messages.MsgSavedBut, {path, NotesText(messages, outcome.notes)}));
}

QString BackupFolder(const Program& program) {
    return program.platform.DataFolder() + QLatin1String("/backups");
}

/// Keeps the old bytes of a file, once in a run. What comes in the way is told.
void BackUp(Program& program, const QString& path, const QByteArray& bytes) {
    QStringList& done = program.state.backedUp;
    const QString place = FilePlace(path);
    if (done.contains(place))
        return;
    if (const auto failure = KeepBackup(BackupFolder(program), path, bytes))
        program.Warn(BoxIcon::Information, Fill(program.state.messages.MsgNoCopy,
                                                {ErrorReason(program.state.messages, *failure)}));
    else
        done.append(place);
}

enum class Replacing : std::uint8_t { Goes, Updates, Cancelled };

bool IsOpenedFile(const Program& program, const QString& path) {
    const auto& baseline = program.state.baseline;
    return baseline && FilePlace(path) == FilePlace(baseline->path);
}

/// Where Save would replace a file: asks whether it may, telling what would be lost. Keeps a copy
/// before it goes.
Replacing AskBeforeReplacing(Program& program, const QString& path, const QByteArray& composed) {
    if (!QFileInfo(path).isFile())
        return Replacing::Goes; // or the save tells why it can't
    const auto old = ReadFile(path, LargestCreatureFile);
    const Messages& messages = program.state.messages;
    const bool isOpened = IsOpenedFile(program, path);
    QStringList lines{Fill(messages.MsgReplace, {path})};
    if (old) { // else it is larger than any creature file, or may not be read
        if (isOpened && program.state.baseline->bytes != *old)
            lines.append(messages.MsgReplaceChanged);
        if (const QStringList lost = LostBySave(*old, composed); !lost.isEmpty())
            lines.append(Fill(messages.MsgReplaceLoses, {lost.join(QLatin1String(", "))}));
        lines.append(
            Fill(messages.MsgReplaceCopy, {QDir::toNativeSeparators(BackupFolder(program))}));
    }
    QStringList buttons{messages.MsgReplaceIt, messages.MsgCancel};
    if (isOpened)
        buttons.prepend(messages.MsgUpdateIt);
    const int replace = isOpened ? 1 : 0;
    const int answer = program.platform.Ask({messages.MsgReplaceTitle, lines.join(u'\n'), buttons,
                                             replace + 1, replace + 1, replace, true});
    if (answer < replace)
        return Replacing::Updates;
    if (answer > replace)
        return Replacing::Cancelled;
    if (old)
        BackUp(program, path, *old);
    return Replacing::Goes;
}

QString ChangesText(const Messages& messages, const QString& path, const UpdatePlan& plan) {
    const QString arrow = QString::fromUtf16(u" \u2192 ");
    const QString nothing = QString::fromUtf16(u"\u2014");
    QStringList lines;
    for (const FileChange& change : plan.file.Changes())
        lines.append(change.element + QLatin1String(": ") + change.old.value_or(nothing) + arrow +
                     change.now.value_or(nothing));
    QString text =
        Fill(messages.MsgUpdateChanges, {QDir::toNativeSeparators(path), lines.join(u'\n')});
    QStringList left;
    for (const LeftAlone& element : plan.leftAlone)
        left.append(
            QStringLiteral("%1 %2 (%3)").arg(element.element, element.inFile, element.inWindow));
    if (!left.isEmpty())
        text += QLatin1String("\n\n") +
                Fill(messages.MsgUpdateLeftAlone, {left.join(QLatin1String(", "))});
    if (plan.nameChanged)
        text += QLatin1String("\n\n") + messages.MsgUpdateName;
    return text;
}

Error ConflictError(const Messages& messages, const std::vector<UpdateConflict>& conflicts) {
    QStringList lines;
    for (const UpdateConflict& conflict : conflicts)
        lines.append(Fill(messages.MsgUpdateConflict,
                          {conflict.element, conflict.opened, conflict.onDisk, conflict.wanted}));
    return {Error::What::Conflict, lines.join(u'\n')};
}

} // namespace

void ShowFilePage(MainForm& form) {
    form.Tablus.At(Page::File).SetCaption(WithoutSpaces(form.ComDialog.FileName));
    form.Tablus.At(Page::File).Switch(true);
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
    dialog.DefaultExtension = QStringLiteral("xdb");
    if (!program.platform.ShowSaveDialog(dialog)) {
        dialog.FileName = lastName;
        return {};
    }
    const CreatureText composed =
        BuildCreatureText(TakeCreature(program), name,
                          AverageOf(state.figures.GrowthHesperin, state.figures.GrowthRolvane));
    switch (AskBeforeReplacing(program, dialog.FileName, CreatureFileBytes(composed.text))) {
    case Replacing::Cancelled:
        dialog.FileName = lastName;
        return {};
    case Replacing::Updates:
        return mnuUpdate_Click(program);
    case Replacing::Goes:
        break;
    }
    state.CreatureName = name;
    form.RTBData.SetText(composed.text);
    const SaveOutcome outcome = WriteComposed(composed, name, dialog.FileName);
    ShowFilePage(form);
    if (outcome.failure)
        return program.Refuse(Saving(dialog.FileName, *outcome.failure));
    SetBaseline(program, CreatureFileBytes(composed.text));
    TellNotes(program, dialog.FileName, outcome);
    return {};
}

Failure mnuUpdate_Click(Program& program) {
    if (!program.state.baseline)
        return {};
    const Messages& messages = program.state.messages;
    const SharedState::Baseline& baseline = *program.state.baseline;
    const QString path = baseline.path;
    const auto onDisk = ReadFile(path, LargestCreatureFile);
    if (!onDisk)
        return program.Refuse(Saving(path, onDisk.Why()));
    const auto plan = PlanUpdate(baseline.bytes, baseline.creature, TakeCreature(program), *onDisk);
    if (!plan)
        return program.Refuse(Saving(path, plan.Why()));
    if (!plan->conflicts.empty())
        return program.Refuse(Saving(path, ConflictError(messages, plan->conflicts)));
    if (plan->file.Changes().empty()) {
        program.Warn(
            BoxIcon::Information,
            messages.MsgUpdateNothing +
                (plan->nameChanged ? QLatin1String("\n\n") + messages.MsgUpdateName : QString()));
        return {};
    }
    const auto edited = plan->file.Write();
    if (!edited)
        return program.Refuse(Saving(path, edited.Why()));
    constexpr int write = 0;
    constexpr int cancel = 1;
    if (program.platform.Ask({messages.MsgUpdateTitle,
                              ChangesText(messages, path, *plan),
                              {messages.MsgWrite, messages.MsgCancel},
                              write,
                              cancel,
                              write}) != write)
        return {};
    BackUp(program, path, *onDisk);
    const SaveOutcome outcome = SaveFile(path, *edited);
    if (outcome.failure)
        return program.Refuse(Saving(path, *outcome.failure));
    program.form.ComDialog.FileName = path;
    program.form.RTBData.SetText(*NormaliseCreature(*edited));
    ShowFilePage(program.form);
    SetBaseline(program, *edited);
    TellNotes(program, path, outcome);
    return {};
}

void SetBaseline(Program& program, const QByteArray& bytes) {
    program.state.baseline = {program.form.ComDialog.FileName, bytes, TakeCreature(program)};
    program.form.mnuUpdate.SetEnabled(true);
    FollowResults(program);
}

void ForgetBaseline(Program& program) {
    program.state.baseline.reset();
    program.form.mnuUpdate.SetEnabled(false);
    FollowResults(program);
}

} // namespace Hesperin
