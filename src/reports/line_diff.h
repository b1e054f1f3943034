#pragma once

#include <QByteArray>

namespace Hesperin {

/// The hunks of a unified diff, three lines of context around each; empty when the two are the
/// same.
QByteArray LineDiff(const QByteArray& before, const QByteArray& after);

} // namespace Hesperin
