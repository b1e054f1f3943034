#pragma once

#include "app/program.h"
#include "cli/cli_platform.h"

#include <QJsonObject>

namespace Hesperin {

/// The whole state of the window and the program behind it.
QJsonObject StateJson(const Program& program, const CliPlatform& platform);

} // namespace Hesperin
