#include "text/nearest.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace Hesperin {

namespace {

/// Letters to put in, leave out or change.
qsizetype Distance(QStringView from, QStringView to) {
    std::vector<qsizetype> row(static_cast<std::size_t>(to.size()) + 1);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<qsizetype>(i);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool same = from[i] == to[static_cast<qsizetype>(j) - 1];
            const qsizetype best =
                std::min({row[j] + 1, row[j - 1] + 1, diagonal + (same ? 0 : 1)});
            diagonal = std::exchange(row[j], best);
        }
    }
    return row.back();
}

} // namespace

QString NearestTo(const QString& word, const QStringList& known) {
    constexpr qsizetype longestWord = 64; // of a longer one its beginning decides
    const QString wanted = word.left(longestWord).toCaseFolded();
    QString nearest;
    qsizetype least = std::numeric_limits<qsizetype>::max();
    for (const QString& candidate : known) {
        const qsizetype distance = Distance(wanted, candidate.toCaseFolded());
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace Hesperin
