#include "app/apply_language.h"
#include "app/handlers/options_menu.h"
#include "app/resets.h"
#include "localisation/captions.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

bool HasCyrillic(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.script() == QChar::Script_Cyrillic; });
}

/// Every word that the window shows in the current language, by where it stands.
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
QStringList TextsOf(const Messages& messages) {
    QStringList texts;
    for (const MessageRow& row : MessageRows)
        texts.append(messages.*row.message);
    return texts;
}

TEST(Language, ASwitchReplacesEveryTextThatTheLanguageHasLetterForLetterAndNoOther) {
    // Sums of the hashes of each language's texts, of the captions as "control=text", worked out from the translators'
    // tables apart from this program.
    const struct {
        Failure (*switchTo)(Program&);
        std::uint32_t messages;
        std::uint32_t captions;
    } languages[] = {
        {mnuEnglish_Click, 0xF900785BU, 0x8C88093CU},
        {mnuRussian_Click, 0xD8F7E68CU, 0x4AB5677BU},
        {mnuFrench_Click, 0x26F8FAC6U, 0x8C3ACB34U},
        {mnuGerman_Click, 0xBB0B4083U, 0xE5847B3FU},
    };
    constexpr qsizetype translatedRows = 23; // those behind them are this program's own
    const QStringList ownCaptions{"mnuHighContrast", "mnuUpdate",          "mnuEdit",      "mnuUndo",    "mnuRedo",
                                  "mnuFindAbility",  "mnuBalance",         "mnuSurvey",    "mnuExplain", "mnuSolve",
                                  "mnuTakeOver",     "mnuTakeOverByScale", "FrameStanding"};
    std::int16_t number = 0;
    for (const auto& row : languages) {
        SCOPED_TRACE(++number);
        TestProgram alone(English, TestProgram::Start::Bare); // has no text before
        ApplyLanguage(alone.program, number);
        const auto own = Words(alone.form);
        const QStringList ownMessages = TextsOf(alone.state.messages);
        std::uint32_t messages = 0;
        std::uint32_t captions = 0;
        for (const QString& text : ownMessages.first(translatedRows))
            messages += text.isEmpty() ? 0 : Hash(text);
        for (const auto& [name, word] : own.asKeyValueRange())
            captions += word.isEmpty() || ownCaptions.contains(name) ? 0 : Hash(name + '=' + word);
        EXPECT_EQ(messages, row.messages);
        EXPECT_EQ(captions, row.captions);
        for (const Language before : {English, Russian}) {
            TestProgram test(before);
            auto words = Words(test.form);
            for (const auto& [name, word] : own.asKeyValueRange())
                words[name] = word.isEmpty() ? words[name] : word;
            words["frmMain"] = "TALMIR v0.0.0.44";
            QStringList texts = TextsOf(test.state.messages);
            for (qsizetype i = 0; i < texts.size(); ++i)
                texts[i] = ownMessages[i].isEmpty() ? texts[i] : ownMessages[i];
            row.switchTo(test.program);
            EXPECT_EQ(Words(test.form), words);
            EXPECT_EQ(TextsOf(test.state.messages), texts);
        }
    }
}

TEST(Language, EveryMessageIsInEnglishAndRussian) {
    const QStringList english = TextsOf(MessagesIn(English));
    const QStringList russian = TextsOf(MessagesIn(Russian));
    for (qsizetype i = 0; i < english.size(); ++i) {
        EXPECT_FALSE(english[i].isEmpty() || HasCyrillic(english[i])) << i;
        EXPECT_TRUE(HasCyrillic(russian[i]) || russian[i] == "RU") << english[i].toStdString();
    }
}

TEST(Start, NamesBoxesLetsBackspaceThroughAndAResetLowersTheFlag) {
    TestProgram test(English);
    for (std::size_t i = 1; i <= SpellCount; ++i)
        EXPECT_EQ(test.form.Spells(static_cast<int>(i)).Caption(), SpellToken[i]);
    for (const char16_t key : {u'\b', u'9'})
        EXPECT_TRUE(test.form.txtHealth.Accepts(key));
    test.state.SpecabilityFlag = FlagTrue;
    Reset_Specabilities(test.program);
    EXPECT_EQ(test.state.SpecabilityFlag, FlagFalse);
}

TEST(Language, AnyOtherNumberDoesNothing) {
    TestProgram test(Russian);
    const auto words = Words(test.form);
    for (const std::int16_t language : std::initializer_list<std::int16_t>{0, 5, -1, 32767})
        ApplyLanguage(test.program, language);
    EXPECT_EQ(Words(test.form), words);
    EXPECT_TRUE(test.form.mnuRussian.Checked());
}

} // namespace

} // namespace Hesperin
