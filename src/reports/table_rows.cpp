#include "reports/table_rows.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Hesperin {

namespace {

struct SortKey {
    enum class Kind : std::uint8_t { Number, Words, Empty };

    Kind kind;
    double number;
    QString words;
};

SortKey KeyOf(const SurveyRow& row, Column column, const Messages& messages) {
    if (const auto number = row.Number(column))
        return {SortKey::Kind::Number, *number, {}};
    QString words = CellText(row, column, messages).toCaseFolded();
    const auto kind = words.isEmpty() ? SortKey::Kind::Empty : SortKey::Kind::Words;
    return {kind, 0, std::move(words)};
}

bool ComesBefore(const SortKey& a, const SortKey& b, bool falling) {
    if (a.kind == SortKey::Kind::Empty || b.kind == SortKey::Kind::Empty)
        return a.kind < b.kind;
    const SortKey& less = falling ? b : a;
    const SortKey& more = falling ? a : b;
    if (less.kind != more.kind)
        return less.kind < more.kind;
    return less.kind == SortKey::Kind::Number ? less.number < more.number : less.words < more.words;
}

} // namespace

std::vector<RefusedPlace> AllRefused(const Survey& survey) {
    std::vector<RefusedPlace> refused = survey.refused;
    for (const SurveyRow& row : survey.rows)
        if (row.problem)
            refused.push_back({row.File(), *row.problem});
    return refused;
}

void AddRefusedRows(Survey& survey) {
    for (const RefusedPlace& place : survey.refused) {
        SurveyRow row;
        row.Text(Column::File) = place.path;
        row.place = place.path;
        row.packed = true;
        row.problem = place.error;
        survey.rows.push_back(std::move(row));
    }
}

std::vector<std::size_t> SortedPlaces(const std::vector<SurveyRow>& rows, const RowOrder& order,
                                      const Messages& messages) {
    std::vector<SortKey> keys;
    keys.reserve(rows.size());
    for (const SurveyRow& row : rows)
        keys.push_back(KeyOf(row, order.column, messages));
    std::vector<std::size_t> places(rows.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
        return ComesBefore(keys[a], keys[b], order.falling);
    });
    return places;
}

void SortRows(std::vector<SurveyRow>& rows, const RowOrder& order, const Messages& messages) {
    std::vector<SurveyRow> sorted;
    sorted.reserve(rows.size());
    for (const std::size_t place : SortedPlaces(rows, order, messages))
        sorted.push_back(std::move(rows[place]));
    rows = std::move(sorted);
}

void KeepOutliers(std::vector<SurveyRow>& rows, double percent) {
    std::erase_if(rows, [percent](const SurveyRow& row) {
        return !row.deviation || std::abs(*row.deviation) <= percent;
    });
}

} // namespace Hesperin
