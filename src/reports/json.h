#pragma once

#include "cli/cli_platform.h"
#include "engine/program.h"

#include <QJsonObject>

namespace Hesperin {

/// The object on one line.
QByteArray JsonLine(const QJsonObject& object);

/// The boxes shown, each with icon, title and text.
QJsonArray MessagesJson(const std::vector<ShownMessage>& messages);

/// The whole state of the window and the program behind it.
QJsonObject StateJson(const Program& program, const CliPlatform& platform);

} // namespace Hesperin
