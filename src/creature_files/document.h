#pragma once

#include "text/error.h"

#include <QByteArray>

namespace Hesperin {

/// The largest file that is read at all, in bytes.
inline constexpr qint64 LargestCreatureFile = 1 << 20;

/// The longest normalised text, in UTF-16 units: positions in it are held in 16 bits.
inline constexpr qsizetype LongestCreatureText = 32767;

/// The normalised text of a creature document given as the bytes of its file.
Result<QString> NormaliseCreature(const QByteArray& bytes);

struct CreatureDocument {
    QByteArray bytes; ///< of the file
    QString text;     ///< normalised
};

/// The creature file `path`. The error names it.
Result<CreatureDocument> LoadCreatureDocument(const QString& path);

} // namespace Hesperin
