#pragma once

#include "reports/mod_comparison.h"

#include <functional>

namespace Hesperin {

/// What stands in a table beside its rows.
struct TableSides {
    std::vector<RefusedPlace> refused;                  ///< all that could not be read
    std::optional<std::vector<FileComparison>> against; ///< another version, if there is one
};

/// The survey as one JSON document, in pieces for `write`: texts of the files as strings, what is
/// computed as numbers, null where there is none.
void WriteTableJson(const Survey& survey, const TableSides& sides, const Messages& messages,
                    const std::function<void(const QByteArray&)>& write);

} // namespace Hesperin
