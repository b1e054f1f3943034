#pragma once

#include <QStringList>

namespace Hesperin {

/// What the program was started with.
struct StartArguments {
    QString answer;       ///< to be printed in place of a start; empty for a start
    bool misused = false; ///< `answer` is a complaint
    QString creatureFile; ///< to be opened at the start; empty for none
};

/// `arguments` without the program's own name. Options of the toolkit ("-platform offscreen") are
/// passed over.
StartArguments ReadStartArguments(const QStringList& arguments);

} // namespace Hesperin
