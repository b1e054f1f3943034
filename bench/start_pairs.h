#pragma once

#include <QStringList>

namespace Hesperin {

struct ProcessCall {
    QString program;
    QStringList arguments;
};

/// Runs the figure and its floor in turn, some thirty times each, and prints the medians of their
/// wall times and the ratio.
void PrintPair(const char* what, const ProcessCall& figure, const ProcessCall& floor);

} // namespace Hesperin
