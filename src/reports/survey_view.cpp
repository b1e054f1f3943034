#include "reports/survey_view.h"

#include "system/file_place.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace Hesperin {

namespace {

QString WholePath(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

template <typename Matches>
std::optional<std::size_t> FirstRow(const Survey& survey, Matches matches) {
    const auto row = std::find_if(survey.rows.begin(), survey.rows.end(), matches);
    if (row == survey.rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(row - survey.rows.begin());
}

} // namespace

SurveyView::SurveyView(std::shared_ptr<const Survey> taken) : survey(std::move(taken)) {
    for (const SurveyRow& row : Whole().rows)
        searched.push_back((row.File() + u'\n' + row.Name() + u'\n' + row.Text(Column::Town) +
                            u'\n' + row.Text(Column::Abilities))
                               .toCaseFolded());
    order.resize(searched.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    shown = order;
}

const Survey& SurveyView::Whole() const {
    static const Survey none;
    return survey ? *survey : none;
}

void SurveyView::Filter(const SurveyFilter& wish) {
    filter = wish;
    words = wish.words.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
    Gather();
}

void SurveyView::Sort(const RowOrder& wish, const Messages& messages) {
    order = SortedPlaces(Whole().rows, wish, messages);
    Gather();
}

std::optional<std::size_t> SurveyView::PlaceOf(std::size_t row) const {
    const auto place = std::find(shown.begin(), shown.end(), row);
    if (place == shown.end())
        return std::nullopt;
    return static_cast<std::size_t>(place - shown.begin());
}

std::vector<std::int16_t> SurveyView::Tiers() const {
    std::vector<std::int16_t> tiers;
    for (const SurveyRow& row : Whole().rows)
        if (row.tier != 0 && std::find(tiers.begin(), tiers.end(), row.tier) == tiers.end())
            tiers.push_back(row.tier);
    std::sort(tiers.begin(), tiers.end());
    return tiers;
}

QStringList SurveyView::Towns() const {
    QSet<QString> towns;
    for (const SurveyRow& row : Whole().rows)
        if (!row.Text(Column::Town).isEmpty())
            towns.insert(row.Text(Column::Town));
    QStringList sorted = towns.values();
    sorted.sort();
    return sorted;
}

Survey SurveyView::OnlyShown() const {
    Survey part = Whole();
    part.rows.clear();
    for (const std::size_t row : shown)
        part.rows.push_back(Whole().rows[row]);
    return part;
}

std::vector<std::size_t> SurveyView::FindingsShown() const {
    QSet<QString> files;
    for (const std::size_t row : shown)
        files.insert(Whole().rows[row].File());
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < Whole().findings.size(); ++place)
        if (const QString& file = Whole().findings[place].file;
            file.isEmpty() || files.contains(file))
            places.push_back(place);
    return places;
}

bool SurveyView::Passes(std::size_t place) const {
    const SurveyRow& row = Whole().rows[place];
    return (filter.tier == 0 || row.tier == filter.tier) &&
           (filter.town.isEmpty() || row.Text(Column::Town) == filter.town) &&
           (!filter.outliers || IsOutlier(row)) &&
           std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return searched[place].contains(word); });
}

void SurveyView::Gather() {
    shown.clear();
    std::copy_if(order.begin(), order.end(), std::back_inserter(shown),
                 [this](std::size_t row) { return Passes(row); });
}

std::optional<std::size_t> RowOfFile(const Survey& survey, const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return FirstRow(survey, [&, whole = WholePath(path)](const SurveyRow& row) {
        return !row.packed && row.place.endsWith(name, FileNameCase) &&
               WholePath(row.place).compare(whole, FileNameCase) == 0;
    });
}

std::optional<std::size_t> RowOfInnerPath(const Survey& survey, const QString& file) {
    return FirstRow(survey, [&](const SurveyRow& row) { return row.File() == file; });
}

} // namespace Hesperin
