#pragma once

#include <QCommandLineParser>

#include <cstdint>
#include <optional>

namespace Hesperin {

/// Adds --lang EN|RU; `meaning` is what the language is for.
void AddLanguageOption(QCommandLineParser& parser, const QString& meaning);

/// The language asked for, English where none was; nothing where there is no such language.
std::optional<std::uint8_t> LanguageOf(const QCommandLineParser& parser);

} // namespace Hesperin
