// Texts that a key filter would have kept out, but a paste doesn't.
#include "app/handlers/file_menu.h"
#include "support/test_program.h"
#include "text/numbers.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(Save, ATextComesBackAsItWasOrTheOldFileStays) {
    const QString lost = "Opened again, the creature would have the name \"";
    const QString marks = "MonsterShared href=\"/x.(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)";
    const struct {
        const char* field;
        QString text;
        QString written; // in the file; empty: refused
        QString told;    // the reason of a refusal
    } cases[] = {
        {"txtNC", "wyrm & <drake>", "/Neutral/Wyrm &amp; &lt;drake>.(", ""},
        {"txtNC", "\"a\" 'b'", "/Neutrals/&quot;a&quot; 'b'.xdb", ""},
        {"txtNC", "&amp;lt;&quot;", "/Neutral/&amp;amp;lt;&amp;quot;.(", ""},
        {"txtNC", QString::fromUtf8("дракон\u00A0\u2028ё龍\U0001F409"),
         QString::fromUtf8("/Дракон\u00A0\u2028Ё龍\U0001F409.("), ""},
        {"txtNC", ".xdb#xpointer(/AdvMapMonsterShared)", "", lost + "advmapmonstershared)\""},
        {"txtNC", " ", "/Neutral/ .(", ""},
        {"txtNC", QString(10'000, u'x'), "xxx.xdb#", ""},
        {"txtNC", QString(16'000, u'x'), "", "longer than 32767 characters"},
        {"txtNC", "old/wyrm", "", lost + "wyrm\""},
        {"txtNC", "tab\there", "", lost + "Tab Here\""},
        {"txtNC", QString("half") + QChar(0xD83D), "", lost},
        {"txtNC", "a\x01", "", "not well-formed"},
        {"txtAttack", "4&5", "<AttackSkill>4&amp;5<", ""},
        {"txtPower", "7<Gold>9</Gold>\"", "<Power>7&lt;Gold>9&lt;/Gold>\"<", ""},
        {"txtGoldf", "<![CDATA[", "<Gold>&lt;![CDATA[<", ""},
        {"txtExp", "1]]>", "", "not well-formed"},
        {"txtExp", QString("5") + QChar(0), "", "not well-formed"},
        {"txtAttack", marks, "", lost},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(QString("%1 %2").arg(row.field, row.text.left(40)).toStdString());
        TestProgram test;
        test.FillInCreature();
        test.SetText(row.field, row.text);
        const QString value = ProperCase(test.form.txtNC.Text());
        const auto numberIn = [&] { return TextToNumber(test.form.Find(row.field)->Shown()); };
        const double number = numberIn();
        test.platform.dialogPath = test.Write("out.xdb", "old");
        const Failure failure = test.form.mnuSave.Click();
        EXPECT_TRUE(test.form.Tablus.At(Page::File).On());
        EXPECT_EQ(test.platform.boxes.size(), row.written.isEmpty() ? 1U : 0U);
        EXPECT_EQ(failure.has_value(), row.written.isEmpty());
        EXPECT_TRUE(test.platform.Texts().join('|').contains(row.told))
            << test.platform.Texts().join('|').toStdString();
        const QByteArray bytes = ReadAll(test.Path("out.xdb"));
        if (row.written.isEmpty()) {
            EXPECT_EQ(bytes, "old");
            continue;
        }
        EXPECT_EQ(bytes, test.form.RTBData.Text().toUtf8() + "\r\n");
        EXPECT_TRUE(bytes.contains(row.written.toUtf8()));
        EXPECT_EQ(test.form.mnuOpen.Click(), std::nullopt);
        EXPECT_EQ(test.form.txtNC.Text(), value);
        EXPECT_TRUE(QLatin1String(row.field) == "txtNC" || numberIn() == number);
    }
}

} // namespace

} // namespace Hesperin
