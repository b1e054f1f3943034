// A long play at random: whatever the user does, the window shows the state of its controls, what
// must hold holds, and the program ends in order.
#include "support/invariants.h"
#include "support/repetitions.h"
#include "window/agreement.h"

#include <random>

namespace Hesperin {

namespace {

class Player {
public:
    Player(WindowInUse& played, unsigned seed) : use(played), random(seed) {
        use.Write("damaged.xdb", "<Creature><Exp>");
    }

    /// Does one thing that a user could do now. Tells what it changed and shouldn't have.
    QString Act() {
        const int kind = Below(40);
        if (const int page = Below(5); kind < 4 && use.Bar().isTabVisible(page))
            use.ShowPage(page);
        else if (kind < 30)
            return ClickOnThePage();
        else if (kind < 36)
            return TypeOrChoose();
        else if (kind < 38)
            use.Press(One<QString>({"cmdCalc", "cmdRAP", "cmdRAA", "cmdRAS", "cmdResetAll"}));
        else
            PickAnEntry();
        return {};
    }

    int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random); }

private:
    template <typename T>
    T One(const QList<T>& choices) {
        return choices[Below(static_cast<int>(choices.size()))];
    }

    QStringList Controls(const QString& except = {}) const {
        QStringList shown;
        for (const Control* control : use.form.Controls())
            if (control->Name() != except && control != &use.form.mnuUndo && control != &use.form.mnuRedo)
                shown.append(control->Name() + (control->Enabled() ? " on " : " off ") + control->Shown());
        return shown;
    }

    /// Clicks on a box or an option of a selector; nothing may change when it is disabled.
    QString Click(const QString& array, int index) {
        const QString name = QString("%1(%2)").arg(array).arg(index);
        const bool usable = use.form.Find(name)->Usable();
        const QStringList before = usable ? QStringList() : Controls();
        if (array.startsWith('s'))
            use.ClickOption(name, Below(5));
        else
            use.ClickBox(name);
        return usable || Controls() == before ? QString() : name + " is disabled and was operated";
    }

    /// A box or an option of a selector of the page in front, enabled or not.
    QString ClickOnThePage() {
        const int page = use.Bar().currentIndex();
        const bool selector = Below(3) == 0;
        if (page == 1 && Below(20) == 0)
            return AskAboutAnAbility();
        if (page == 1)
            return Click("Abilities", 1 + Below(174));
        if (page == 2)
            return Click(selector ? "soq" : "Spells", 1 + Below(91));
        if (page == 3)
            return Click(selector ? "saz" : "Specabilities", Below(55));
        use.ShowPage(One<int>({1, 3}));
        return {};
    }

    /// A secondary window opens, locks the main window, and closes again.
    QString AskAboutAnAbility() {
        use.ClickBox(QString("Abilities(%1)").arg(1 + Below(174)), Qt::RightButton);
        if (use.form.frmMain.Enabled())
            return "the ability window does not lock the main window";
        use.Second()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        use.ComeForward();
        return use.form.frmMain.Enabled() ? "" : "the main window stays locked";
    }

    /// Types into a field, which may change nothing else, or chooses in a list, which may.
    QString TypeOrChoose() {
        use.ShowPage(0);
        const QString name =
            One<QString>({"txtNC", "txtAttack", "txtDefence", "txtMinDam", "txtMaxDam", "txtHealth", "txtMana",
                          "txtShots", "txtPower", "txtGemf", "ComboTier", "ComboSpeed", "ComboInitiative",
                          "ComboFaction", "ComboFME", "ComboSME", "ComboUpgrade", "ComboTTC", "ComboRange"});
        if (!use.form.Find(name)->Usable())
            return {};
        use.Focus(name);
        const QStringList others = Controls(name);
        if (name.startsWith('C'))
            return use.Key(One<Qt::Key>({Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End})), QString();
        use.Press(name);
        use.Keys(QByteArray::number(Below(1000)) + "Ab");
        return Controls(name) == others ? "" : "typing into " + name + " changes another control";
    }

    void PickAnEntry() {
        use.ComeForward();
        const int kind = Below(10);
        use.answers.paths = {use.Path(kind == 1 ? "damaged.xdb" : "Creature_200.xdb")}; // for the next file dialog
        if (kind == 0)
            use.Pick({"mnuFile", "mnuNew"});
        else if (kind == 1 || kind == 3)
            use.Pick({"mnuFile", "mnuOpen"});
        else if (kind == 2 && use.form.mnuSave.Usable())
            use.Pick({"mnuFile", "mnuSave"});
        else if (kind >= 8)
            for (int steps = Below(9); steps >= 0; --steps)
                use.Key(Qt::CTRL | (kind == 8 ? Qt::Key_Z : Qt::Key_Y));
        else
            use.PickLanguage(One<Language>({English, Russian}));
    }

    WindowInUse& use;
    std::mt19937 random;
};

TEST(RandomPlay, TheWindowStaysInOrderAndEndsInOrder) {
    constexpr int actions = Repetitions(10'000);
    constexpr int plays = 20;
    constexpr int paintedPlay = 10; // every tenth; painting takes most of the time
    constexpr int betweenChecks = 250;
    qsizetype boxes = 0;
    for (unsigned seed = 1; seed <= plays; ++seed) {
        WindowInUse use;
        use.window->setUpdatesEnabled(seed % paintedPlay == 0);
        Player player(use, seed);
        const int untilTheEnd = actions / plays - player.Below(betweenChecks);
        for (int action = 1; action <= untilTheEnd + betweenChecks / 2; ++action) {
            ASSERT_EQ(player.Act(), "") << "action " << action << " of play " << seed;
            ASSERT_EQ(BrokenInvariant(use.program), "") << "after action " << action << " of play " << seed;
            boxes += std::exchange(use.answers.told, {}).size();
            ASSERT_EQ(action % betweenChecks == 0 ? Disagreements(use) : "", "")
                << "after action " << action << " of play " << seed;
        }
        for (const bool yes : {false, true}) {
            use.answers.yes = yes;
            ASSERT_EQ(Ends([&] { use.window->close(); }), yes) << "play " << seed;
        }
        ASSERT_EQ(ReadAll(use.Path("lang.ini")), use.state.LanguageId == English ? "EN" : "RU") << "play " << seed;
    }
    EXPECT_GT(boxes, actions / 50) << "hardly anything was calculated";
}

} // namespace

} // namespace Hesperin
