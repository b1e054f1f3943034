#include "window/explanation_page.h"

#include "window/palette.h"

namespace Hesperin {

namespace {

QString StepCell(const QString& text, int percent, const QString& style = {}) {
    return QStringLiteral("<td width=\"%1%\" style=\"%2\">%3</td>")
        .arg(QString::number(percent), style, text.toHtmlEscaped());
}

/// What it is, how it is reckoned, what comes of it; a step that tells all by itself takes the row.
QString StepRow(const ExplainedStep& step) {
    if (step.value.isEmpty())
        return QStringLiteral("<tr><td colspan=\"3\">%1</td></tr>").arg(step.what.toHtmlEscaped());
    const QString result =
        step.isResult
            ? QStringLiteral("font-weight:bold;color:%1").arg(QColor(Colours().Accent).name())
            : QString();
    const bool reckoned = !step.numbers.isEmpty();
    return QStringLiteral("<tr>") + StepCell(step.what, 32, result) +
           StepCell(reckoned ? step.numbers : step.value, 40, reckoned ? QString() : result) +
           StepCell(reckoned ? QLatin1String("= ") + step.value : QString(), 28, result) +
           QStringLiteral("</tr>");
}

} // namespace

QString ExplanationPage(const QString& head, const std::vector<ExplainedChapter>& chapters) {
    QString page = QStringLiteral("<p style=\"margin:0 0 9px 1px\"><big><b>%1</b></big></p>")
                       .arg(head.toHtmlEscaped());
    for (const ExplainedChapter& chapter : chapters) {
        page += QStringLiteral("<p style=\"margin:0 0 2px 1px;color:%1\"><b>%2</b></p>"
                               "<table width=\"100%\" style=\"margin-bottom:9px\" "
                               "cellspacing=\"0\" cellpadding=\"1\">")
                    .arg(QColor(Colours().Accent).name(), chapter.heading.toHtmlEscaped());
        for (const ExplainedStep& step : chapter.steps)
            page += StepRow(step);
        page += QStringLiteral("</table>");
    }
    return page;
}

} // namespace Hesperin
