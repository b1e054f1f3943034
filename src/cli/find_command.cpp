#include "cli/command.h"

#include "cli/language_option.h"
#include "cli/output.h"
#include "localisation/messages.h"
#include "reports/find_abilities.h"
#include "reports/json.h"

#include <QCoreApplication>

#include <algorithm>

namespace Hesperin {

namespace {

const QString JsonOfFind = QStringLiteral("json");

void DescribeFind(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(
            " All words of TEXT must stand in the ability's\n"
            "token, or in its name or description in the game, in any order; letter case doesn't\n"
            "count. Names and descriptions come out of the game by 'talmir-cli texts'.\n\n"
            "Examples:\n"
            "  talmir-cli find shot\n"
            "  talmir-cli find --lang RU 'защита от магии'"));
    parser.addPositionalArgument(QStringLiteral("TEXT"), QStringLiteral("What to look for."),
                                 QStringLiteral("TEXT..."));
    AddLanguageOption(parser, QStringLiteral("Language of names and descriptions"));
    parser.addOption({JsonOfFind, QStringLiteral("One JSON object a line and ability.")});
}

int RunFind(const QCommandLineParser& parser) {
    const QString text = parser.positionalArguments().join(u' ').simplified();
    const auto language = LanguageOf(parser);
    if (text.isEmpty() || !language)
        return Misused("find", QStringLiteral("a TEXT to find is expected, and --lang EN or RU"));
    const AllAbilityWords words =
        LoadAbilityTexts(MessagesIn(*language).LanguageCode,
                         {QCoreApplication::applicationDirPath(), SettingsFolderOfUser()});
    const std::vector<int> found = FindAbilities(text, words);
    if (found.empty()) {
        const bool textsAreThere =
            std::any_of(words.begin(), words.end(),
                        [](const AbilityWords& known) { return !known.name.isEmpty(); });
        Complain(QStringLiteral("talmir-cli find: no ability matches '%1'").arg(text) +
                 (textsAreThere ? QString()
                                : QStringLiteral(" (only the tokens were searched: the game's "
                                                 "texts come by 'talmir-cli texts')")));
        return SomethingFailed;
    }
    if (!parser.isSet(JsonOfFind)) {
        PrintLine(FoundTable(found, words));
        return AllDone;
    }
    for (const int ability : found)
        PrintLine(JsonLine(FoundJson(ability, words[static_cast<std::size_t>(ability)])));
    return AllDone;
}

} // namespace

const Command FindCommand{"find", "Finds abilities by what the game says of them.", DescribeFind,
                          RunFind};

} // namespace Hesperin
