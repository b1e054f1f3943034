// Undo and Redo: what a script does goes back and comes again, step by step.
#include "app/handlers/form_load.h"
#include "app/history.h"
#include "cli/script_actions.h"
#include "cli/state_json.h"
#include "form/form_lists.h"
#include "support/cases_file.h"
#include "support/repetitions.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <memory>
#include <random>

namespace Hesperin {

namespace {

struct PlatformInFolder : CliPlatform {
    QString ProgramFolder() const override { return "."; }
    QString DataFolder() const override { return "data"; }
};

/// A program that plays lines in a folder of its own, which is the current one meanwhile.
struct Stage {
    explicit Stage(std::uint8_t language = English) {
        QDir::setCurrent(folder.path());
        Form_Load(program, {language, false});
        const QByteArray creature = ReadAll(TALMIR_SOURCE_DIR "/tests/data/scripts/Creature_200.xdb");
        WriteFile("Creature_200.xdb", creature);
        WriteFile("a.xdb", QByteArray(creature).replace("<Health>40", "<Health>50"));
    }
    ~Stage() { QDir::setCurrent(home); }

    QString Play(const QString& line) {
        ScriptStage stage{program, platform};
        return PlayLine(stage, line);
    }

    const QString home = QDir::currentPath();
    QTemporaryDir folder;
    PlatformInFolder platform;
    Program program{platform};
};

/// What goes back: all that `state` prints but focus, messages and language, and the stored results.
struct Kept {
    explicit Kept(const Stage& stage)
        : shown(StateJson(stage.program, stage.platform)), state(stage.program.state),
          file(stage.program.form.RTBData.Text() + stage.program.form.RTBTEMP.Text()) {
        for (const char* word : {"focus", "messages", "language"})
            shown.remove(word);
    }
    bool LooksLike(const Kept& other) const {
        return shown == other.shown && file == other.file && state.baseline == other.state.baseline;
    }
    bool operator==(const Kept& other) const {
        return LooksLike(other) && state.parameters == other.state.parameters &&
               state.exponents == other.state.exponents && state.powers == other.state.powers &&
               state.figures == other.state.figures && state.advice == other.state.advice &&
               state.corrections == other.state.corrections && state.UpgradeFactor == other.state.UpgradeFactor &&
               state.AbilityCurrentValue == other.state.AbilityCurrentValue;
    }

