#pragma once

#include "creature_files/change.h"
#include "reports/change_report.h"
#include "reports/mod_scale.h"

#include <functional>

namespace Hesperin {

/// Makes changes in a file; why one can't be made, and what is told of those that were, goes to the
/// report.
using FileEditing = std::function<void(EditedFile& file, ChangeReport& report)>;

/// What `edit` does to the file `path`; nothing is written.
ChangeReport TryEdit(const QString& path, const FileEditing& edit);

/// Makes the same changes in one file after another.
struct FileChanger {
    std::vector<Change> changes; ///< in this order, those that ask for a computed figure last
    bool anyWord = false;
    const ModScale* scale = nullptr; ///< by which computed figures are divided; null: not at all

    /// What the changes do to the file `path`; nothing is written.
    ChangeReport Try(const QString& path) const;
};

} // namespace Hesperin
