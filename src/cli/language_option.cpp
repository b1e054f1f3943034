#include "cli/language_option.h"

#include "localisation/languages.h"

namespace Hesperin {

namespace {

const QString Option = QStringLiteral("lang");

} // namespace

void AddLanguageOption(QCommandLineParser& parser, const QString& meaning) {
    parser.addOption(
        {Option, meaning + QLatin1String(": EN (default) or RU."), QStringLiteral("EN|RU")});
}

std::optional<std::uint8_t> LanguageOf(const QCommandLineParser& parser) {
    const QString code = parser.isSet(Option) ? parser.value(Option) : QStringLiteral("EN");
    if (code == QLatin1String("EN"))
        return English;
    if (code == QLatin1String("RU"))
        return Russian;
    return std::nullopt;
}

} // namespace Hesperin
