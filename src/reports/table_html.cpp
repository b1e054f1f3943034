#include "reports/table_html.h"

#include "localisation/error_text.h"
#include "reports/deviation_svg.h"
#include "reports/html_page.h"
#include "system/version_record.h"

#include <QCryptographicHash>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr auto Columns = static_cast<std::size_t>(Column::Count);

QString CountText(std::size_t count) {
    return QString::number(static_cast<qulonglong>(count));
}

/// What a page's policy says of the style or script that stands in it.
QByteArray HashSource(const QByteArray& content) {
    return "'sha256-" + QCryptographicHash::hash(content, QCryptographicHash::Sha256).toBase64() +
           '\'';
}

/// The table of all creatures and the style of its columns.
class CreatureTable {
public:
    CreatureTable(const Survey& survey, const Messages& messages) {
        for (std::size_t at = 0; at < Columns; ++at)
            AddHeading(static_cast<Column>(at));
        for (const SurveyRow& row : survey.rows)
            AddRow(row, messages);
    }

    QByteArray Element() const {
        return "<table id=\"creatures\">\n<thead><tr>" + headings + "</tr></thead>\n<tbody>\n" +
               body + "</tbody>\n</table>\n";
    }

    /// Widths, which don't change with what is shown; texts to the left; on paper what tells most.
    QByteArray Style() const {
        QByteArray columns;
        QByteArray texts;
        QByteArray offPaper;
        for (std::size_t at = 0; at < Columns; ++at) {
            const auto column = static_cast<Column>(at);
            const QByteArray width = QByteArray::number(widths[at]) + "ch";
            columns += " calc(" + (column == Column::File ? "min(" + width + ",30vw)" : width) +
                       " + 1.75rem)";
            const QByteArray nth =
                ":nth-child(" + QByteArray::number(static_cast<int>(at) + 1) + ')';
            const QByteArray cells = ",#creatures th" + nth + ",#creatures td" + nth;
            if (!HoldsNumbers(column))
                texts += cells;
            if (!IsOnPaper(column))
                offPaper += cells;
        }
        return "#creatures tr{grid-template-columns:" + columns.mid(1) + "}\n" + texts.mid(1) +
               "{text-align:left}\n@media print{" + offPaper.mid(1) + "{display:none}}\n";
    }

private:
    static bool IsOnPaper(Column column) {
        switch (column) {
        case Column::File:
        case Column::Name:
        case Column::Town:
        case Column::CreatureTier:
        case Column::Power:
        case Column::AveragePower:
        case Column::Gold:
        case Column::AverageGold:
        case Column::Product:
        case Column::Advised:
        case Column::Scale:
        case Column::Deviation:
        case Column::Problem:
            return true;
        default:
            return false;
        }
    }

    void AddHeading(Column column) {
        const QString heading = HeadingOf(column);
        const QByteArray number = HoldsNumbers(column) ? "number" : "";
        headings += "<th scope=\"col\"" + ClassOf(column, number) + '>' +
                    HtmlElement("button type=\"button\"", heading) + "</th>";
        constexpr qsizetype arrow = 2;
        widths[static_cast<std::size_t>(column)] = heading.size() + arrow;
    }

    void AddRow(const SurveyRow& row, const Messages& messages) {
        const QByteArray kind = row.problem          ? "wrong"
                                : !IsOutlier(row)    ? ""
                                : *row.deviation > 0 ? "high"
                                                     : "low";
        body += kind.isEmpty() ? "<tr>" : "<tr class=\"" + kind + "\">";
        for (std::size_t at = 0; at < Columns; ++at) {
            const auto column = static_cast<Column>(at);
            AddCell(column, CellText(row, column, messages));
        }
        body += "</tr>\n";
    }

    void AddCell(Column column, const QString& text) {
        constexpr qsizetype widest = 40;
        QByteArray start = "td" + ClassOf(column, {});
        if (text.size() > widest)
            start += " title=\"" + InHtml(text) + '"';
        body += column == Column::File ? '<' + start + '>' + PathElement(text) + "</td>"
                                       : HtmlElement(start, text);
        qsizetype& width = widths[static_cast<std::size_t>(column)];
        width = std::max(width, std::min(text.size() + 1, widest));
    }

    /// The columns that stay in sight.
    static QByteArray ClassOf(Column column, const QByteArray& further) {
        QByteArray names = column == Column::Name        ? "held"
                           : column == Column::Deviation ? "off"
                                                         : "";
        if (!further.isEmpty())
            names += (names.isEmpty() ? "" : " ") + further;
        return names.isEmpty() ? names : " class=\"" + names + '"';
    }

    /// Of a path that is too long the folders are shortened, never the file's own name.
    static QByteArray PathElement(const QString& path) {
        const qsizetype name = path.lastIndexOf('/') + 1;
        return "<div class=\"path\">" + HtmlElement("span", path.first(name)) +
               HtmlElement("b", path.sliced(name)) + "</div>";
    }

    QByteArray headings;
    QByteArray body;
    std::array<qsizetype, Columns> widths{}; ///< in characters
};

