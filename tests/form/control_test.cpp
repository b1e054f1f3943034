#include "form/main_form.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// Keeps what a control told, with what it showed at that moment.
struct Recorder : ControlView {
    std::vector<Property> told;
    QStringList shown;

    void Changed(Control& control, Property what) override {
        told.push_back(what);
        shown.append(control.Shown());
    }
};

TEST(Control, ASetterTellsItsViewOnceOfARealChangeAndNothingOtherwise) {
    struct {
        const char* control;
        Property told;
        void (*set)(MainForm&);
    } const cases[] = {
        {"txtNC", Property::Text, [](MainForm& form) { form.txtNC.SetText("a"); }},
        {"ComboTier", Property::Text, [](MainForm& form) { form.ComboTier.SetText("a"); }},
        {"RTBData", Property::Text, [](MainForm& form) { form.RTBData.SetText("a"); }},
        {"utbN(3)", Property::Text, [](MainForm& form) { form.utbN(3).SetText("a"); }},
        {"lblMin", Property::Caption, [](MainForm& form) { form.lblMin.SetCaption("a"); }},
        {"frmMain", Property::Caption, [](MainForm& form) { form.frmMain.SetCaption("a"); }},
        {"mnuNew", Property::State, [](MainForm& form) { form.mnuNew.SetChecked(true); }},
        {"Spells(91)", Property::State, [](MainForm& form) { form.Spells(91).SetTicked(true); }},
        {"saz(0)", Property::State, [](MainForm& form) { form.saz(0).ClickOption(2); }},
        {"cmdCalc", Property::ToolTip, [](MainForm& form) { form.cmdCalc.SetToolTip("a"); }},
        {"cmdCalc", Property::Enabled, [](MainForm& form) { form.cmdCalc.SetEnabled(false); }},
        {"cmdCalc", Property::Visible, [](MainForm& form) { form.cmdCalc.SetVisible(false); }},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.control);
        MainForm form;
        Recorder view;
        Control* control = form.Find(row.control);
        ASSERT_NE(control, nullptr);
        control->SetView(&view);
        row.set(form);
        EXPECT_EQ(view.told, std::vector<Property>{row.told});
        row.set(form);
        EXPECT_EQ(view.told.size(), 1U);
        control->SetView(nullptr);
    }
}

TEST(CheckBox, StoresThenTellsTheViewThenClicksBeforeTheSetterReturns) {
    MainForm form;
    QStringList order;
    struct View : ControlView {
        explicit View(QStringList& list) : log(list) {}
        QStringList& log;
        void Changed(Control& control, Property) override {
            log.append("view " + control.Name() + ' ' + control.Shown());
        }
    } view(order);
    for (CheckBox* box : {&form.Abilities(1), &form.Abilities(2)})
        box->SetView(&view);
    form.Abilities(1).SetClick([&] {
        order.append("click 1");
        form.Abilities(2).SetTicked(form.Abilities(1).Ticked());
        order.append("end of click 1");
    });
    form.Abilities(2).SetClick([&] {
        order.append("click 2");
        form.Abilities(1).SetTicked(form.Abilities(2).Ticked()); // is so already: nothing runs
    });
    form.Abilities(1).SetTicked(true);
    EXPECT_EQ(order.join(", "), "view Abilities(1) 1, click 1, view Abilities(2) 1, click 2, end of click 1");
    form.Abilities(1).SetTicked(true);
    EXPECT_EQ(order.size(), 5);
}

TEST(ControlRegistry, FindsControlsByTheirExactNameOnly) {
    const MainForm form;
    for (const char* name : {"txtAttack", "frmMain", "Abilities(1)", "Abilities(174)", "Spells(91)", "Specabilities(0)",
                             "saz(54)", "Tablus.Tab(4)", "ComDialog"}) {
        SCOPED_TRACE(name);
        const Control* control = form.Find(name);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->Name(), name);
    }
    for (const char* name : {"",
                             "(",
                             ")",
                             "()",
                             "(1)",
                             "txtattack",
                             "TXTATTACK",
                             "txtAttack ",
                             " txtAttack",
                             "txtAttack(0)",
                             "txtAttack()",
                             "Abilities",
                             "Abilities()",
                             "Abilities(0)",
                             "Abilities(175)",
                             "Abilities(-1)",
                             "Abilities(01)",
                             "Abilities(+1)",
                             "Abilities( 1)",
                             "Abilities(1",
                             "Abilities(1))",
                             "Abilities(1)x",
                             "Abilities(1)(1)",
                             "Abilities(a)",
                             "Abilities(4294967297)",
                             "Spells(92)",
                             "Specabilities(55)",
                             "Tablus.Tab(5)",
                             "Способности"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(form.Find(QString::fromUtf8(name)), nullptr);
    }
    EXPECT_EQ(form.Find(QString::fromLatin1("txtAttack\0", 10)), nullptr);
}

