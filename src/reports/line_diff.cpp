#include "reports/line_diff.h"

#include <QByteArrayView>

#include <algorithm>
#include <vector>

namespace Hesperin {

namespace {

constexpr std::size_t Context = 3;

using Lines = std::vector<QByteArrayView>;

/// With their ends; the last may have none.
Lines LinesOf(QByteArrayView text) {
    Lines lines;
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf('\n');
        const qsizetype length = end < 0 ? text.size() : end + 1;
        lines.push_back(text.first(length));
        text = text.sliced(length);
    }
    return lines;
}

/// A line of the diff: ' ' in both, '-' in the first, '+' in the second.
struct Step {
    char mark;
    QByteArrayView line;
};

/// E. Myers' greedy walk through the grid of both files: for each number of changes, how far in `a`
/// they lead on each diagonal. Takes memory by the changes alone.
class Walk {
public:
    Walk(const Lines& first, const Lines& second) : a(first), b(second) {}

    /// The steps with the fewest changes; all of `a` goes and all of `b` comes where there are very
    /// many.
    std::vector<Step> Run() {
        constexpr int mostChanges = 2000;
        std::vector<int> furthest(2 * mostChanges + 3, 0);
        for (int changes = 0; changes <= mostChanges; ++changes) {
            const auto middle = furthest.begin() + mostChanges + 1;
            rounds.emplace_back(middle - changes - 1, middle + changes + 2);
            for (int k = -changes; k <= changes; k += 2) {
                int row = Before(k, changes).row + (ComesDown(k, changes) ? 0 : 1);
                while (row < Rows() && row - k < Columns() && LineA(row) == LineB(row - k))
                    ++row;
                middle[k] = row;
                if (row >= Rows() && row - k >= Columns())
                    return StepsOf(changes);
            }
        }
        std::vector<Step> steps;
        for (const QByteArrayView line : a)
            steps.push_back({'-', line});
        for (const QByteArrayView line : b)
            steps.push_back({'+', line});
        return steps;
    }

private:
    struct Place {
        int row;
        int column;
    };

    int Rows() const { return static_cast<int>(a.size()); }
    int Columns() const { return static_cast<int>(b.size()); }
    QByteArrayView LineA(int row) const { return a[static_cast<std::size_t>(row)]; }
    QByteArrayView LineB(int column) const { return b[static_cast<std::size_t>(column)]; }

    /// How far one change less leads on diagonal k.
    int Furthest(int k, int changes) const {
        const int place = k + changes + 1;
        return rounds[static_cast<std::size_t>(changes)][static_cast<std::size_t>(place)];
    }

    /// Whether the last change on diagonal k is a line that comes.
    bool ComesDown(int k, int changes) const {
        return k == -changes ||
               (k != changes && Furthest(k - 1, changes) < Furthest(k + 1, changes));
    }

    /// Where that change starts.
    Place Before(int k, int changes) const {
        const int from = ComesDown(k, changes) ? k + 1 : k - 1;
        return {Furthest(from, changes), Furthest(from, changes) - from};
    }

    std::vector<Step> StepsOf(int changes) const {
        std::vector<Step> steps;
        Place at{Rows(), Columns()};
        const auto backTo = [&](int row) {
            for (; at.row > row; --at.row, --at.column)
                steps.push_back({' ', LineA(at.row - 1)});
        };
        for (; changes > 0; --changes) {
            const int k = at.row - at.column;
            const bool comes = ComesDown(k, changes);
            const Place before = Before(k, changes);
            backTo(before.row + (comes ? 0 : 1));
            steps.push_back(comes ? Step{'+', LineB(at.column - 1)} : Step{'-', LineA(at.row - 1)});
            at = before;
        }
        backTo(0);
        std::reverse(steps.begin(), steps.end());
        return steps;
    }

    const Lines& a;
    const Lines& b;
    std::vector<std::vector<int>> rounds; ///< what was furthest before each number of changes
};

QByteArray Range(std::size_t before, std::size_t count) {
    const std::size_t start = count == 0 ? before : before + 1;
    return QByteArray::number(static_cast<qulonglong>(start)) + ',' +
           QByteArray::number(static_cast<qulonglong>(count));
}

} // namespace

QByteArray LineDiff(const QByteArray& before, const QByteArray& after) {
    const Lines first = LinesOf(before);
    const Lines second = LinesOf(after);
    const std::vector<Step> steps = Walk(first, second).Run();
    QByteArray diff;
    std::size_t inFirst = 0; // lines of either file before the place
    std::size_t inSecond = 0;
    for (std::size_t at = 0; at < steps.size();) {
        if (steps[at].mark == ' ') {
            ++at, ++inFirst, ++inSecond;
            continue;
        }
        std::size_t start = at - std::min(at, Context);
        std::size_t end = at; // behind the last change that belongs to the hunk
        for (std::size_t next = at; next < steps.size() && next <= end + 2 * Context; ++next)
            if (steps[next].mark != ' ')
                end = next + 1;
        const std::size_t stop = std::min(steps.size(), end + Context);
        const std::size_t leading = at - start;
        std::size_t ofFirst = 0;
        std::size_t ofSecond = 0;
        QByteArray body;
        for (; start < stop; ++start) {
            const Step& step = steps[start];
            ofFirst += step.mark != '+' ? 1 : 0;
            ofSecond += step.mark != '-' ? 1 : 0;
            body += step.mark;
            body += step.line;
            if (!step.line.endsWith('\n'))
                body += "\n\\ No newline at end of file\n";
        }
        diff += "@@ -" + Range(inFirst - leading, ofFirst) + " +" +
                Range(inSecond - leading, ofSecond) + " @@\n" + body;
        inFirst += ofFirst - leading;
        inSecond += ofSecond - leading;
        at = stop;
    }
    return diff;
}

} // namespace Hesperin
