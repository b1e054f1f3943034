#pragma once

#include "cli/json.h"

namespace Hesperin {

/// What opening `file` gave, when `opened`, or why it was refused, as one object.
QJsonObject CalcJson(const QString& file, bool opened, const Program& program,
                     const CliPlatform& platform);

/// What opening `file` gave, as a table for a person.
QString CalcTable(const QString& file, const Program& program, const CliPlatform& platform);

} // namespace Hesperin
