#include "app/apply_language.h"
#include "app/handlers/options_menu.h"
#include "localisation/captions.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

bool HasCyrillic(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.script() == QChar::Script_Cyrillic; });
}

/// Every word that the window shows in the language of the moment, by where it stands.
QMap<QString, QString> Words(const MainForm& form) {
    QMap<QString, QString> words;
    for (const Control* control : form.Controls())
        if (const auto* captioned = dynamic_cast<const Captioned*>(control))
            words[control->Name()] = captioned->Caption();
    for (const ComboBox* list : {&form.ComboFaction, &form.ComboRange})
        for (int i = 0; i < list->Items().size(); ++i)
            words[QString("%1.List(%2)").arg(list->Name()).arg(i)] = list->Items()[i];
    words["lblValuesA.ToolTipText"] = form.lblValuesA.ToolTip();
    words.remove("Tablus.Tab(4)"); // follows no language
    return words;
}

/// The message strings, by their place in the table.
QStringList Messages(const SharedState& state) {
    QStringList texts;
    for (const MessageRow& row : MessageRows)
        texts.append(state.*row.message);
    return texts;
}

TEST(Language, EachColumnHasItsTextsLetterForLetter) {
    // Sums of the hashes of each column's texts, of the captions as "control=text", worked out from
    // the translators' tables apart from this program.
    const struct {
        std::int16_t language;
        std::uint32_t messages;
        std::uint32_t captions;
    } columns[] = {
        {1, 0xF900785BU, 0x8C88093CU},
        {2, 0xD8F7E68CU, 0x4AB5677BU},
        {3, 0x26F8FAC6U, 0x8C3ACB34U},
        {4, 0xBB0B4083U, 0xE5847B3FU},
    };
    constexpr std::size_t translatedRows = 23; // those behind them are this program's own
    for (const auto& column : columns) {
        SCOPED_TRACE(column.language);
        TestProgram test(English, TestProgram::Start::Bare); // has no text before
        ApplyLanguage(test.program, column.language);
        std::uint32_t messages = 0;
        for (const MessageRow& row : MessageRows.first(translatedRows))
            if (const QString& text = test.state.*row.message; !text.isEmpty())
                messages += Hash(text);
        EXPECT_EQ(messages, column.messages);
        std::uint32_t captions = 0;
        auto words = Words(test.form);
        words.remove("mnuHighContrast"); // this program's own too
        for (auto word = words.cbegin(); word != words.cend(); ++word)
            if (!word.value().isEmpty())
                captions += Hash(word.key() + '=' + word.value());
        EXPECT_EQ(captions, column.captions);
    }
}

TEST(Language, ASwitchReplacesEveryTextThatTheLanguageHasAndNoOther) {
    const struct {
        void (*switchTo)(Program&);
        const char* code;
        MenuEntry MainForm::*entry;
    } languages[] = {
        {mnuEnglish_Click, "EN", &MainForm::mnuEnglish},
        {mnuRussian_Click, "RU", &MainForm::mnuRussian},
        {mnuFrench_Click, "FR", &MainForm::mnuFrench},
        {mnuGerman_Click, "DE", &MainForm::mnuGerman},
    };
    std::int16_t number = 0;
    for (const auto& row : languages) {
        TestProgram alone(English, TestProgram::Start::Bare);
        ApplyLanguage(alone.program, ++number);
        const auto own = Words(alone.form);
        const QStringList ownMessages = Messages(alone.state);
        for (const Language before : {English, Russian}) {
            SCOPED_TRACE(testing::Message() << row.code << " after " << before);
            TestProgram test(before);
            auto words = Words(test.form);
            for (auto word = own.begin(); word != own.end(); ++word)
                if (!word.value().isEmpty())
                    words[word.key()] = word.value();
            words["frmMain"] = "TALMIR v0.0.0.44";
            QStringList messages = Messages(test.state);
            for (qsizetype i = 0; i < messages.size(); ++i)
                if (!ownMessages[i].isEmpty())
                    messages[i] = ownMessages[i];
            row.switchTo(test.program);
            EXPECT_EQ(Words(test.form), words);
            EXPECT_EQ(Messages(test.state), messages);
            EXPECT_EQ(test.state.messages.LanguageCode, row.code);
            EXPECT_EQ(test.state.LanguageId, number);
            for (const auto& other : languages)
                EXPECT_EQ((test.form.*other.entry).Checked(), &other == &row);
        }
    }
}

TEST(Language, EveryMessageIsInEnglishAndRussian) {
    const QStringList english = Messages(TestProgram(English).state);
    const QStringList russian = Messages(TestProgram(Russian).state);
    for (qsizetype i = 0; i < english.size(); ++i) {
        EXPECT_FALSE(english[i].isEmpty() || HasCyrillic(english[i])) << i;
        EXPECT_TRUE(HasCyrillic(russian[i]) || russian[i] == "RU") << english[i].toStdString();
    }
}

TEST(Language, ASwitchKeepsWhatTheUserDidExceptTheTwoTranslatedLists) {
    TestProgram test;
    test.FillInCreature();
    test.form.ComboFaction.Select(2);
    test.form.Abilities(147).SetTicked(true);
    test.form.ComboRange.Select(1);
    test.form.saz(5).SetValue(4);
    test.form.cmdCalc.Click();
    for (const auto switchTo : {mnuRussian_Click, mnuRussian_Click, mnuEnglish_Click}) {
        switchTo(test.program);
        for (const ComboBox* list : {&test.form.ComboFaction, &test.form.ComboRange}) {
            EXPECT_EQ(list->Index(), -1);
            EXPECT_EQ(list->Text(), "");
        }
        EXPECT_EQ(test.form.ComboAlias.Text(), "NECROMANCY");
        EXPECT_EQ(test.form.ComboDiapazon.Text(), "-1");
        EXPECT_EQ(test.form.saz(5).Value(), 4);
        EXPECT_EQ(test.form.txtHealth.Text(), "10");
        EXPECT_NE(test.form.lblPowerRolvane.Caption(), "");
        EXPECT_TRUE(test.form.mnuSave.Enabled());
        EXPECT_EQ(test.form.frmMain.Caption(), "TALMIR v0.0.0.44"); // no file is open
        EXPECT_EQ(test.state.AbilityCurrentValue[147], 1.2F);
    }
    test.form.ComboFaction.Select(0);
    EXPECT_EQ(test.form.ComboAlias.Text(), "HEAVEN");
    test.state.CreatureFileLoaded = true;
    mnuRussian_Click(test.program);
    EXPECT_TRUE(test.form.frmMain.Caption().startsWith("TALMIR v0.0.0.44 [Существо: Test, Сила=0{"));
}

TEST(Language, AnyOtherNumberDoesNothing) {
    TestProgram test(Russian);
    const auto words = Words(test.form);
    for (const int language : {0, 5, -1, 32767}) {
        ApplyLanguage(test.program, static_cast<std::int16_t>(language));
        EXPECT_EQ(Words(test.form), words);
        EXPECT_TRUE(test.form.mnuRussian.Checked());
    }
}

TEST(Fill, PutsEachValueInItsPlaceOnce) {
    EXPECT_EQ(Fill("%2 and %1", {"a", "b"}), "b and a");
    EXPECT_EQ(Fill("%1 %2", {"%2", "%1"}), "%2 %1"); // a file's name may look like a place
    EXPECT_EQ(Fill("%1 %3 100% %", {"a"}), "a %3 100% %");
}

} // namespace

} // namespace Hesperin
