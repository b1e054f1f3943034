// Edits of a file's bytes, as values.
#pragma once

#include "text/error.h"

#include <QByteArray>

#include <vector>

namespace Hesperin {

/// Puts `bytes` in the place of `length` bytes from `offset` on.
struct Edit {
    qsizetype offset = 0;
    qsizetype length = 0;
    QByteArray bytes;

    bool operator==(const Edit&) const = default;
};

/// The file with all edits applied; those of one offset in the order given, insertions first. Edits
/// that overlap or reach past the end are refused (Error::What::UnsafeEdit).
Result<QByteArray> ApplyEdits(const QByteArray& file, std::vector<Edit> edits);

} // namespace Hesperin