TEST(ControlRegistry, AControlWithoutAnIndexHasNoNegativeOneEither) {
    const MainForm form;
    EXPECT_EQ(form.Find("txtAttack(-1)"), nullptr);
    EXPECT_EQ(form.Find("Tablus.Tab(-1)"), nullptr);
}

TEST(ControlRegistry, EveryControlHasANameOfItsOwnAndAPlaceInTheWindow) {
    const MainForm form;
    for (const Control* control : form.Controls()) {
        SCOPED_TRACE(control->Name().toStdString());
        EXPECT_EQ(form.Find(control->Name()), control);
        const Control* top = control;
        while (top->Parent() != nullptr)
            top = top->Parent();
        EXPECT_EQ(top, &form.frmMain);
    }
}

TEST(Control, IsUsableOnlyWhileAllThatHoldItIsEnabledAndVisible) {
    struct {
        const char* what;
        const char* control;
        bool usable;
        void (*prepare)(MainForm&);
    } const cases[] = {
        {"plain field", "txtAttack", true, [](MainForm&) {}},
        {"own flag", "txtAttack", false, [](MainForm& form) { form.txtAttack.SetEnabled(false); }},
        {"hidden", "txtAttack", false, [](MainForm& form) { form.txtAttack.SetVisible(false); }},
        {"frame off", "txtAttack", false, [](MainForm& form) { form.FrameAttack.SetEnabled(false); }},
        {"frame hidden", "txtAttack", false, [](MainForm& form) { form.FrameAttack.SetVisible(false); }},
        {"enabled field in a disabled frame", "txtIDC", false, [](MainForm&) {}},
        {"field without its frame", "txtMana", false, [](MainForm& form) { form.txtMana.SetEnabled(true); }},
        {"field and frame", "txtMana", true,
         [](MainForm& form) {
             form.txtMana.SetEnabled(true);
             form.FrameMana.SetEnabled(true);
         }},
        {"page off", "Spells(1)", false, [](MainForm& form) { form.Tablus.Tab(2).Switch(false); }},
        {"page hidden", "Abilities(1)", false, [](MainForm& form) { form.Tablus.Tab(1).SetVisible(false); }},
        {"page disabled", "Abilities(1)", false, [](MainForm& form) { form.Tablus.Tab(1).SetEnabled(false); }},
        {"other page off", "Abilities(1)", true, [](MainForm& form) { form.Tablus.Tab(2).Switch(false); }},
        {"window locked", "cmdCalc", false, [](MainForm& form) { form.frmMain.SetEnabled(false); }},
        {"entry of a disabled menu", "mnuQuit", false, [](MainForm& form) { form.mnuFile.SetEnabled(false); }},
        {"entry of a submenu", "mnuRussian", false, [](MainForm& form) { form.mnuOptions.SetEnabled(false); }},
        {"never shown", "ComboAlias", false, [](MainForm&) {}},
        {"the inert box", "Specabilities(0)", false, [](MainForm&) {}},
        {"its neighbour", "Specabilities(1)", true, [](MainForm&) {}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        MainForm form;
        row.prepare(form);
        EXPECT_EQ(form.Find(row.control)->Usable(), row.usable);
    }
}

TEST(Control, ShowsItselfOnOneLine) {
    MainForm form;
    form.RTBData.SetText("a\\n\r\nb");
    EXPECT_EQ(form.RTBData.Shown(), R"(a\\n\r\nb)");
}

} // namespace

} // namespace Hesperin
