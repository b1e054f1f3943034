// What the commands that edit many files in place have in common.
#pragma once

#include "reports/change_report.h"

#include <QCommandLineParser>

#include <functional>

namespace Hesperin {

/// The options --write, --diff and --json.
void AddEditOptions(QCommandLineParser& parser);

/// Why these options don't go together; empty when they do.
QString WhyAtOdds(const QCommandLineParser& parser);

/// Asks `change` what becomes of each of `count` files, from 0, some at once by other threads;
/// writes what changes where that is wished; tells all in order. Gives an exit code.
int EditFiles(const QCommandLineParser& parser, qsizetype count,
              const std::function<ChangeReport(qsizetype)>& change);

} // namespace Hesperin
