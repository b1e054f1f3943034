#pragma once

#include "engine/program.h"

namespace Hesperin {

struct CreatureText {
    QString text;
    bool plain; ///< every value consists of letters, digits, blanks, `_`, `-` and `.` alone, so
                ///< that it can't be read as anything else
};

/// The text of the creature file for what the window shows, with a line feed between lines and none
/// behind the last. `creatureName` names the shared map object and the visual that the file links
/// to. A value's `&` and `<` are escaped, in a reference `"` as well; all else stands as it is.
CreatureText BuildCreatureText(const Program& program, const QString& creatureName);

/// The bytes of such a file on disk: the text as UTF-8 and one carriage return and line feed behind
/// it.
QByteArray CreatureFileBytes(const QString& text);

} // namespace Hesperin
