#pragma once

#include "text/error.h"

#include <functional>

namespace Hesperin {

/// What is told of a walk through a folder. Paths are below it, with /. Refused are folders that
/// may not be read, and folders and documents with a name that can't be.
struct FolderVisitor {
    std::function<void(const QString& path)> file;
    std::function<void(const QString& path, const Error& why)> refused;
    std::function<bool()> goOn; ///< false ends the walk; none: it goes to its end
};

/// Every file in `folder` and in the folders below it, in any order; hidden ones and links to
/// folders are left out, links to files are not.
void WalkFolder(const QString& folder, const FolderVisitor& visitor);

} // namespace Hesperin
