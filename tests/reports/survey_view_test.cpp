#include "reports/standing.h"
#include "reports/survey_view.h"
#include "support/cases_file.h"

namespace Hesperin {

namespace {

/// Name, tier, town, Power, deviation and abilities; a dash stands for what a creature lacks.
constexpr const char* Creatures[] = {
    "Ash_wyvern   6 DUNGEON  2300 +30.0 LARGE_CREATURE",   "Bog_archer 2 PRESERVE 150 -4.0  SHOOTER",
    "Cave_spider  2 DUNGEON  90   -31.5 POISON",           "Dusk_mage  4 ACADEMY  700 0.0   CASTER|SHOOTER",
    "elder_archer 2 PRESERVE 210  +4.0  SHOOTER|NO_MELEE", "Fallen     - -        -   -     -",
};

std::shared_ptr<const Survey> MadeSurvey() {
    auto survey = std::make_shared<Survey>();
    for (const char* words : Creatures) {
        const QStringList cells = QString(words).split(' ', Qt::SkipEmptyParts);
        const auto given = [&](int at) { return cells[at] == "-" ? QString() : cells[at]; };
        SurveyRow row;
        row.Text(Column::Name) = given(0);
        row.Text(Column::File) = "Creatures/" + given(0) + ".xdb";
        row.place = "/mod/" + row.File();
        row.Text(Column::CreatureTier) = given(1);
        row.tier = given(1).toShort();
        row.Text(Column::Town) = given(2);
        row.Text(Column::Power) = given(3);
        row.Text(Column::Abilities) = given(5).replace('|', ' ');
        if (cells[4] != "-")
            row.deviation = cells[4].toDouble();
        survey->scale.Add(row.tier, Figure::Power, 2, 1);
        survey->findings.push_back({Rule::FigureZero, Severity::Warning, row.File(), 0, 0, {}, {}, {}});
        survey->rows.push_back(row);
    }
    survey->findings.push_back({Rule::Link, Severity::Note, {}, 0, 0, {}, {}, {}});
    return survey;
}

QString NamesOf(const SurveyView& view) {
    QStringList names;
    for (const std::size_t row : view.Shown()) {
        names.append(view.Whole().rows[row].Name());
        EXPECT_EQ(view.Shown()[view.PlaceOf(row).value()], row);
    }
    return names.join(' ') + "\n" + QString::number(view.FindingsShown().size()) + " findings";
}

/// "tier 2; town DUNGEON; outliers; words a b; sort -Power" in any order
QString Shown(const QString& wish) {
    SurveyView view(MadeSurvey());
    SurveyFilter filter;
    for (const QString& part : wish.split("; ")) {
        const QString value = part.section(' ', 1);
        if (part.startsWith("tier"))
            filter.tier = value.toShort();
        else if (part.startsWith("town"))
            filter.town = value;
        else if (part.startsWith("outliers"))
            filter.outliers = true;
        else if (part.startsWith("words"))
            filter.words = value;
        else if (part.startsWith("sort"))
            view.Sort({*ColumnOf(QString(value).remove('-')), value.startsWith('-')}, MessagesIn(English));
    }
    view.Filter(filter);
    return NamesOf(view);
}

/// "tier 2; average 400; power 200; own Bog_archer"
QString Stands(const QString& creature) {
    const auto survey = MadeSurvey();
    const auto number = [&](int part) { return creature.section("; ", part, part).section(' ', 1).toDouble(); };
    const QString own = creature.section("; ", 3).section(' ', 1);
    const auto standing =
        StandIn(*survey, {static_cast<std::int16_t>(number(0)), number(1), number(2),
                          own.isEmpty() ? std::nullopt : RowOfFile(*survey, "/mod/x/../Creatures/" + own + ".xdb")});
    if (!standing)
        return "nothing to compare with";
    QString text = QString("%1, place %2 among").arg(standing->deviation).arg(standing->place);
    for (const double other : standing->others)
        text += ' ' + QString::number(other);
    return text;
}

TEST(SurveyView, FiltersAndSorts) {
    ExpectCases("reports/survey_view.txt",
                [](const QString& act) { return act.contains("average") ? Stands(act) : Shown(act); });
}

TEST(SurveyView, OffersWhatThereIs) {
    const SurveyView view(MadeSurvey());
    EXPECT_EQ(view.Tiers(), (std::vector<std::int16_t>{2, 4, 6}));
    EXPECT_EQ(view.Towns().join(' '), "ACADEMY DUNGEON PRESERVE");
    EXPECT_EQ(RowOfFile(view.Whole(), "/mod/Creatures/elder_archer.xdb"), 4U);
    EXPECT_EQ(RowOfFile(view.Whole(), "/other/Creatures/elder_archer.xdb"), std::nullopt);
}

} // namespace

} // namespace Hesperin
