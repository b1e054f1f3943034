#pragma once

#include "cli/cli_platform.h"
#include "engine/program.h"

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

/// What must hold whenever no handler runs: the ranges of the parameters, the nature rule, the link
/// between boxes and selectors and between linked boxes.
void RequireInvariants(const Program& program);

/// The whole state of the window on one line, to be compared.
QByteArray Snapshot(const FuzzProgram& fuzzed);

} // namespace Hesperin
