#pragma once

#include "app/program.h"
#include "cli/cli_platform.h"

namespace Hesperin {

/// A program that a script plays on.
struct ScriptStage {
    Program& program;
    CliPlatform& platform;
};

/// Plays one line of a script: an action name, one blank, and what the action takes. Gives the
/// reason when the user could not do that at this moment, or when it failed; the empty text when it
/// is done. `show` and `state` print.
QString PlayLine(ScriptStage& stage, const QString& line);

/// The actions, a line each: name, what it takes, what it does.
QString ActionsHelp();

} // namespace Hesperin
