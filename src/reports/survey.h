// A whole mod at a glance: a row a creature, the scale of each tier, what is wrong. Command line
// and window show the same survey.
#pragma once

#include "creature_files/mod.h"
#include "model/formulas.h"
#include "reports/finding.h"
#include "reports/mod_scale.h"

#include <array>
#include <atomic>
#include <optional>

namespace Hesperin {

/// The columns of the table, in their order.
enum class Column : std::uint8_t {
    File,
    Name,
    Town,
    CreatureTier,
    Upgrade,
    AttackSkill,
    DefenceSkill,
    MinDamage,
    MaxDamage,
    Health,
    Speed,
    Initiative,
    Shots,
    SpellPoints,
    Range,
    Power,
    Exp,
    WeeklyGrowth,
    Gold,
    Abilities, ///< the last that holds text out of the file
    RolvanePower,
    HesperinPower,
    AveragePower,
    RolvaneExp,
    HesperinExp,
    AverageExp,
    RolvaneWeeklyGrowth,
    HesperinWeeklyGrowth,
    AverageWeeklyGrowth,
    RolvaneGold,
    HesperinGold,
    AverageGold,
    Product,
    Advised,
    Scale,
    Deviation,
    Problem,
    Count
};

inline constexpr std::size_t TextColumns = static_cast<std::size_t>(Column::Abilities) + 1;

/// The heading of a column, the same in every language: "average.Power".
QString HeadingOf(Column column);

/// The column of that heading, letter case not counting.
std::optional<Column> ColumnOf(QStringView heading);

/// Whether the cells of the column are numbers, those of the file included.
bool HoldsNumbers(Column column);

/// A creature of the mod.
struct SurveyRow {
    QString place;       ///< the file on disk; of one in an archive the archive
    bool packed = false; ///< lies in an archive: can't be opened in the window
    std::array<QString, TextColumns> texts;
    std::int16_t tier = 0; ///< its own CreatureTier, 0 when that can't be read

    // Its own figures as numbers, which may lie outside 16 bits.
    double power = 0;
    double experience = 0;
    double growth = 0;
    double gold = 0;

    Powers powers;                  ///< unless there is a problem
    std::optional<Figures> figures; ///< none with a problem or a Power of 0
    float product = 0;
    std::int16_t advised = 0;
    std::optional<double> scale;     ///< of Power in its tier
    std::optional<double> deviation; ///< in percent, one decimal
    std::optional<Error> problem;

    /// What stands in the file; of a column up to Abilities.
    const QString& Text(Column column) const { return texts[static_cast<std::size_t>(column)]; }
    QString& Text(Column column) { return texts[static_cast<std::size_t>(column)]; }
    const QString& File() const { return Text(Column::File); }
    const QString& Name() const { return Text(Column::Name); }

    /// The number in the cell; none where it is empty or no number.
    std::optional<double> Number(Column column) const;
};

/// What the cell shows, without regard to the locale; of a problem its words. The scale is rounded,
/// Number gives it whole.
QString CellText(const SurveyRow& row, Column column, const Messages& messages);

/// A scale as CellText gives it.
QString ScaleText(double scale);

struct Survey {
    std::vector<SurveyRow> rows; ///< in the order of their files
    ModScale scale;
    std::vector<RefusedPlace> refused; ///< folders and archives; a refused file has its row
    std::size_t other = 0;             ///< documents that are no creatures
    std::vector<Finding> findings;     ///< in the order of their files, lines and rules
    bool cancelled = false;            ///< nothing else is there then
};

struct SurveyWish {
    QStringList paths;
    QStringList game;      ///< the game's own folders and archives, for links and tokens
    bool findings = false; ///< look for them as well
    unsigned jobs = 0;     ///< threads; 0: one for each core
};

/// How far a survey has come; may be looked at and changed by another thread.
struct SurveyProgress {
    std::atomic<std::size_t> done{0};
    std::atomic<std::size_t> all{0}; ///< 0 while the folders are being walked
    std::atomic<bool> cancel{false};
};

/// Reads all files, on many threads. What can't be read is told in the survey. `progress` may be
/// null.
Survey TakeSurvey(const SurveyWish& wish, SurveyProgress* progress = nullptr);

/// The row of one document, whose problem may be that it is no creature; scale and deviation are
/// still lacking.
SurveyRow RowOf(const ModFile& file, const Result<QByteArray>& bytes);

/// Deviation of a creature from its tier, in percent to one decimal: how far computed to own Power
/// lies from the scale of the tier; none where one of the three is 0 or less.
std::optional<double> DeviationOf(double averagePower, double power, std::optional<double> scale);

/// Percent above which a creature is an outlier, either way.
inline constexpr double OutlierPercent = 25;

bool IsOutlier(const SurveyRow& row);

/// "+31.2 %", with a minus sign as long as the plus.
QString DeviationText(double deviation, int decimals = 1);

/// What a creature is called: its name, or that of its file when it has none; on one line.
QString ShownName(const SurveyRow& row);

} // namespace Hesperin
