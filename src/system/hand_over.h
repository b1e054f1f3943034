// How a second start gives its file to the program that runs: in a small file beside the lock.
#pragma once

#include <QString>

#include <optional>

namespace Hesperin {

/// Leaves the file `path`, which is made absolute, in `folder` for the program that watches it
/// there. Of two that come before it looks, the later counts. False: it can't be written.
bool HandOver(const QString& folder, const QString& path);

/// Whether what was left in `folder` still lies there.
bool IsHandedOver(const QString& folder);

/// Takes the path that was left in `folder`, at most once. None: there is nothing, or nothing that
/// is a path; that is removed.
std::optional<QString> TakeHandedOver(const QString& folder);

} // namespace Hesperin
