#include "cli/command.h"

#include "cli/language_option.h"
#include "cli/output.h"
#include "localisation/error_text.h"
#include "reports/explanation_json.h"
#include "reports/explanation_text.h"

namespace Hesperin {

namespace {

const QString JsonOfExplain = QStringLiteral("json");

void DescribeExplain(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(" It tells what was\n"
                       "corrected, every step with the numbers put in, and what one more of each\n"
                       "parameter would add.\n\n"
                       "Examples:\n"
                       "  talmir-cli explain samples/frost_witch.xdb\n"
                       "  talmir-cli explain --json samples/frost_witch.xdb"));
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("The creature file (.xdb)."));
    parser.addOption(
        {JsonOfExplain, QStringLiteral("One JSON document with every step as an expression.")});
    AddLanguageOption(parser, QStringLiteral("Language of the text"));
}

int RunExplain(const QCommandLineParser& parser) {
    const QStringList files = parser.positionalArguments();
    const auto languageId = LanguageOf(parser);
    if (files.size() != 1 || !languageId)
        return Misused("explain", languageId ? QStringLiteral("exactly one FILE is expected")
                                             : QStringLiteral("--lang takes EN or RU"));
    const auto explanation = ExplainFile(files.front());
    if (!explanation) {
        Complain(ErrorText(MessagesIn(*languageId), explanation.Why()));
        return SomethingFailed;
    }
    if (parser.isSet(JsonOfExplain))
        PrintLine(ExplanationJson(*explanation));
    else
        PrintLine(ExplanationText(*explanation, *languageId));
    return AllDone;
}

} // namespace

const Command ExplainCommand{"explain", "Shows how a creature's figures come about.",
                             DescribeExplain, RunExplain};

} // namespace Hesperin
