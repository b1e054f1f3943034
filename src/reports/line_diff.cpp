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

/// By the longest common part of what lies between the lines that both begin and end with.
std::vector<Step> Compare(const Lines& a, const Lines& b) {
    std::size_t first = 0;
    while (first < a.size() && first < b.size() && a[first] == b[first])
        ++first;
    std::size_t last = 0;
    while (last < a.size() - first && last < b.size() - first &&
           a[a.size() - 1 - last] == b[b.size() - 1 - last])
        ++last;
    const std::size_t rows = a.size() - first - last;
    const std::size_t columns = b.size() - first - last;
    std::vector<std::vector<std::uint32_t>> common(
        rows + 1, std::vector<std::uint32_t>(columns + 1, 0)); // of what follows
    for (std::size_t i = rows; i-- > 0;)
        for (std::size_t j = columns; j-- > 0;)
            common[i][j] = a[first + i] == b[first + j]
                               ? common[i + 1][j + 1] + 1
                               : std::max(common[i + 1][j], common[i][j + 1]);
    std::vector<Step> steps;
    for (std::size_t i = 0; i < first; ++i)
        steps.push_back({' ', a[i]});
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < rows || j < columns) {
        if (i < rows && j < columns && a[first + i] == b[first + j]) {
            steps.push_back({' ', a[first + i++]});
            ++j;
        } else if (i < rows && (j == columns || common[i + 1][j] >= common[i][j + 1])) {
            steps.push_back({'-', a[first + i++]});
        } else {
            steps.push_back({'+', b[first + j++]});
        }
    }
    for (std::size_t k = a.size() - last; k < a.size(); ++k)
        steps.push_back({' ', a[k]});
    return steps;
}

QByteArray Range(std::size_t before, std::size_t count) {
    const std::size_t start = count == 0 ? before : before + 1;
    return QByteArray::number(static_cast<qulonglong>(start)) + ',' +
           QByteArray::number(static_cast<qulonglong>(count));
}

} // namespace

QByteArray LineDiff(const QByteArray& before, const QByteArray& after) {
    const std::vector<Step> steps = Compare(LinesOf(before), LinesOf(after));
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
        std::size_t first = 0;
        std::size_t second = 0;
        QByteArray body;
        for (; start < stop; ++start) {
            const Step& step = steps[start];
            first += step.mark != '+' ? 1 : 0;
            second += step.mark != '-' ? 1 : 0;
            body += step.mark;
            body += step.line;
            if (!step.line.endsWith('\n'))
                body += "\n\\ No newline at end of file\n";
        }
        diff += "@@ -" + Range(inFirst - leading, first) + " +" +
                Range(inSecond - leading, second) + " @@\n" + body;
        inFirst += first - leading;
        inSecond += second - leading;
        at = stop;
    }
    return diff;
}

} // namespace Hesperin
