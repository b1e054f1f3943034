#pragma once

#include <QCommandLineParser>

namespace Hesperin {

/// Exit codes of the command line.
enum ExitCode : int {
    AllDone = 0,
    SomethingFailed = 1,
    WrongUsage = 2,
};

/// One subcommand: what it is called, what it takes, and what it does.
struct Command {
    const char* name;
    const char* summary;
    void (*describe)(QCommandLineParser& parser); ///< adds its arguments and options
    int (*run)(const QCommandLineParser& parser); ///< gives an exit code
};

extern const Command ApplyCommand;
extern const Command CalcCommand;
extern const Command CheckCommand;
extern const Command ExplainCommand;
extern const Command FindCommand;
extern const Command RunCommand;
extern const Command SetCommand;
extern const Command SolveCommand;
extern const Command TableCommand;
extern const Command TextsCommand;

} // namespace Hesperin
