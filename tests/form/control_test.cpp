#include "form/main_form.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// Keeps what controls told it, and what they showed at that moment.
struct Recorder : ControlView {
    std::vector<Property> told;
    QStringList log;

    void Changed(Control& control, Property what) override {
        told.push_back(what);
        log.append("view " + control.Name() + ' ' + control.Shown());
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
    Recorder view;
    const auto link = [&](CheckBox& box, CheckBox& other) {
        box.SetView(&view);
        box.SetChangeRule([&] {
            view.log.append("click " + box.Name());
            other.SetTicked(box.Ticked()); // nothing runs where it is so already
            view.log.append("end " + box.Name());
        });
    };
    CheckBox& one = form.Spells(1);
    CheckBox& two = form.Spells(2);
    link(one, two);
    link(two, one);
    one.SetTicked(true);
    one.SetTicked(true);
    EXPECT_EQ(view.log.join(", "), "view Spells(1) 1, click Spells(1), view Spells(2) 1, click Spells(2), "
                                   "end Spells(2), end Spells(1)");
    for (CheckBox* box : {&one, &two})
        box->SetView(nullptr);
}

TEST(ControlRegistry, FindsEveryControlInItsPlaceUnderItsOwnNameAlone) {
    const MainForm form;
    for (const Control* control : form.Controls()) {
        EXPECT_EQ(form.Find(control->Name()), control) << control->Name().toStdString();
        const Control* top = control;
        while (top->Parent() != nullptr)
            top = top->Parent();
        EXPECT_EQ(top, &form.frmMain) << control->Name().toStdString();
    }
    const QString others =
        "Abilities|Abilities()|Abilities(0)|Abilities(175)|Abilities(-1)|Abilities(01)|Abilities(+1)|"
        "Abilities( 1)|Abilities(1|Abilities(1))|Abilities(1)x|Abilities(1)(1)|Abilities(a)|"
        "Abilities(4294967297)|Spells(92)|Specabilities(55)|Tablus.Tab(5)|Tablus.Tab(-1)||(|)|()|(1)|txtattack|"
        "TXTATTACK|txtAttack | txtAttack|txtAttack(0)|txtAttack(-1)|txtAttack()|Способности";
    for (const QString& name : others.split('|') + QStringList(QString::fromLatin1("txtAttack\0", 10)))
        EXPECT_EQ(form.Find(name), nullptr) << name.toStdString();
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
        {"field without its frame", "txtMana", false, [](MainForm& form) { form.txtMana.SetEnabled(true); }},
        {"page hidden", "Abilities(1)", false, [](MainForm& form) { form.Tablus.Tab(1).SetVisible(false); }},
        {"page disabled", "Abilities(1)", false, [](MainForm& form) { form.Tablus.Tab(1).SetEnabled(false); }},
        {"other page off", "Abilities(1)", true, [](MainForm& form) { form.Tablus.Tab(2).Switch(false); }},
        {"window locked", "cmdCalc", false, [](MainForm& form) { form.frmMain.SetEnabled(false); }},
        {"entry of a disabled menu", "mnuQuit", false, [](MainForm& form) { form.mnuFile.SetEnabled(false); }},
        {"entry of a submenu", "mnuRussian", false, [](MainForm& form) { form.mnuOptions.SetEnabled(false); }},
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