    QJsonObject shown;
    SharedState state;
    QString file;
};

std::string Difference(const Kept& first, const Kept& second) {
    QStringList lines;
    for (const QString& key : first.shown.keys())
        if (first.shown[key] != second.shown[key])
            lines.append(key + ": " + QJsonDocument(QJsonArray{first.shown[key], second.shown[key]}).toJson());
    return lines.join('\n').toStdString();
}

/// One thing that a user may do now or not.
QString AnyLine(const MainForm& form, std::mt19937& random) {
    const auto below = [&](std::size_t end) { return static_cast<int>(random() % end); };
    const auto one = [&](const QStringList& words) { return words[below(static_cast<std::size_t>(words.size()))]; };
    const auto numbered = [&](const char* array, int last) {
        return QString("%1(%2)").arg(array).arg(1 + below(last));
    };
    const QString number = QString::number(below(60));
    switch (below(10)) {
    case 0:
        return one({"set ", "keys "}) + (form.*NumberFields.items[below(NumberFields.items.size())]).Name() + ' ' +
               number;
    case 1:
        return one({"set txtNC ", "keys txtNC "}) + one({"a", "Wyrm", "dark_guard", ""});
    case 2: {
        const ComboBox& list = form.*ListFields.items[below(ListFields.items.size())];
        return "choose " + list.Name() + ' ' +
               QString::number(below(static_cast<std::size_t>(list.Items().size() + 1)));
    }
    case 3:
        return one({"tick ", "untick "}) + one({"Abilities(29)", "Abilities(65)", "Abilities(147)", "Abilities(111)"});
    case 4:
        return one({"tick ", "untick "}) + numbered("Abilities", 174);
    case 5:
        return one({"tick ", "untick "}) + one({numbered("Spells", 91), numbered("Specabilities", 54)});
    case 6:
        return "mastery " + one({numbered("soq", 91), numbered("saz", 54)}) + ' ' + QString::number(below(5));
    case 7:
        return "press " + one({"cmdCalc", "cmdCalc", "cmdRAP", "cmdRAA", "cmdRAS", "cmdResetAll"});
    case 8:
        return "menu " + one({"mnuNew", "mnuOpen", "mnuOpen a.xdb", "mnuOpen Creature_200.xdb", "mnuOpen nowhere.xdb"});
    default:
        return one({"menu mnuUndo", "menu mnuUndo", "menu mnuRedo"});
    }
}

TEST(Undo, GoesBackAndForthThroughEveryState) {
    for (unsigned seed = 1; seed <= Repetitions(5U); ++seed) {
        Stage stage(seed % 2 == 0 ? Russian : English);
        std::mt19937 random(seed);
        std::vector<Kept> states{Kept(stage)};
        std::size_t at = 0;
        std::size_t deepest = 0;
        for (int step = 0; step < 1500; ++step) {
            // Phases in which most goes back, and in which nothing does.
            const QString line = step % 500 > 430 ? "menu mnuUndo" : AnyLine(stage.program.form, random);
            if (step % 500 > 200 && step % 500 <= 430 && line.contains("mnuUndo"))
                continue;
            SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step << ' ' << line.toStdString());
            const QString refusal = stage.Play(line);
            if (line == "menu mnuUndo")
                at -= refusal.isEmpty() ? 1 : 0;
            else if (line == "menu mnuRedo")
                at += refusal.isEmpty() ? 1 : 0;
            else if (const Kept now(stage); now.LooksLike(states[at])) { // no step, whatever is stored anew
                states[at] = now;
            } else {
                states.resize(++at, states[0]);
                states.push_back(now);
            }
            ASSERT_LT(at, states.size());
            const Kept now(stage);
            ASSERT_TRUE(now == states[at]) << Difference(now, states[at]);
            ASSERT_EQ(stage.program.form.mnuRedo.Enabled(), at + 1 < states.size());
            ASSERT_TRUE(stage.program.form.mnuUndo.Enabled() || at == 0 || at + History::Depth < states.size() + 1);
            deepest = std::max(deepest, at);
        }
        EXPECT_GT(deepest, 100U);
    }
}

/// Bytes that the program holds; 0 where the system doesn't tell.
qint64 MemoryHeld() {
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
    return static_cast<qint64>(mallinfo2().uordblks);
#else
    return 0;
#endif
}

TEST(Undo, TwoHundredStepsGoBackAndTakeLittleMemory) {
    Stage stage;
    const auto step = [&](int i) {
        stage.Play("menu mnuOpen " + QString(i % 2 == 0 ? "a.xdb" : "Creature_200.xdb"));
        stage.platform.messages.clear();
    };
    for (const char* name : {"a.xdb", "Creature_200.xdb"}) { // as long as the game's longest
        QByteArray more;
        for (int i = 0; i < 100; ++i)
            more += "<Visual" + QByteArray::number(i) + ">/GameMechanics/Looks/" + QByteArray::number(i * i) +
                    "</Visual" + QByteArray::number(i) + ">\n";
        WriteFile(name, ReadAll(name).replace("</Creature>", more + "</Creature>"));
    }
    for (int i = 0; i < 20; ++i)
        step(i); // so that all else that an opened file takes is there
    const qint64 before = MemoryHeld();
    for (int i = 0; i < 230; ++i)
        step(i);
    EXPECT_LT(MemoryHeld() - before, qint64{4} << 20);
    const Kept last(stage);
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(stage.Play("menu mnuUndo"), "") << i;
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(stage.Play("menu mnuRedo"), "") << i;
    EXPECT_TRUE(Kept(stage) == last) << Difference(Kept(stage), last);
}

/// Plays " ; "-parted acts. Tells refusals, boxes and what `show` and `cat` ask for.
class Session {
public:
    QString Outcome(const QString& line) {
        QString told;
        for (const QString& act : line.split(" ; ")) {
            const QString rest = act.section(' ', 1);
            if (act.startsWith("start "))
                stage.reset(), stage = std::make_unique<Stage>(rest == "RU" ? Russian : English);
            else if (act.startsWith("show "))
                told += stage->program.form.Find(rest)->Shown() + '\n';
            else if (act.startsWith("slip ")) { // a key, and back
                auto& field = dynamic_cast<TextField&>(*stage->program.form.Find(rest));
                field.Edit(field.Text() + 'x');
                field.Edit(field.Text().chopped(1));
            } else if (act.startsWith("tip "))
                told += stage->program.form.Find(rest)->ToolTip() + '\n';
            else if (act == "is")
                told += Is();
            else if (act.startsWith("health "))
                told += QString::fromUtf8(ReadAll(rest)).split('\n').filter("<Health>").value(0).trimmed() + '\n';
            else if (const QString refusal = stage->Play(act); !refusal.isEmpty())
                told += refusal + '\n';
        }
        for (const ShownMessage& box : std::exchange(stage->platform.messages, {}))
            if (!box.text.startsWith("It is recommended"))
                told += "box, " + box.title + ": " + QString(box.text).replace('\n', "\\n").left(90) + '\n';
        return told.replace(stage->folder.path(), "FOLDER");
    }

private:
    QString Is() const {
        const auto& [form, state] = std::tie(stage->program.form, stage->program.state);
        return QString("update %1, page %2 %3, loaded %4, name %5, gold %6\n")
            .arg(form.mnuUpdate.Enabled() ? "on" : "off", form.Tablus.At(Page::File).On() ? "on" : "off",
                 form.Tablus.At(Page::File).Caption())
            .arg(state.CreatureFileLoaded)
            .arg(state.CreatureName)
            .arg(state.file.FileGold);
    }

    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
};

TEST(Undo, GoesAsTold) {
    Session session;
    ExpectCases("undo/sessions.txt", [&](const QString& line) { return session.Outcome(line); });
}

} // namespace

} // namespace Hesperin
