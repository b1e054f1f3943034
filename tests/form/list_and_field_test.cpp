#include "form/main_form.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// A list of the entries "a", "b", "c" that logs its clicks as "index text".
struct ListTest : testing::Test {
    ListTest() {
        list.SetItems({"a", "b", "c"});
        list.SetClick([this] { clicks.append(QString::number(list.Index()) + ' ' + list.Text()); });
    }

    MainForm form;
    ComboBox& list = form.ComboTTC;
    QStringList clicks;
};

TEST_F(ListTest, ClicksOnlyWhenTheIndexChangesButAlwaysTakesTheEntrysText) {
    list.Select(1);
    list.Select(1);
    EXPECT_EQ(clicks, QStringList{"1 b"});

    list.SetText("typed");
    EXPECT_EQ(list.Index(), 1);
    EXPECT_EQ(list.Text(), "typed");
    list.Select(1);
    EXPECT_EQ(list.Text(), "b");
    list.SetText("c"); // an entry's text, and yet no selection
    EXPECT_EQ(list.Index(), 1);
    EXPECT_EQ(clicks.size(), 1);
    list.Select(2);
    EXPECT_EQ(clicks, (QStringList{"1 b", "2 c"}));
}

TEST_F(ListTest, TheViewHearsOfASelectionBeforeTheClickAlsoWhenTheTextIsTheSame) {
    struct View : ControlView {
        explicit View(const QStringList& list) : clicks(list) {}
        const QStringList& clicks;
        QStringList log;
        void Changed(Control& control, Property) override {
            const auto& box = static_cast<ComboBox&>(control);
            log.append(QString("%1 %2 after %3").arg(box.Index()).arg(box.Text()).arg(clicks.size()));
        }
    } view(clicks);
    list.SetText("b");
    list.SetView(&view);
    list.Select(1);
    list.Select(1);
    EXPECT_EQ(view.log, QStringList{"1 b after 0"});
    EXPECT_EQ(clicks.size(), 1);
    list.SetView(nullptr);
}

TEST_F(ListTest, AnEntryThatDoesNotExistIsNotSelected) {
    list.Select(2);
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 3, 32767, -32768}) {
        list.Select(index);
        EXPECT_EQ(list.Index(), 2);
        EXPECT_EQ(list.Text(), "c");
    }
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(ListTest, RefillingLeavesNothingSelectedAndRunsNothing) {
    list.Select(2);
    list.SetItems({"x", "y", "z"});
    EXPECT_EQ(list.Index(), -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(clicks.size(), 1);
    list.Select(2); // the same position as before the refill is a new selection
    EXPECT_EQ(clicks, (QStringList{"2 c", "2 z"}));
    list.AddItem("more");
    EXPECT_EQ(list.Items().size(), 4);
    EXPECT_EQ(list.Text(), "z");
}

void RefuseX(std::int16_t& keyCode) {
    if (keyCode == u'x')
        keyCode = 0;
}

TEST(TextField, TypingObeysFilterAndLengthAndOtherTextDoesNot) {
    const QString backspace(QChar(8));
    struct {
        const char* what;
        KeyFilter filter;
        int longest;
        QString before;
        QString keys;
        QString after;
    } const cases[] = {
        {"no limits", nullptr, TextField::NoLimit, "", "axb9 Ж", "axb9 Ж"},
        {"filter", RefuseX, TextField::NoLimit, "", "axxbx", "ab"},
        {"length", nullptr, 3, "", "abcdef", "abc"},
        {"room after a backspace", nullptr, 2, "", "abc" + backspace + "d", "ad"},
        {"swallowed keys take no room", RefuseX, 2, "", "xxab", "ab"},
        {"behind the text", nullptr, 3, "12", "34", "123"},
        {"longer by a paste", nullptr, 2, "12345", "6", "12345"},
        {"shortened by one", nullptr, 2, "12345", backspace, "1234"},
        {"nothing to take away", nullptr, 2, "", backspace + backspace, ""},
        {"paste past the filter", RefuseX, 3, "xxxx", "x", "xxxx"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        ControlRegistry registry;
        TextField field(registry, "field", row.longest);
        field.SetFilter(row.filter);
        field.SetText(row.before);
        for (const QChar key : row.keys)
            field.Type(key.unicode());
        EXPECT_EQ(field.Text(), row.after);
    }
}

TEST(MultiOption, OnlyRedrawBringsTheButtonsIntoLine) {
    MainForm form;
    MultiOption& selector = form.soq(7);
    EXPECT_EQ(selector.Value(), 0);
    EXPECT_FALSE(selector.OptionsEnabled());
    EXPECT_FALSE(selector.Enabled());
    EXPECT_EQ(selector.SelectedOption(), 0);

    selector.SetValue(3);
    selector.SetOptionsEnabled(true);
    EXPECT_EQ(selector.Value(), 3);
    EXPECT_TRUE(selector.OptionsEnabled());
    EXPECT_FALSE(selector.Enabled());
    EXPECT_EQ(selector.SelectedOption(), 0);
    selector.Redraw();
    EXPECT_TRUE(selector.Enabled());
    EXPECT_EQ(selector.SelectedOption(), 3);

    for (const std::int16_t outside : std::initializer_list<std::int16_t>{7, 5, -1}) { // no button of that number
        selector.SetValue(outside);
        selector.SetOptionsEnabled(outside == 5);
        selector.Redraw();
        EXPECT_EQ(selector.Value(), outside);
        EXPECT_EQ(selector.Enabled(), outside == 5);
        EXPECT_EQ(selector.SelectedOption(), 3);
    }
    for (int option = 4; option >= 0; --option) {
        selector.ClickOption(option);
        EXPECT_EQ(selector.Value(), option);
        EXPECT_EQ(selector.SelectedOption(), option);
    }
}

TEST(MultiOption, ItsFiveButtonsAreTheMasteriesInRisingOrder) {
    QStringList buttons;
    for (const MultiOption::Option& option : MultiOption::Options)
        buttons.append(QString("%1 %2").arg(option.name, option.toolTip));
    EXPECT_EQ(buttons, (QStringList{"Opt_None MASTERY_NONE", "Opt_Basic MASTERY_BASIC", "Opt_Advanced MASTERY_ADVANCED",
                                    "Opt_Expert MASTERY_EXPERT", "Opt_Extra MASTERY_EXTRA_EXPERT"}));
}

} // namespace

} // namespace Hesperin
