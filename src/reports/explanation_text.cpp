#include "reports/explanation_text.h"

#include "reports/explanation_chapters.h"
#include "text/fill.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// With a backslash before each character that Markdown would take for markup.
QString Escaped(const QString& text) {
    static const QString markup = QStringLiteral("\\`*_{}[]<>#|~&");
    QString escaped;
    for (const QChar character : text.simplified()) {
        if (markup.contains(character))
            escaped += u'\\';
        escaped += character;
    }
    return escaped;
}

} // namespace

QString ExplanationHead(const Explanation& explanation, std::uint8_t languageId) {
    const Parameters& parameters = explanation.evaluation.validated.parameters;
    const Phrase phrase =
        parameters.UpgradeFactor == PlainFactor ? Phrase::Head : Phrase::HeadUpgraded;
    return Fill(PhraseIn(languageId, phrase), {explanation.name, QString::number(parameters.Tier)});
}

QString ExplanationText(const Explanation& explanation, std::uint8_t languageId,
                        std::optional<ResultKey> only) {
    const QString head = ExplanationHead(explanation, languageId);
    QString text = explanation.file.isEmpty()
                       ? head + u'\n'
                       : explanation.file + QLatin1String(": ") + head + u'\n';
    for (const ExplainedChapter& chapter : ChaptersOf(explanation, languageId, only)) {
        text += u'\n' + chapter.heading + u'\n';
        qsizetype width = 0;
        for (const ExplainedStep& step : chapter.steps)
            if (!step.value.isEmpty())
                width = std::max(width, step.what.size());
        for (const ExplainedStep& step : chapter.steps)
            text += QLatin1String("  ") +
                    (step.value.isEmpty() ? step.what
                                          : step.what.leftJustified(width + 2) + step.Working()) +
                    u'\n';
    }
    text.chop(1);
    return text;
}

QString ExplanationMarkdown(const Explanation& explanation, std::uint8_t languageId,
                            std::optional<ResultKey> only) {
    QString text = QLatin1String("# ") + Escaped(ExplanationHead(explanation, languageId)) + u'\n';
    for (const ExplainedChapter& chapter : ChaptersOf(explanation, languageId, only)) {
        text += QLatin1String("\n## ") + Escaped(chapter.heading) +
                QLatin1String("\n\n| | |\n|---|---|\n");
        for (const ExplainedStep& step : chapter.steps)
            text += QLatin1String("| ") + Escaped(step.what) + QLatin1String(" | ") +
                    Escaped(step.Working()) + QLatin1String(" |\n");
    }
    return text;
}

} // namespace Hesperin
