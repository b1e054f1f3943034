#include "cli/script_actions.h"

#include "cli/output.h"
#include "cli/state_json.h"
#include "localisation/error_text.h"
#include "reports/json.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// What stands before the first blank, and all that stands behind it.
struct Words {
    QString first;
    QString rest;
    bool hasRest = false;
};

Words SplitFirst(const QString& text) {
    const qsizetype blank = text.indexOf(u' ');
    if (blank < 0)
        return {text, {}, false};
    return {text.left(blank), text.mid(blank + 1), true};
}

QString NoSuch(const char* kind, const QString& name) {
    return QStringLiteral("there is no %1 '%2'").arg(QLatin1String(kind), name);
}

QString NotNow(const Control& control) {
    return QStringLiteral("'%1' is disabled or hidden at this moment").arg(control.Name());
}

/// Runs `act` on the control of that name and kind if the user can operate it now.
template <typename T, typename Act>
QString Operate(ScriptStage& stage, const char* kind, const QString& name, Act act) {
    auto* control = dynamic_cast<T*>(stage.program.form.Find(name));
    if (control == nullptr)
        return NoSuch(kind, name);
    if (!control->Usable())
        return NotNow(*control);
    return act(*control);
}

QString Set(ScriptStage& stage, const QString& arguments) {
    const Words words = SplitFirst(arguments);
    return Operate<TextField>(stage, "field", words.first, [&](TextField& field) {
        field.Edit(words.rest);
        field.Leave();
        return QString();
    });
}

QString Keys(ScriptStage& stage, const QString& arguments) {
    const Words words = SplitFirst(arguments);
    return Operate<TextField>(stage, "field", words.first, [&](TextField& field) {
        for (const QChar key : words.rest)
            field.Type(key.unicode());
        field.Leave();
        return QString();
    });
}

QString Choose(ScriptStage& stage, const QString& arguments) {
    const Words words = SplitFirst(arguments);
    return Operate<ComboBox>(stage, "list", words.first, [&](ComboBox& list) {
        bool isNumber = false;
        const int index = words.rest.toInt(&isNumber);
        if (!isNumber || index < 0 || index >= list.Items().size())
            return QStringLiteral("'%1' has no entry '%2'; it has 0 to %3")
                .arg(list.Name(), words.rest, QString::number(list.Items().size() - 1));
        list.Select(static_cast<std::int16_t>(index));
        return QString();
    });
}

QString SetBox(ScriptStage& stage, const QString& name, bool ticked) {
    return Operate<CheckBox>(stage, "box", name, [ticked](CheckBox& box) {
        box.SetTicked(ticked);
        return QString();
    });
}

QString Tick(ScriptStage& stage, const QString& arguments) {
    return SetBox(stage, arguments, true);
}

QString Untick(ScriptStage& stage, const QString& arguments) {
    return SetBox(stage, arguments, false);
}

QString Mastery(ScriptStage& stage, const QString& arguments) {
    const Words words = SplitFirst(arguments);
    return Operate<MultiOption>(stage, "mastery selector", words.first, [&](MultiOption& selector) {
        bool isNumber = false;
        const int level = words.rest.toInt(&isNumber);
        if (!isNumber || level < 0 || level >= static_cast<int>(MultiOption::Options.size()))
            return QStringLiteral("there is no mastery '%1'; they are 0 to 4").arg(words.rest);
        selector.ClickOption(level);
        return QString();
    });
}

QString Press(ScriptStage& stage, const QString& arguments) {
    return Operate<Button>(stage, "button", arguments, [](Button& button) {
        button.Click();
        return QString();
    });
}

/// The entries that a script may pick. The others open windows or end the program.
constexpr const char* ScriptEntries[] = {"mnuNew",    "mnuOpen",    "mnuSave",
                                         "mnuUpdate", "mnuEnglish", "mnuRussian",
                                         "mnuFrench", "mnuGerman",  "mnuAlternativeMethod",
                                         "mnuUndo",   "mnuRedo",    "mnuTakeOver"};

QString Menu(ScriptStage& stage, const QString& arguments) {
    const Words words = SplitFirst(arguments);
    const bool known =
        std::any_of(std::begin(ScriptEntries), std::end(ScriptEntries),
                    [&](const char* entry) { return words.first == QLatin1String(entry); });
    if (!known)
        return NoSuch("menu entry for scripts", words.first);
    return Operate<MenuEntry>(stage, "menu entry", words.first, [&](MenuEntry& entry) {
        stage.platform.dialogPath.reset();
        if (!words.rest.isEmpty())
            stage.platform.dialogPath = words.rest;
        const Failure failure = entry.Click();
        return failure ? ErrorText(stage.program.state.messages, *failure) : QString();
    });
}

QString Show(ScriptStage& stage, const QString& arguments) {
    const Control* control = stage.program.form.Find(arguments);
    if (control == nullptr)
        return NoSuch("control", arguments);
    PrintLine(control->Shown());
    return {};
}

QString State(ScriptStage& stage, const QString&) {
    PrintLine(JsonLine(StateJson(stage.program, stage.platform)));
    stage.platform.messages.clear();
    return {};
}

struct Action {
    const char* name;
    const char* takes;
    const char* does;
    QString (*play)(ScriptStage& stage, const QString& arguments);
};

// clang-format off
constexpr Action Actions[] = {
    {"set",     "FIELD TEXT",     "replaces the text of a field, as a paste would",           Set},
    {"keys",    "FIELD TEXT",     "types at the end, through key filter and maximum length",  Keys},
    {"choose",  "LIST INDEX",     "picks an entry, from 0",                                   Choose},
    {"tick",    "BOX",            "ticks Abilities(66), Spells(46), Specabilities(9)",        Tick},
    {"untick",  "BOX",            "unticks it",                                               Untick},
    {"mastery", "SELECTOR LEVEL", "clicks option 0 to 4 of soq(46), saz(9)",                  Mastery},
    {"press",   "BUTTON",         "cmdCalc, cmdRAP, cmdRAA, cmdRAS, cmdResetAll",             Press},
    {"menu",    "ENTRY [PATH]",   "mnuNew, mnuOpen PATH, mnuSave PATH, mnuUpdate, mnuUndo, mnuRedo,\n"
                                  "                         mnuTakeOver, mnuEnglish, mnuRussian, mnuAlternativeMethod", Menu},
    {"show",    "NAME",           "prints the text, caption or state of a control",           Show},
    {"state",   "",               "prints the whole state, and the boxes shown, as JSON",     State},
};
// clang-format on

} // namespace

QString ActionsHelp() {
    QString help;
    for (const Action& action : Actions)
        help += QStringLiteral("  %1 %2 %3\n")
                    .arg(QLatin1String(action.name), -7)
                    .arg(QLatin1String(action.takes), -14)
                    .arg(QLatin1String(action.does));
    return help;
}

QString PlayLine(ScriptStage& stage, const QString& line) {
    const Words words = SplitFirst(line);
    for (const Action& action : Actions)
        if (words.first == QLatin1String(action.name))
            return action.play(stage, words.rest);
    return NoSuch("action", words.first);
}

} // namespace Hesperin
