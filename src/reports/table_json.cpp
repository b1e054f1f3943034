#include "reports/table_json.h"

#include "localisation/error_text.h"
#include "reports/json.h"

namespace Hesperin {

namespace {

QJsonObject RowJson(const SurveyRow& row, const Messages& messages) {
    QJsonObject object;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Column::Count); ++i) {
        const auto column = static_cast<Column>(i);
        const auto number = row.Number(column);
        const bool isText = i < TextColumns || column == Column::Problem;
        object.insert(HeadingOf(column), isText   ? CellText(row, column, messages)
                                         : number ? QJsonValue(*number)
                                                  : QJsonValue());
    }
    return object;
}

QJsonObject TierJson(const ModScale& scale, std::int16_t tier) {
    return {{"tier", tier},
            {"count", static_cast<qint64>(scale.CountOf(tier, Figure::Power))},
            {"scale", *scale.Of(tier, Figure::Power)}};
}

QJsonObject ComparisonJson(const FileComparison& file) {
    constexpr const char* kinds[] = {"added", "removed", "changed"};
    QJsonArray columns;
    for (const CellChange& change : file.changes)
        columns.append(QJsonObject{
            {"column", HeadingOf(change.column)}, {"old", change.before}, {"new", change.after}});
    return {{"file", file.file},
            {"change", kinds[static_cast<std::size_t>(file.kind)]},
            {"columns", columns},
            {"power_unchanged", file.powerStayed}};
}

} // namespace

void WriteTableJson(const Survey& survey, const TableSides& sides, const Messages& messages,
                    const std::function<void(const QByteArray&)>& write) {
    const auto list = [&write](const char* name, const auto& items, const auto& json) {
        write('"' + QByteArray(name) + "\":[");
        bool isFirst = true;
        for (const auto& item : items) {
            write((isFirst ? "\n" : ",\n") + JsonLine(json(item)));
            isFirst = false;
        }
        write("],\n");
    };
    write("{");
    list("files", survey.rows, [&](const SurveyRow& row) { return RowJson(row, messages); });
    list("tiers", survey.scale.KnownTiers(),
         [&](std::int16_t tier) { return TierJson(survey.scale, tier); });
    list("refused", sides.refused, [&](const RefusedPlace& place) {
        return QJsonObject{{"file", place.path}, {"reason", ErrorReason(messages, place.error)}};
    });
    if (sides.against)
        list("against", *sides.against, ComparisonJson);
    write("\"other\":" + QByteArray::number(static_cast<qint64>(survey.other)) + "}\n");
}

} // namespace Hesperin