QByteArray Sums(const Survey& survey, const Messages& messages) {
    const auto count = [&](const auto& which) {
        return static_cast<std::size_t>(
            std::count_if(survey.rows.begin(), survey.rows.end(), which));
    };
    const std::pair<const QString&, std::size_t> sums[] = {
        {messages.SurveyCreatures, survey.rows.size()},
        {messages.SurveyOutliers, count(IsOutlier)},
        {messages.SurveyUnread,
         count([](const SurveyRow& row) { return row.problem.has_value(); })},
        {messages.SurveyOther, survey.other}};
    QByteArray element = "<dl class=\"sums\">";
    for (const auto& [name, sum] : sums)
        element += "<div>" + HtmlElement("dt", name) + HtmlElement("dd", CountText(sum)) + "</div>";
    return element + "</dl>\n";
}

/// The picture, laid out for a telephone, a narrow and a wide window.
QByteArray Pictures(const Survey& survey, const Messages& messages) {
    struct Kind {
        const char* name;
        double width;
        double height;
    };
    constexpr Kind kinds[] = {{"narrow", 340, 300}, {"middle", 700, 400}, {"wide", 1000, 360}};
    QByteArray element = "<section class=\"picture\">\n" +
                         HtmlElement("h2", messages.SurveyPicture) +
                         HtmlElement("p", messages.SurveyPictureMeans) + '\n';
    for (const Kind& kind : kinds)
        element += DeviationSvg(LayOutDeviations(survey, kind.width, kind.height), survey,
                                kind.name, messages);
    return element + "</section>\n";
}

QByteArray Tiers(const Survey& survey, const Messages& messages) {
    constexpr std::int16_t lastTier = 8;
    constexpr int decimals = 4;
    QByteArray element = "<section>\n" + HtmlElement("h2", messages.SurveyTiers) +
                         "\n<table id=\"tiers\">\n<thead><tr>";
    for (const QString& heading :
         {messages.SurveyTier, messages.SurveyCreatures, messages.SurveyScale})
        element += HtmlElement("th scope=\"col\"", heading);
    element += "</tr></thead>\n<tbody>\n";
    for (std::int16_t tier = 1; tier <= lastTier; ++tier)
        if (const auto scale = survey.scale.Of(tier, Figure::Power))
            element += "<tr>" + HtmlElement("td", QString::number(tier)) +
                       HtmlElement("td", CountText(survey.scale.CountOf(tier, Figure::Power))) +
                       HtmlElement("td", QString::number(*scale, 'f', decimals)) + "</tr>\n";
    return element + "</tbody>\n</table>\n</section>\n";
}

/// What chooses the rows that are shown.
QByteArray ChoiceOfRows(const Messages& messages) {
    return "<div class=\"choice\"><label>" + InHtml(messages.SurveyFilter) +
           " <input type=\"search\" id=\"filter\"></label><label><input type=\"checkbox\" "
           "id=\"outliers\"> " +
           InHtml(messages.SurveyOutliersOnly) +
           "</label><output id=\"count\" for=\"filter outliers\" data-words=\"" +
           InHtml(messages.SurveyShown) + "\"></output></div>\n";
}

QByteArray Refused(const Survey& survey, const Messages& messages) {
    if (survey.refused.empty())
        return {};
    QByteArray element = "<section>\n" + HtmlElement("h2", messages.SurveyRefused) + "\n<ul>\n";
    for (const RefusedPlace& place : survey.refused)
        element += "<li>" + HtmlElement("strong", place.path) + ' ' +
                   InHtml(ErrorReason(messages, place.error)) + "</li>\n";
    return element + "</ul>\n</section>\n";
}

QByteArray Head(const QByteArray& style, const Messages& messages) {
    const QByteArray policy = "default-src 'none'; style-src " + HashSource(style) +
                              "; script-src " + HashSource(PageScript) +
                              "; base-uri 'none'; form-action 'none'";
    return "<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
           policy +
           "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n" +
           HtmlElement("title", messages.SurveyHeading) + "\n<style>" + style +
           "</style>\n</head>\n";
}

} // namespace

QByteArray TableHtml(const Survey& survey, const Messages& messages) {
    const CreatureTable table(survey, messages);
    const QByteArray language = messages.LanguageCode == "RU" ? "ru" : "en";
    return "<!DOCTYPE html>\n<html lang=\"" + language + "\">\n" +
           Head(PageStyle + table.Style(), messages) + "<body>\n<main>\n" +
           HtmlElement("h1", messages.SurveyHeading) + '\n' + Sums(survey, messages) +
           "<div class=\"above\">\n" + Pictures(survey, messages) + Tiers(survey, messages) +
           "</div>\n" + Refused(survey, messages) + "<section>\n" +
           HtmlElement("h2", messages.SurveyCreatures) + '\n' + ChoiceOfRows(messages) +
           "<div class=\"box\" tabindex=\"0\" role=\"region\" aria-label=\"" +
           InHtml(messages.SurveyCreatures) + "\">\n" + table.Element() +
           "</div>\n</section>\n</main>\n" +
           HtmlElement("footer", VersionRecord::TitleAndVersion()) + "\n<script>" + PageScript +
           "</script>\n</body>\n</html>\n";
}

} // namespace Hesperin
