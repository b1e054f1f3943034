#include "app/history.h"

#include "app/program.h"
#include "app/standing.h"
#include "localisation/captions.h"
#include "text/fill.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// What the user reads on the control, or around it.
QString NameOf(const MainForm& form, const Control& control) {
    if (&control == &form.frmMain) // onto which a file fell
        return NameOf(form, form.mnuOpen);
    if (control.ArrayName() == form.soq(1).ArrayName())
        return form.Spells(control.ArrayIndex()).Caption();
    if (control.ArrayName() == form.saz(1).ArrayName())
        return form.Specabilities(control.ArrayIndex()).Caption();
    const auto* captioned = dynamic_cast<const Captioned*>(&control);
    if (captioned == nullptr)
        captioned = dynamic_cast<const Captioned*>(control.Parent());
    QString name = captioned == nullptr ? QString() : captioned->Caption().trimmed();
    while (name.endsWith(u'.'))
        name.chop(1);
    return name;
}

} // namespace

void History::Begin(const Control& what, Act kind) {
    if (depth++ > 0)
        return;
    if (kind != Act::Editing || edited != &what)
        edited = nullptr;
    act = kind;
    control = &what;
    if (act == Act::Aside)
        return;
    before = TakeWindowState(program);
    fileBefore = TakeFilePart(program);
    creatureBefore = program.state.creatureNumber;
}

void History::End() {
    if (--depth > 0)
        return;
    if (act != Act::Aside)
        KeepStep();
    ShowEntries();
    if (follower)
        follower();
}

void History::KeepStep() {
    SharedState& state = program.state;
    WindowState now = TakeWindowState(program);
    const bool fileStays = TakeFilePart(program) == fileBefore;
    if (now.LooksLike(before) && fileStays) {
        state.creatureNumber = creatureBefore;
        if (!undone.empty())
            undone.back().before = now; // results may have been stored anew
        if (!done.empty())
            done.back().after = std::move(now);
        return;
    }
    if (edited != nullptr) { // the step is there already
        done.back().after = std::move(now);
        if (done.back().after.LooksLike(done.back().before)) {
            done.pop_back();
            undone = std::move(beforeEdit);
            edited = nullptr;
        }
        return;
    }
    beforeEdit.clear();
    undone.swap(beforeEdit);
    if (state.creatureNumber != creatureBefore)
        files[creatureBefore] = Pack(std::move(fileBefore));
    done.push_back(
        {control, std::move(before), std::move(now), creatureBefore, state.creatureNumber});
    if (done.size() > Depth)
        done.pop_front();
    if (act == Act::Editing)
        edited = control;
    else
        beforeEdit.clear();
    ForgetFiles();
}

/// Those of creatures that no step leads to any more.
void History::ForgetFiles() {
    std::erase_if(files, [this](const auto& file) {
        const auto leadsBack = [&](const Step& step) { return step.creatureBefore == file.first; };
        const auto leadsOn = [&](const Step& step) { return step.creatureAfter == file.first; };
        return std::none_of(done.begin(), done.end(), leadsBack) &&
               std::none_of(beforeEdit.begin(), beforeEdit.end(), leadsOn);
    });
}

void History::Undo() {
    edited = nullptr;
    if (done.empty())
        return;
    Step& last = undone.emplace_back(std::move(done.back()));
    done.pop_back();
    last.after.creatureName = program.state.CreatureName; // a save may have given it since
    Go(last.before, last.creatureBefore);
}

void History::Redo() {
    edited = nullptr;
    if (undone.empty())
        return;
    const Step& last = done.emplace_back(std::move(undone.back()));
    undone.pop_back();
    Go(last.after, last.creatureAfter);
}

void History::Go(const WindowState& state, std::uint32_t creature) {
    std::uint32_t& shown = program.state.creatureNumber;
    if (shown != creature) {
        files[shown] = Pack(TakeFilePart(program));
        SetFilePart(program, Unpack(files[creature]));
        files.erase(creature);
        shown = creature;
    }
    SetWindowState(program, state);
    FollowResults(program);
}

void History::ShowEntries() {
    MainForm& form = program.form;
    const Messages& messages = program.state.messages;
    ShowEntry(form.mnuUndo, done.empty() ? nullptr : done.back().control, messages.MsgUndoStep);
    ShowEntry(form.mnuRedo, undone.empty() ? nullptr : undone.back().control, messages.MsgRedoStep);
}

void History::ShowEntry(MenuEntry& entry, const Control* step, const QString& words) {
    const QString caption = step == nullptr || words.isEmpty()
                                ? CaptionIn(program.state.LanguageId, entry.ArrayName())
                                : Fill(words, {NameOf(program.form, *step)});
    if (!caption.isEmpty())
        entry.SetCaption(caption);
    entry.SetEnabled(step != nullptr);
}

} // namespace Hesperin
