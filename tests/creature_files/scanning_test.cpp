#include "creature_files/scanning.h"
#include "form/main_form.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// A buffer with a text in it. Long texts are searched in another way than short ones, so tests ask
/// both.
struct Buffer {
    explicit Buffer(const QString& text) { buffer.SetText(text); }

    ControlRegistry registry;
    TextBuffer buffer{registry, "buffer"};
};

/// Blanks that make a text a long one without adding anything to find.
const QString Padding(400, u' ');

TEST(TagNumber, ReadsTheNumberAtTheStartOfTheElement) {
    const struct {
        const char* text;
        std::int16_t value;
        bool found = true;
        bool limited = false;
    } cases[] = {
        {"<Gold>1250</Gold>", 1250},
        {"<Gold></Gold>", 0},
        {"<Gold>  -7.5 fast</Gold>", -8},
        {"x<Gold>1</Gold><Gold>2</Gold>", 1},
        {"<Gold1>9</Gold1><Gold>1</Gold>", 1},
        {"<gold>9</gold><Gold>1</Gold>", 1},
        {"<Gold>32767.4</Gold>", 32767},
        {"<Gold>32767.5</Gold>", 32767, true, true},
        {"<Gold>-1e999</Gold>", -32768, true, true},
        {"", 0, false},
        {"<Gold>5", 0, false},
        {"<Gold a=\"b\">5</Gold>", 0, false},
        {"</Gold><Gold>5</Gold>", 0, false},
    };
    for (const auto& test : cases)
        for (const QString& padding : {QString(), Padding}) {
            SCOPED_TRACE(test.text);
            const Buffer text(test.text + padding);
            const TagNumberResult result = TagNumber(text.buffer, u"<Gold>", u"</Gold>");
            EXPECT_EQ(result.value, test.value);
            EXPECT_EQ(result.found, test.found);
            EXPECT_EQ(result.limited, test.limited);
        }
    const Buffer text("<Gold> 70000 a </Gold>");
    EXPECT_EQ(TagNumber(text.buffer, u"<Gold>", u"</Gold>").text.toString(), " 70000 a ");
}

TEST(TagIsTrue, LooksBehindTheFirstOccurrenceOfTheName) {
    const struct {
        const char* text;
        const char* name;
        std::int16_t result;
    } cases[] = {
        {"<Flying>true</Flying>", "Flying", 1},
        {"<flying>true</flying>", "Flying", 1},
        {"<Flying>True</Flying>", "Flying", 0},
        {"<Flying> true</Flying>", "Flying", 0},
        {"<Flying>truely</Flying>", "Flying", 1},
        {"<Flying>tru", "Flying", 0},
        {"<A>notflying</A><Flying>true</Flying>", "Flying", 0},
        {"<Upgrades></Upgrades><Upgrade>true</Upgrade>", "Upgrade", 0},
        {"", "Flying", 0},
        {"<A>nothing of it</A>", "Flying", 0},
        {"<A>xx>true", "Flying", 1}, // the name isn't there, and "true" stands just where it is looked for
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.text);
        EXPECT_EQ(TagIsTrue(Buffer(test.text).buffer, QString(test.name)), test.result);
        EXPECT_EQ(TagIsTrue(Buffer(test.text + Padding).buffer, QString(test.name)), test.result);
    }
}

TEST(FindToken, LeavesThePositionAndDoesNotCountTheVeryStart) {
    const struct {
        const char* text;
        const char* token;
        std::int16_t found;
        std::int16_t position;
    } cases[] = {
        {" SPELL_CURSE SPELL_CURSE", "SPELL_CURSE", 1, 1},
        {"<Spell>spell_curse</Spell>", "SPELL_CURSE", 1, 7},
        {"SPELL_CURSE", "SPELL_CURSE", 0, 0},
        {"SPELL_CURSE SPELL_CURSE", "SPELL_CURSE", 0, 0},
        {" SPELL_CURS", "SPELL_CURSE", 0, -1},
        {"<Range>-12</Range>", "<Range>-1", 0, 0},
    };
    for (const auto& test : cases)
        for (const QString& padding : {QString(), Padding}) {
            SCOPED_TRACE(test.text);
            const Buffer text(test.text + padding);
            SharedState state;
            state.TokenPosition = state.SpecabilityTokenPosition = 99;
            EXPECT_EQ(FindToken(state, text.buffer, QString(test.token)), test.found);
            EXPECT_EQ(state.TokenPosition, test.position);
            EXPECT_EQ(state.SpecabilityTokenPosition, 99) << "belongs to the other search";
            state.TokenPosition = 98;
            EXPECT_EQ(FindSpecabilityToken(state, text.buffer, QString(test.token)), test.found);
            EXPECT_EQ(state.SpecabilityTokenPosition, test.position);
            EXPECT_EQ(state.TokenPosition, 98);
        }
    const Buffer longest(QString(32767 - 11, u'x') + "SPELL_CURSE");
    SharedState state;
    EXPECT_EQ(FindToken(state, longest.buffer, u"SPELL_CURSE"), 1);
    EXPECT_EQ(state.TokenPosition, 32767 - 11);
}

TEST(SharedMark, IsTheOneBasedPlaceOfTheExactMark) {
    EXPECT_EQ(SharedMarkText(Buffer("Drake.(AdvMapMonsterShared).xdb").buffer), "6");
    EXPECT_EQ(SharedMarkText(Buffer("Drake.(advmapmonstershared)").buffer), "0");
    EXPECT_EQ(SharedMarkText(Buffer("(AdvMapMonsterShared)").buffer), "0");
}

TEST(HrefLeaf, IsWhatStandsBehindTheLastSlash) {
    const QString marked = ".(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)";
    const QString plain = ".xdb#xpointer(/AdvMapMonsterShared)";
    const struct {
        QString text;
        QString endMark;
        std::optional<QString> leaf;
    } cases[] = {
        {"<MonsterShared href=\"/MapObjects/Neutral/Swamp_drake" + marked + "\"/>", marked, "Swamp_drake"},
        {"<MonsterShared href=\"/Drake" + plain + "\"/>", plain, "Drake"},
        {"<MonsterShared href=\"/a/b c/" + plain + "\"/>", plain, ""},
        {"<MonsterShared href=\"Drake" + plain + "\"/>", plain, ""},
        {"<MonsterShared href=" + plain, plain, ""},
        {"<MonsterShared href=\"/Drake.xdb\"/>", plain, std::nullopt},
        {"<Visual href=\"/Drake" + plain + "\"/>", plain, std::nullopt},
        {"<monstershared href=\"/Drake" + plain + "\"/>", plain, std::nullopt},
        {"/Drake" + plain + "<MonsterShared href=\"/Wyrm" + plain + "\"/>", plain, std::nullopt},
        {"", plain, std::nullopt},
    };
    for (const auto& test : cases)
        for (const QString& padding : {QString(), Padding}) {
            SCOPED_TRACE(test.text.toStdString());
            EXPECT_EQ(HrefLeaf(Buffer(test.text + padding).buffer, u"MonsterShared href=", test.endMark), test.leaf);
        }
}

} // namespace

} // namespace Hesperin
