// Two versions of a mod beside each other.
#pragma once

#include "reports/survey.h"

namespace Hesperin {

struct CellChange {
    Column column;
    QString before;
    QString after;
};

struct FileComparison {
    enum class Kind : std::uint8_t { Added, Removed, Changed };

    QString file;
    Kind kind;
    std::vector<CellChange> changes; ///< in the order of the columns
    bool powerStayed = false;        ///< what Power rests on has changed, and Power has not
};

/// The creatures that one version has and the other hasn't, and those that differ, by inner path
/// and in its order; letter case doesn't count. Numbers are compared as numbers, words without
/// letter case, abilities as a set. Where a file can't be read in one version, only the problem is
/// told.
std::vector<FileComparison> CompareMods(const Survey& before, const Survey& after,
                                        const Messages& messages);

} // namespace Hesperin
