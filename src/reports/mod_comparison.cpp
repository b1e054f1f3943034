#include "reports/mod_comparison.h"

#include <QHash>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr Column RestsOn[] = {Column::CreatureTier, Column::Upgrade,   Column::AttackSkill,
                              Column::DefenceSkill, Column::MinDamage, Column::MaxDamage,
                              Column::Health,       Column::Speed,     Column::Initiative,
                              Column::Abilities,    Column::Product};

QStringList SetOf(const QString& words) {
    QStringList set = words.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
    set.sort();
    set.removeDuplicates();
    return set;
}

bool SameCell(const SurveyRow& a, const SurveyRow& b, Column column) {
    const QString& first = a.Text(column);
    const QString& second = b.Text(column);
    if (first == second)
        return true;
    if (column == Column::Abilities)
        return SetOf(first) == SetOf(second);
    const auto number = HoldsNumbers(column) ? a.Number(column) : std::nullopt;
    if (number)
        return number == b.Number(column);
    return column != Column::Name && first.compare(second, Qt::CaseInsensitive) == 0;
}

bool Changed(const FileComparison& file, Column column) {
    return std::any_of(file.changes.begin(), file.changes.end(),
                       [column](const CellChange& change) { return change.column == column; });
}

std::vector<CellChange> ChangesBetween(const SurveyRow& before, const SurveyRow& after,
                                       const Messages& messages) {
    if (before.problem || after.problem) {
        const QString was = CellText(before, Column::Problem, messages);
        const QString is = CellText(after, Column::Problem, messages);
        return was == is ? std::vector<CellChange>()
                         : std::vector<CellChange>{{Column::Problem, was, is}};
    }
    std::vector<CellChange> changes;
    for (std::size_t i = 1; i < TextColumns; ++i) // 0 is the file
        if (const auto column = static_cast<Column>(i); !SameCell(before, after, column))
            changes.push_back({column, before.Text(column), after.Text(column)});
    // Flying and CombatSize have no column, and tick an ability.
    if (SameCell(before, after, Column::Abilities)) {
        const QString was = CellText(before, Column::Product, messages);
        const QString is = CellText(after, Column::Product, messages);
        if (was != is)
            changes.push_back({Column::Product, was, is});
    }
    return changes;
}

} // namespace

std::vector<FileComparison> CompareMods(const Survey& before, const Survey& after,
                                        const Messages& messages) {
    using Kind = FileComparison::Kind;
    QHash<QString, const SurveyRow*> old;
    for (const SurveyRow& row : before.rows)
        old.insert(row.File().toCaseFolded(), &row);
    std::vector<FileComparison> files;
    for (const SurveyRow& row : after.rows) {
        const SurveyRow* was = old.take(row.File().toCaseFolded());
        FileComparison file{row.File(), was == nullptr ? Kind::Added : Kind::Changed, {}, false};
        if (was != nullptr)
            file.changes = ChangesBetween(*was, row, messages);
        file.powerStayed = !Changed(file, Column::Power) &&
                           std::any_of(std::begin(RestsOn), std::end(RestsOn),
                                       [&file](Column column) { return Changed(file, column); });
        if (was == nullptr || !file.changes.empty())
            files.push_back(std::move(file));
    }
    for (const SurveyRow* row : old)
        files.push_back({row->File(), Kind::Removed, {}, false});
    std::sort(files.begin(), files.end(),
              [](const FileComparison& a, const FileComparison& b) { return a.file < b.file; });
    return files;
}

} // namespace Hesperin
