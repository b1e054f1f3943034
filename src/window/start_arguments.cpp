#include "window/start_arguments.h"

#include "system/version_record.h"

namespace Hesperin {

namespace {

const QStringList ToolkitOptions{
    QStringLiteral("-platform"),        QStringLiteral("-platformpluginpath"),
    QStringLiteral("-platformtheme"),   QStringLiteral("-plugin"),
    QStringLiteral("-qwindowgeometry"), QStringLiteral("-style"),
    QStringLiteral("-display"),         QStringLiteral("-geometry")};

} // namespace

StartArguments ReadStartArguments(const QStringList& arguments) {
    const QString usage =
        QStringLiteral("Usage: talmir [FILE]\n"
                       "Balance calculator and creature-file editor.\n\n"
                       "  FILE           Creature file (.xdb) to open at the start.\n"
                       "  -h, --help     Shows this help.\n"
                       "  -v, --version  Shows the version.");
    StartArguments start;
    for (qsizetype at = 0; at < arguments.size(); ++at) {
        const QString& argument = arguments[at];
        if (ToolkitOptions.contains(argument)) {
            ++at; // and its value
            continue;
        }
        if (argument == QLatin1String("-h") || argument == QLatin1String("--help"))
            return {usage, false, {}};
        if (argument == QLatin1String("-v") || argument == QLatin1String("--version"))
            return {VersionRecord::TitleAndVersion(), false, {}};
        if (argument.startsWith(u'-') || !start.creatureFile.isEmpty())
            return {
                QStringLiteral("talmir: '%1' is not understood\n").arg(argument) + usage, true, {}};
        start.creatureFile = argument;
    }
    return start;
}

} // namespace Hesperin
