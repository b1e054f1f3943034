// A long play at random: whatever the user does, the window shows the state of its controls.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <random>

namespace Hesperin {

namespace {

class Player {
public:
    Player(WindowInUse& played, unsigned seed) : use(played), random(seed) {}

    /// Does one thing that a user could do now.
    void Act() {
        const int kind = Below(20);
        if (kind < 2)
            ShowAPage();
        else if (kind < 11)
            ClickOnThePage();
        else if (kind < 14)
            TypeOrChoose();
        else if (kind < 18)
            ClickOnThePage();
        else if (kind < 19)
            use.Press(One<QString>({"cmdCalc", "cmdRAP", "cmdRAA", "cmdRAS", "cmdResetAll"}));
        else
            PickAnEntry();
    }

private:
    int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random); }

    template <typename T>
    T One(const QList<T>& choices) {
        return choices[Below(static_cast<int>(choices.size()))];
    }

    void ShowAPage() {
        const int page = Below(5);
        if (use.Find<QTabBar>("Tablus.Bar").isTabVisible(page))
            use.ShowPage(page);
    }

    /// A box or an option of a selector of the page in front, enabled or not.
    void ClickOnThePage() {
        const int page = use.Find<QTabBar>("Tablus.Bar").currentIndex();
        const bool selector = Below(3) == 0;
        if (page == 1)
            use.ClickBox(QString("Abilities(%1)").arg(1 + Below(174)));
        else if (page == 2 && selector)
            use.ClickOption(QString("soq(%1)").arg(1 + Below(91)), Below(5));
        else if (page == 2)
            use.ClickBox(QString("Spells(%1)").arg(1 + Below(91)));
        else if (page == 3 && selector)
            use.ClickOption(QString("saz(%1)").arg(Below(55)), Below(5));
        else if (page == 3)
            use.ClickBox(QString("Specabilities(%1)").arg(Below(55)));
        else
            use.ShowPage(One<int>({1, 3}));
    }

    void TypeOrChoose() {
        use.ShowPage(0);
        const QString list = One<QString>({"ComboTier", "ComboSpeed", "ComboInitiative", "ComboFaction", "ComboFME",
                                           "ComboSME", "ComboUpgrade", "ComboTTC", "ComboRange"});
        const QString field = One<QString>({"txtNC", "txtAttack", "txtDefence", "txtMinDam", "txtMaxDam", "txtHealth",
                                            "txtMana", "txtShots", "txtPower", "txtGemf"});
        if (Below(2) == 0) {
            WindowInUse::Click(use.Find(field));
            use.Keys(QByteArray::number(Below(1000)) + "Ab");
        } else if (auto& shown = use.Find(list); shown.isEnabled()) {
            shown.setFocus();
            use.Key(One<Qt::Key>({Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}));
        }
    }

    void PickAnEntry() {
        use.PickLanguage(One<QString>({"mnuEnglish", "mnuRussian"}));
        if (Below(3) == 0)
            use.Pick({"mnuFile", "mnuNew"});
    }

    WindowInUse& use;
    std::mt19937 random;
};

TEST(RandomPlay, EveryWidgetAgreesWithItsControl) {
    constexpr int actions = 3000;
    constexpr int betweenChecks = 100;
    WindowInUse use;
    Player player(use, 20);
    std::size_t boxes = 0;
    for (int action = 1; action <= actions; ++action) {
        player.Act();
        boxes += std::exchange(use.answers.boxes, {}).size();
        if (action % betweenChecks != 0)
            continue;
        ASSERT_EQ(Disagreements(use), "") << "after " << action << " actions";
    }
    EXPECT_GT(boxes, 100U) << "hardly anything was calculated";
}

} // namespace

} // namespace Hesperin
