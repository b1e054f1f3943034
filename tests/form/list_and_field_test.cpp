#include "form/main_form.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// A list of the entries "a", "b", "c" that logs what it tells its view and its clicks.
struct ListTest : testing::Test, ControlView {
    ListTest() {
        list.SetItems({"a", "b", "c"});
        list.SetView(this);
        list.SetChangeRule([this] { Log("click"); });
    }

    void Changed(Control&, Property) override { Log("view"); }
    void Log(const char* what) { log.append(QString("%1 %2 %3").arg(what).arg(list.Index()).arg(list.Text())); }

    MainForm form;
    ComboBox& list = form.ComboTTC;
    QStringList log;
};

TEST_F(ListTest, ClicksAfterTheViewHasHeardAndOnlyWhenTheIndexChanges) {
    list.Select(1);
    list.Select(1);
    list.SetText("c"); // an entry's text, and yet no selection
    list.Select(1);
    list.SetText("c");
    list.Select(2); // the text is the same
    EXPECT_EQ(log.join(", "), "view 1 b, click 1 b, view 1 c, view 1 b, view 1 c, view 2 c, click 2 c");
}

TEST_F(ListTest, AnEntryThatDoesNotExistIsNotSelected) {
    list.Select(2);
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 3, 32767, -32768})
        list.Select(index);
    EXPECT_EQ(log.join(", "), "view 2 c, click 2 c");
}

TEST_F(ListTest, RefillingLeavesNothingSelectedAndClicksNothing) {
    list.Select(2);
    list.SetItems({"x", "y", "z"});
    EXPECT_EQ(list.Index(), -1);
    EXPECT_EQ(list.Text(), "");
    list.Select(2); // the same position as before the refill is a new selection
    EXPECT_EQ(log.filter("click"), (QStringList{"click 2 c", "click 2 z"}));
    list.Restore(1, {}); // the entry's text; nothing runs
    list.Restore(-1, "12");
    EXPECT_EQ(log.mid(log.size() - 2), (QStringList{"view 1 y", "view -1 12"}));
    list.Select(2);
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
        {"room after a backspace", nullptr, 2, "", "abc" + backspace + "d", "ad"},
        {"swallowed keys take no room", RefuseX, 2, "", "xxab", "ab"},
        {"behind the text", nullptr, 3, "12", "34", "123"},
        {"longer by a paste", nullptr, 2, "12345", "6", "12345"},
        {"shortened by one", nullptr, 2, "12345", backspace, "1234"},
        {"nothing to take away", nullptr, 2, "", backspace + backspace, ""},
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
    selector.SetValue(3);
    selector.SetOptionsEnabled(true);
    EXPECT_EQ(selector.Value(), 3);
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
    selector.ClickOption(4);
    EXPECT_EQ(selector.Value(), 4);
    EXPECT_EQ(selector.SelectedOption(), 4);
}

} // namespace

} // namespace Hesperin
