#pragma once

#include "creature_files/edited_file.h"
#include "localisation/messages.h"

#include <QJsonObject>

namespace Hesperin {

/// What an edit in place does, or has done, to one file.
struct ChangeReport {
    QString file;
    std::vector<Error> errors{}; ///< why nothing is changed
    std::vector<FileChange> changes{};
    std::vector<Error> notes{};
    QByteArray before{};
    QByteArray after{}; ///< empty when nothing changes
    bool written = false;
};

/// The file and a line a change, and the notes; empty when nothing changes.
QString ChangeText(const Messages& messages, const ChangeReport& report);

QJsonObject ChangeJson(const Messages& messages, const ChangeReport& report);

/// The changed lines with three lines around them, as `diff -u` gives them, in the file's own
/// bytes; empty when nothing changes.
QByteArray ChangeDiff(const ChangeReport& report);

} // namespace Hesperin
