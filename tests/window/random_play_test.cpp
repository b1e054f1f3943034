// A long play at random: whatever the user does, the window shows the state of its controls, what
// must hold holds, and the program ends in order.
#include "support/invariants.h"
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <random>

namespace Hesperin {

namespace {

class Player {
public:
    Player(WindowInUse& played, unsigned seed) : use(played), random(seed) {}

    /// Does one thing that a user could do now. Tells what it changed and shouldn't have.
    QString Act() {
        const int kind = Below(40);
        if (kind < 4)
            ShowAPage();
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
            if (control->Name() != except)
                shown.append(control->Name() + (control->Enabled() ? " on " : " off ") + control->Shown());
        return shown;
    }

    void ShowAPage() {
        const int page = Below(5);
        if (use.Find<QTabBar>("Tablus.Bar").isTabVisible(page))
            use.ShowPage(page);
    }

    /// Clicks on a control; nothing may change when it is disabled.
    template <typename Act>
    QString Click(const QString& name, Act act) {
        const bool usable = use.form.Find(name)->Usable();
        const QStringList before = usable ? QStringList() : Controls();
        act(name);
        return usable || Controls() == before ? QString() : name + " is disabled and was operated";
    }

    QString ClickBox(const QString& name) {
        return Click(name, [&](const QString& box) { use.ClickBox(box); });
    }

    QString ClickOption(const QString& name) {
        return Click(name, [&](const QString& selector) { use.ClickOption(selector, Below(5)); });
    }

    /// A box or an option of a selector of the page in front, enabled or not.
    QString ClickOnThePage() {
        const int page = use.Find<QTabBar>("Tablus.Bar").currentIndex();
        const bool selector = Below(3) == 0;
        if (page == 1 && Below(20) == 0)
            return AskAboutAnAbility();
        if (page == 1)
            return ClickBox(QString("Abilities(%1)").arg(1 + Below(174)));
        if (page == 2)
            return selector ? ClickOption(QString("soq(%1)").arg(1 + Below(91)))
                            : ClickBox(QString("Spells(%1)").arg(1 + Below(91)));
        if (page == 3)
            return selector ? ClickOption(QString("saz(%1)").arg(Below(55)))
                            : ClickBox(QString("Specabilities(%1)").arg(Below(55)));
        use.ShowPage(One<int>({1, 3}));
        return {};
    }

    /// A secondary window opens, locks the main window, and closes again.
    QString AskAboutAnAbility() {
        auto& box = use.Find(QString("Abilities(%1)").arg(1 + Below(174)));
        WindowInUse::Click(box, {8, box.height() / 2}, Qt::RightButton);
        const bool locked = !use.form.frmMain.Enabled();
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(top); dialog != nullptr && dialog->isVisible())
                dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        use.ComeForward();
        return locked && use.form.frmMain.Enabled() ? "" : "the ability window does not lock, or stay locked";
    }

    QString TypeOrChoose() {
        use.ShowPage(0);
        const QString list = One<QString>({"ComboTier", "ComboSpeed", "ComboInitiative", "ComboFaction", "ComboFME",
                                           "ComboSME", "ComboUpgrade", "ComboTTC", "ComboRange"});
        const QString field = One<QString>({"txtNC", "txtAttack", "txtDefence", "txtMinDam", "txtMaxDam", "txtHealth",
                                            "txtMana", "txtShots", "txtPower", "txtGemf"});
        if (Below(2) == 0) {
            const bool usable = use.form.Find(field)->Usable();
            WindowInUse::Click(use.Find(field));
            if (!usable)
                return {};
            const QStringList others = Controls(field);
            use.Keys(QByteArray::number(Below(1000)) + "Ab");
            return Controls(field) == others ? "" : "typing into " + field + " changes another control";
        }
        if (auto& shown = use.Find(list); shown.isEnabled()) {
            shown.setFocus();
            use.Key(One<Qt::Key>({Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}));
        }
        return {};
    }

    void PickAnEntry() {
        use.ComeForward();
        const int kind = Below(8);
        const QString file = use.Path("Creature_200.xdb");
        if (kind == 0)
            use.Pick({"mnuFile", "mnuNew"});
        else if (kind == 1)
            use.Write("damaged.xdb", "<Creature><Exp>"), Answer(use.Path("damaged.xdb")),
                use.Pick({"mnuFile", "mnuOpen"});
        else if (kind == 2 && use.form.mnuSave.Usable())
            Answer(file), use.Pick({"mnuFile", "mnuSave"});
        else if (kind == 3)
            Answer(file), use.Pick({"mnuFile", "mnuOpen"});
        else
            use.PickLanguage(One<QString>({"mnuEnglish", "mnuRussian"}));
    }

    /// The path that the next file dialog gets.
    void Answer(const QString& path) { use.answers.paths = {path}; }

    WindowInUse& use;
    std::mt19937 random;
};

/// Answers No to the question whether to end, then Yes, and tells what is out of order.
QString WrongAboutTheEnd(WindowInUse& use, Language language) {
    use.answers.yes = false;
    use.window->close();
    if (!use.window->isVisible())
        return "it ends after a No";
    use.answers.yes = true;
    constexpr int tooLate = 10'000; // milliseconds
    QTimer::singleShot(0, use.window.get(), [&use] { use.window->close(); });
    QTimer::singleShot(tooLate, use.window.get(), [] { QCoreApplication::exit(1); });
    if (QApplication::exec() != 0)
        return "it stays after a Yes";
    return ReadAll(use.Path("lang.ini")) == (language == English ? "EN" : "RU") ? "" : "lang.ini has another language";
}

TEST(RandomPlay, TheWindowStaysInOrderAndEndsInOrder) {
#ifdef __SANITIZE_ADDRESS__ // ten times slower
    constexpr int actions = 5'000;
#else
    constexpr int actions = 50'000;
#endif
    constexpr int plays = 20;
    constexpr int betweenChecks = 250;
    std::size_t boxes = 0;
    for (unsigned seed = 1; seed <= plays; ++seed) {
        WindowInUse use;
        Player player(use, seed);
        const int untilTheEnd = actions / plays - player.Below(betweenChecks);
        for (int action = 1; action <= untilTheEnd + betweenChecks / 2; ++action) {
            ASSERT_EQ(player.Act(), "") << "action " << action << " of play " << seed;
            ASSERT_EQ(BrokenInvariant(use.program), "") << "after action " << action << " of play " << seed;
            boxes += std::exchange(use.answers.boxes, {}).size();
            if (action % betweenChecks == 0) {
                ASSERT_EQ(Disagreements(use), "") << "after action " << action << " of play " << seed;
            }
        }
        ASSERT_EQ(WrongAboutTheEnd(use, use.state.LanguageId == English ? English : Russian), "") << "of play " << seed;
    }
    EXPECT_GT(boxes, static_cast<std::size_t>(actions / 50)) << "hardly anything was calculated";
}

} // namespace

} // namespace Hesperin
