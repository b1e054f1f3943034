// Which creatures of a survey are shown, and in which order.
#pragma once

#include "reports/deviation_picture.h"
#include "reports/table_rows.h"

namespace Hesperin {

/// What narrows the table. Each choice narrows it further.
struct SurveyFilter {
    QString words{};       ///< parted by blanks; each must occur in file, name, town or abilities
    std::int16_t tier = 0; ///< 0: all
    QString town{};        ///< empty: all
    bool outliers = false; ///< nothing else

    bool operator==(const SurveyFilter&) const = default;
};

/// Filters and sorts a survey.
class SurveyView {
public:
    SurveyView() : SurveyView(nullptr) {}
    explicit SurveyView(std::shared_ptr<const Survey> survey); ///< null: none is loaded

    bool Loaded() const { return survey != nullptr; }

    /// The survey; an empty one when none is loaded.
    const Survey& Whole() const;

    void Filter(const SurveyFilter& wish);

    void Sort(const RowOrder& wish, const Messages& messages);

    /// The rows shown, as places in the survey.
    const std::vector<std::size_t>& Shown() const { return shown; }

    /// Where a row of the survey stands among those shown.
    std::optional<std::size_t> PlaceOf(std::size_t row) const;

    // What there is to choose from.
    std::vector<std::int16_t> Tiers() const;
    QStringList Towns() const;

    /// The survey with no rows but those shown, in their order.
    Survey OnlyShown() const;

    /// The findings in the files shown, and those of the whole mod.
    std::vector<std::size_t> FindingsShown() const;

private:
    bool Passes(std::size_t row) const;
    void Gather();

    std::shared_ptr<const Survey> survey;
    std::vector<QString> searched;  ///< by row: what the words are looked for in
    std::vector<std::size_t> order; ///< all rows, sorted
    std::vector<std::size_t> shown;
    SurveyFilter filter;
    QStringList words;
};

/// The row of the file on disk; none when the survey lacks it.
std::optional<std::size_t> RowOfFile(const Survey& survey, const QString& path);

/// The row of the inner path.
std::optional<std::size_t> RowOfInnerPath(const Survey& survey, const QString& file);

} // namespace Hesperin
