#pragma once

#include <QByteArray>
#include <QString>

#include <variant>

namespace Hesperin {

/// Why a file couldn't be read.
struct ReadProblem {
    enum class Kind : std::uint8_t { Missing, IsFolder, Unreadable, TooLarge };
    Kind kind;
    QString reason; ///< what the system says; empty for TooLarge and IsFolder
};

/// The bytes of the file `path`. A file of more than `limit` bytes is refused without reading it
/// whole, also one that doesn't tell its size.
std::variant<QByteArray, ReadProblem> ReadFile(const QString& path, qint64 limit);

} // namespace Hesperin
