#pragma once

#include <QStringList>

namespace Hesperin {

struct ProcessCall {
    QString program;
    QStringList arguments;
};

/// Runs the figure and its floor in turn, so many times each, and prints the medians of their wall
/// times and the ratio.
void PrintPair(const char* what, const ProcessCall& figure, const ProcessCall& floor,
               int rounds = 31);

/// Starts both, waits until they are idle, and prints the memory that each holds and the ratio.
void PrintMemoryPair(const char* what, const ProcessCall& figure, const ProcessCall& floor);

/// Prints the most memory that any process started so far has held; says what it has done last.
void PrintPeakSoFar(const char* what, const ProcessCall& last);

} // namespace Hesperin
