#include "localisation/apply_language.h"
#include "localisation/language_menu.h"
#include "localisation/string_tables.h"
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

std::uint32_t Hash(const QString& text) {
    std::uint32_t hash = 2166136261U; // 32-bit FNV-1a over the UTF-16 units
    for (const QChar unit : text)
        hash = (hash ^ unit.unicode()) * 16777619U;
    return hash;
}

TEST(Language, EachColumnHasItsTextsLetterForLetter) {
    // Sums of the hashes of each column's texts, of the captions as "control=text", worked out from
    // the translators' tables apart from this program.
    const struct {
        std::int16_t language;
        std::uint32_t messages;
        int captionCount;
        std::uint32_t captions;
    } columns[] = {
        {1, 0xF900785BU, 90, 0x8C88093CU},
        {2, 0xD8F7E68CU, 90, 0x4AB5677BU},
        {3, 0x26F8FAC6U, 23, 0x8C3ACB34U},
        {4, 0xBB0B4083U, 23, 0xE5847B3FU},
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
        int count = 0;
        std::uint32_t captions = 0;
        const auto words = Words(test.form);
        for (auto word = words.begin(); word != words.end(); ++word)
            if (!word.value().isEmpty()) {
                ++count;
                captions += Hash(word.key() + '=' + word.value());
            }
        EXPECT_EQ(count, column.captionCount);
        EXPECT_EQ(captions, column.captions);
    }
}

TEST(Language, ASwitchThereAndBackLeavesNoTextOfTheOtherLanguage) {
    TestProgram test;
    const auto english = Words(test.form);
    const QStringList englishMessages = Messages(test.state);
    mnuRussian_Click(test.program);
    const auto russian = Words(test.form);
    const QStringList russianMessages = Messages(test.state);

    const QStringList anyLanguage{"mnuEnglish", "mnuRussian", "mnuFrench", "mnuGerman", "frmMain"};
    int followers = 0;
    for (auto word = english.begin(); word != english.end(); ++word) {
        SCOPED_TRACE(word.key().toStdString());
        if (word.value().isEmpty() || anyLanguage.contains(word.key()) ||
            dynamic_cast<const CheckBox*>(test.form.Find(word.key())) != nullptr) {
            EXPECT_EQ(russian[word.key()], word.value());
            continue;
        }
        ++followers;
        EXPECT_FALSE(HasCyrillic(word.value()));
        EXPECT_TRUE(HasCyrillic(russian[word.key()]) || russian[word.key()] == "1/2");
    }
    EXPECT_EQ(followers, 90);
    for (qsizetype i = 0; i < englishMessages.size(); ++i) {
        SCOPED_TRACE(englishMessages[i].toStdString());
        EXPECT_FALSE(englishMessages[i].isEmpty() || HasCyrillic(englishMessages[i]));
        EXPECT_TRUE(HasCyrillic(russianMessages[i]) || russianMessages[i] == "RU");
    }
    mnuEnglish_Click(test.program);
    EXPECT_EQ(Words(test.form), english);
    EXPECT_EQ(Messages(test.state), englishMessages);
}

TEST(Language, FrenchAndGermanLeaveWhatTheyLack) {
    const struct {
        void (*switchTo)(Program&);
        const char* code;
        MenuEntry MainForm::*entry;
        QString file;
        QString attack;
        QString abilities;
        QString question;
    } cases[] = {
        {mnuFrench_Click, "FR", &MainForm::mnuFrench, "Fichier", "Атака", "Capacites", "Voulez-vous quitter?"},
        {mnuGerman_Click, "DE", &MainForm::mnuGerman, "Datei", "Angriff", "Fдhigkeiten", "Sie sind ьberzeugt?"},
    };
    for (const auto& row : cases)
        for (const Language before : {English, Russian}) {
            SCOPED_TRACE(testing::Message() << row.code << " after " << before);
            TestProgram test(before);
            test.form.ComboFaction.Select(3);
            const auto old = Words(test.form);
            const SharedState oldState = test.state;
            row.switchTo(test.program);
            const auto words = Words(test.form);
            EXPECT_EQ(words["mnuFile"], row.file);
            EXPECT_EQ(words["FrameAttack"], row.attack);
            EXPECT_EQ(words["FrameDamage"], "Урон");
            EXPECT_EQ(words["Tablus.Tab(1)"], row.abilities);
            EXPECT_EQ(words["Tablus.Tab(2)"], "Заклинания");
            EXPECT_EQ(test.state.MsgQuitQuestion, row.question);
            EXPECT_EQ(test.state.LanguageCode, row.code);
            for (const char* kept :
                 {"Tablus.Tab(3)", "FrameRange", "frmMM", "FramePower", "lblMin", "cmdCalc", "mnuAlternativeMethod",
                  "ComboFaction.List(8)", "ComboRange.List(2)", "lblValuesA.ToolTipText"})
                EXPECT_EQ(words[kept], old[kept]) << kept;
            EXPECT_EQ(test.state.WarningTitle, oldState.WarningTitle);
            EXPECT_EQ(test.state.MsgSaveFailed, oldState.MsgSaveFailed);
            EXPECT_EQ(test.form.ComboFaction.Index(), 3); // not emptied
            for (const auto entry :
                 {&MainForm::mnuEnglish, &MainForm::mnuRussian, &MainForm::mnuFrench, &MainForm::mnuGerman})
                EXPECT_EQ((test.form.*entry).Checked(), entry == row.entry);
        }
}

TEST(Language, ASwitchKeepsWhatTheUserDidExceptTheTwoTranslatedLists) {
    TestProgram test;
    test.FillInCreature();
    test.form.ComboFaction.Select(2);
    test.form.Abilities(147).SetTicked(true);
    test.form.ComboRange.Select(1);
    test.form.ComboFME.Select(3);
    test.form.Specabilities(5).SetTicked(true);
    test.form.saz(5).ClickOption(4);
    test.form.cmdCalc.Click();
    const QString power = test.form.lblPowerRolvane.Caption();
    for (const auto switchTo : {mnuRussian_Click, mnuRussian_Click, mnuEnglish_Click}) {
        switchTo(test.program);
        EXPECT_EQ(test.form.ComboFaction.Index(), -1);
        EXPECT_EQ(test.form.ComboFaction.Text(), "");
        EXPECT_EQ(test.form.ComboFaction.Items().size(), 9);
        EXPECT_EQ(test.form.ComboRange.Index(), -1);
        EXPECT_EQ(test.form.ComboRange.Text(), "");
        EXPECT_EQ(test.form.ComboRange.Items().size(), 3);
        EXPECT_EQ(test.form.ComboAlias.Text(), "NECROMANCY");
        EXPECT_EQ(test.form.ComboDiapazon.Text(), "-1");
        EXPECT_EQ(test.form.ComboFME.Text(), "Fire");
        EXPECT_EQ(test.form.saz(5).Value(), 4);
        EXPECT_EQ(test.form.txtHealth.Text(), "10");
        EXPECT_EQ(test.form.lblPowerRolvane.Caption(), power);
        EXPECT_TRUE(test.form.mnuSave.Enabled());
        EXPECT_EQ(test.form.frmMain.Caption(), "TALMIR v0.0.0.44"); // no file is open
        EXPECT_EQ(test.state.AbilityCurrentValue[147], 1.2F);
        EXPECT_EQ(test.state.LanguageId, test.form.mnuRussian.Checked() ? 2 : 1);
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
