// The program starts whatever lies in the place of lang.ini and of the ability texts.
#include "app/handlers/form_load.h"
#include "cli/run_cli.h"
#include "support/peak_memory.h"
#include "support/without_rights.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(HostileTexts, AnythingInTheirPlaceOrThatOfLangIniGivesALanguageAndTheTextsThatCanBeRead) {
    const QString first = "set -e; ability=RU/Text/Game/Creatures/Creature_abilities/AcidBlood; mkdir -p $ability; "
                          "chmod 777 .; printf RU >lang.ini; ";
    const struct {
        const char* what;
        const char* place; ///< shell; lang.ini holds RU before, and $ability is a folder of texts in Russian
        std::uint8_t language;
        const char* text = "";
    } cases[] = {
        {"protected", "chmod 0 lang.ini", English},
        {"read only", "chmod 444 lang.ini", Russian},
        {"a folder", "rm lang.ini; mkdir -p lang.ini/inside", English},
        {"a pipe", "rm lang.ini; mkfifo lang.ini", English},
        {"a device", "ln -sf /dev/zero lang.ini", English},
        {"a link in a loop", "rm lang.ini; ln -s lang.ini lang.ini", English},
        {"UTF-16", "printf '\\377\\376R\\0U\\0' >lang.ini", English},
        {"100 MiB", "echo RU >lang.ini; truncate -s 100M lang.ini", Russian},
        {"100 MiB without a line", "truncate -s 100M lang.ini", English},
        {"no text", ":", Russian},
        {"a text, so that this is a place that is read", "echo x >$ability/name.txt", Russian, "x"},
        {"a text that is a folder", "mkdir $ability/name.txt", Russian},
        {"a protected text", "echo x >$ability/name.txt; chmod 0 $ability/name.txt", Russian},
        {"a text of 100 MiB", "echo x >$ability/name.txt; truncate -s 100M $ability/name.txt", Russian},
        {"a text that is a pipe", "mkfifo $ability/name.txt", Russian},
        {"a text that is a link in a loop", "ln -s name.txt $ability/name.txt", Russian},
        {"a folder of texts in a loop", "rmdir $ability; ln -s \"$PWD/RU\" $ability", Russian},
        {"a file in place of the tree", "rm -r RU; echo x >RU", Russian},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        TestProgram test(English, TestProgram::Start::Bare);
        EXPECT_EQ(RunShell(first + row.place, test.folder.path()).code, 0);
        const WithoutRights nobody;
        const qint64 before = PeakMemory();
        EXPECT_TRUE(Form_Load(test.program));
        EXPECT_LT(PeakMemory() - before, qint64{8} << 20);
        EXPECT_EQ(test.state.LanguageId, row.language);
        QString texts;
        for (const StoredText& text : test.form.utbN)
            texts += text.Text();
        EXPECT_EQ(texts, row.text);
    }
}

} // namespace

} // namespace Hesperin
