#pragma once

#include "app/program.h"
#include "cli/cli_platform.h"

#include <QCoreApplication>

namespace Hesperin {

/// Ends the run as a find of the fuzzer unless `holds`.
void Require(bool holds, const char* what);

/// A loaded program without texts or files, for one input.
struct FuzzProgram {
    FuzzProgram();

    CliPlatform platform;
    Program program{platform};
};

/// Ends the run unless what must hold between any two actions does.
void RequireInvariants(const Program& program);

/// The whole state of the window on one line, to be compared.
QByteArray Snapshot(const FuzzProgram& fuzzed);

} // namespace Hesperin
